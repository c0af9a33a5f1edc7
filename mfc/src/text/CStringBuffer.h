// A string of its own: its characters, its buffer, and copies of either.
#pragma once

#include <classes/CString.h>

#include <classes/CException.h>

#include "text/CharacterTraits.h"
#include "text/StringBuffer.h"

#include <utility>

using afxint::AppendTo;
using afxint::CopyOf;
using afxint::HeadOf;
using afxint::IsLocked;
using afxint::IsOwned;
using afxint::LengthWithin;
using afxint::locked;
using afxint::longest;
using afxint::MakeWritable;
using afxint::Nothing;
using afxint::Release;
using afxint::SetLengthOf;
using afxint::Share;

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::CStringT() : data_(Nothing<XCHAR>())
{
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::CStringT(const CStringT& strSrc) : data_(Share(strSrc.data_))
{
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::CStringT(PCXSTR pszSrc) : CStringT()
{
    if (pszSrc == NULL)
        return;
    if (IS_INTRESOURCE(pszSrc))
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(pszSrc)));
    else
        SetString(pszSrc);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::CStringT(PCXSTR pch, int nLength) : CStringT()
{
    SetString(pch, nLength);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::~CStringT()
{
    Release(data_);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>&
CStringT<BaseType, StringTraits>::operator=(const CStringT& strSrc)
{
    if (data_ == strSrc.data_)
        return *this;
    if (IsLocked(data_))
        SetString(strSrc.GetString(), strSrc.GetLength());
    else
        Release(std::exchange(data_, Share(strSrc.data_)));
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::operator=(PCXSTR pszSrc)
{
    SetString(pszSrc);
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::operator+=(const CStringT& str)
{
    Append(str);
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::GetLength() const
{
    return HeadOf(data_).length;
}

template <class BaseType, class StringTraits>
bool CStringT<BaseType, StringTraits>::IsEmpty() const
{
    return GetLength() == 0;
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Empty()
{
    if (IsLocked(data_))
        SetLengthOf(data_, 0);
    else
        Release(std::exchange(data_, Nothing<XCHAR>()));
}

template <class BaseType, class StringTraits>
BaseType CStringT<BaseType, StringTraits>::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
        AfxThrowInvalidArgException();
    return data_[iChar];
}

template <class BaseType, class StringTraits>
BaseType CStringT<BaseType, StringTraits>::operator[](int iChar) const
{
    return GetAt(iChar);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::SetAt(int iChar, XCHAR ch)
{
    if (iChar < 0 || iChar >= GetLength())
        AfxThrowInvalidArgException();
    MakeWritable(data_, GetLength());
    data_[iChar] = ch;
}

template <class BaseType, class StringTraits>
const BaseType* CStringT<BaseType, StringTraits>::GetString() const
{
    return data_;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::operator PCXSTR() const
{
    return data_;
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::SetString(PCXSTR pszSrc, int nLength)
{
    afxint::Assign(data_, pszSrc, nLength);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Append(PCXSTR pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Append(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == NULL && nLength > 0))
        AfxThrowInvalidArgException();
    if (nLength > 0)
        AppendTo(data_, pszSrc, LengthWithin(pszSrc, nLength));
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Append(const CStringT& strSrc)
{
    if (data_ == Nothing<XCHAR>())
        *this = strSrc;
    else
        AppendTo(data_, strSrc.data_, strSrc.GetLength());
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::AppendChar(XCHAR ch)
{
    AppendTo(data_, &ch, 1);
}

template <class BaseType, class StringTraits>
BaseType* CStringT<BaseType, StringTraits>::GetBuffer(int nMinBufferLength)
{
    if (nMinBufferLength < 0)
        AfxThrowInvalidArgException();
    MakeWritable(data_, nMinBufferLength);
    return data_;
}

template <class BaseType, class StringTraits>
BaseType* CStringT<BaseType, StringTraits>::GetBuffer()
{
    return GetBuffer(0);
}

template <class BaseType, class StringTraits>
BaseType* CStringT<BaseType, StringTraits>::GetBufferSetLength(int nLength)
{
    GetBuffer(nLength);
    SetLengthOf(data_, nLength);
    return data_;
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
        nNewLength = LengthWithin(data_, GetAllocLength());
    ReleaseBufferSetLength(nNewLength);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetAllocLength())
        AfxThrowInvalidArgException();
    if (nNewLength == GetLength() && data_[nNewLength] == XCHAR())
        return;
    MakeWritable(data_, nNewLength);
    SetLengthOf(data_, nNewLength);
}

template <class BaseType, class StringTraits>
BaseType* CStringT<BaseType, StringTraits>::LockBuffer()
{
    GetBuffer();
    HeadOf(data_).references = locked;
    return data_;
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::UnlockBuffer()
{
    if (IsLocked(data_))
        HeadOf(data_).references = 1;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::GetAllocLength() const
{
    return HeadOf(data_).capacity;
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Preallocate(int nLength)
{
    MakeWritable(data_, nLength);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::FreeExtra()
{
    const int length = GetLength();
    if (!IsOwned(data_) || IsLocked(data_) || GetAllocLength() == length)
        return;
    Release(std::exchange(data_, CopyOf(data_, length, length)));
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::Truncate(int nNewLength)
{
    if (nNewLength < 0)
        AfxThrowInvalidArgException();
    if (nNewLength >= GetLength())
        return;
    MakeWritable(data_, nNewLength);
    SetLengthOf(data_, nNewLength);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars)
{
    if (nChars > 0)
        std::char_traits<XCHAR>::copy(pchDest, pchSrc, nChars);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::CopyChars(XCHAR* pchDest, size_t nDestLen,
                                                 const XCHAR* pchSrc, int nChars)
{
    if (nChars < 0 || static_cast<size_t>(nChars) > nDestLen)
        AfxThrowInvalidArgException();
    CopyChars(pchDest, pchSrc, nChars);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc,
                                                           int nChars)
{
    if (nChars > 0)
        std::char_traits<XCHAR>::move(pchDest, pchSrc, nChars);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::StringLength(PCXSTR psz)
{
    if (psz == NULL)
        return 0;
    const size_t length = afxint::CharacterTraits<XCHAR>::Length(psz);
    if (length > longest)
        AfxThrowMemoryException();
    return static_cast<int>(length);
}
