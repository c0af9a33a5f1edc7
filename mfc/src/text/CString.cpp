// A string of its own: its characters, its buffer, and copies of either.
#include <classes/CString.h>

#include <classes/CException.h>

#include "text/StringBuffer.h"

#include <utility>

using afxint::AppendTo;
using afxint::CopyOf;
using afxint::HeadOf;
using afxint::IsLocked;
using afxint::IsOwned;
using afxint::locked;
using afxint::longest;
using afxint::MakeWritable;
using afxint::Nothing;
using afxint::Release;
using afxint::SetLengthOf;
using afxint::Share;

CString::CString() : data_(Nothing())
{
}

CString::CString(const CString& strSrc) : data_(Share(strSrc.data_))
{
}

CString::CString(PCXSTR pszSrc) : CString()
{
    if (pszSrc == NULL)
        return;
    if (IS_INTRESOURCE(pszSrc))
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(pszSrc)));
    else
        SetString(pszSrc);
}

CString::CString(PCXSTR pch, int nLength) : CString()
{
    SetString(pch, nLength);
}

CString::~CString()
{
    Release(data_);
}

CString& CString::operator=(const CString& strSrc)
{
    if (data_ == strSrc.data_)
        return *this;
    if (IsLocked(data_))
        SetString(strSrc.GetString(), strSrc.GetLength());
    else
        Release(std::exchange(data_, Share(strSrc.data_)));
    return *this;
}

CString& CString::operator=(PCXSTR pszSrc)
{
    SetString(pszSrc);
    return *this;
}

CString& CString::operator+=(const CString& str)
{
    Append(str);
    return *this;
}

CString& CString::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

int CString::GetLength() const
{
    return HeadOf(data_).length;
}

bool CString::IsEmpty() const
{
    return GetLength() == 0;
}

void CString::Empty()
{
    if (IsLocked(data_))
        SetLengthOf(data_, 0);
    else
        Release(std::exchange(data_, Nothing()));
}

CString::XCHAR CString::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
        AfxThrowInvalidArgException();
    return data_[iChar];
}

CString::XCHAR CString::operator[](int iChar) const
{
    return GetAt(iChar);
}

void CString::SetAt(int iChar, XCHAR ch)
{
    if (iChar < 0 || iChar >= GetLength())
        AfxThrowInvalidArgException();
    MakeWritable(data_, GetLength());
    data_[iChar] = ch;
}

CString::PCXSTR CString::GetString() const
{
    return data_;
}

CString::operator PCXSTR() const
{
    return data_;
}

void CString::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

void CString::SetString(PCXSTR pszSrc, int nLength)
{
    afxint::Assign(data_, pszSrc, nLength);
}

void CString::Append(PCXSTR pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

void CString::Append(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == NULL && nLength > 0))
        AfxThrowInvalidArgException();
    if (nLength > 0)
        AppendTo(data_, pszSrc, static_cast<int>(strnlen(pszSrc, nLength)));
}

void CString::Append(const CString& strSrc)
{
    if (data_ == Nothing())
        *this = strSrc;
    else
        AppendTo(data_, strSrc.data_, strSrc.GetLength());
}

void CString::AppendChar(XCHAR ch)
{
    AppendTo(data_, &ch, 1);
}

CString::PXSTR CString::GetBuffer(int nMinBufferLength)
{
    if (nMinBufferLength < 0)
        AfxThrowInvalidArgException();
    MakeWritable(data_, nMinBufferLength);
    return data_;
}

CString::PXSTR CString::GetBuffer()
{
    return GetBuffer(0);
}

CString::PXSTR CString::GetBufferSetLength(int nLength)
{
    GetBuffer(nLength);
    SetLengthOf(data_, nLength);
    return data_;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
        nNewLength = static_cast<int>(strnlen(data_, GetAllocLength()));
    ReleaseBufferSetLength(nNewLength);
}

void CString::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetAllocLength())
        AfxThrowInvalidArgException();
    if (nNewLength == GetLength() && data_[nNewLength] == '\0')
        return;
    MakeWritable(data_, nNewLength);
    SetLengthOf(data_, nNewLength);
}

CString::PXSTR CString::LockBuffer()
{
    GetBuffer();
    HeadOf(data_).references = locked;
    return data_;
}

void CString::UnlockBuffer()
{
    if (IsLocked(data_))
        HeadOf(data_).references = 1;
}

int CString::GetAllocLength() const
{
    return HeadOf(data_).capacity;
}

void CString::Preallocate(int nLength)
{
    MakeWritable(data_, nLength);
}

void CString::FreeExtra()
{
    const int length = GetLength();
    if (!IsOwned(data_) || IsLocked(data_) || GetAllocLength() == length)
        return;
    Release(std::exchange(data_, CopyOf(data_, length, length)));
}

void CString::Truncate(int nNewLength)
{
    if (nNewLength < 0)
        AfxThrowInvalidArgException();
    if (nNewLength >= GetLength())
        return;
    MakeWritable(data_, nNewLength);
    SetLengthOf(data_, nNewLength);
}

void CString::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars)
{
    if (nChars > 0)
        memcpy(pchDest, pchSrc, nChars);
}

void CString::CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc, int nChars)
{
    if (nChars < 0 || static_cast<size_t>(nChars) > nDestLen)
        AfxThrowInvalidArgException();
    CopyChars(pchDest, pchSrc, nChars);
}

void CString::CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars)
{
    if (nChars > 0)
        memmove(pchDest, pchSrc, nChars);
}

int CString::StringLength(PCXSTR psz)
{
    if (psz == NULL)
        return 0;
    const size_t length = strlen(psz);
    if (length > longest)
        AfxThrowMemoryException();
    return static_cast<int>(length);
}
