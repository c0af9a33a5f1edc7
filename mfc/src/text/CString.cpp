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

CString::CString() : m_pszData(Nothing())
{
}

CString::CString(const CString& strSrc) : m_pszData(Share(strSrc.m_pszData))
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
    Release(m_pszData);
}

CString& CString::operator=(const CString& strSrc)
{
    if (m_pszData == strSrc.m_pszData)
        return *this;
    if (IsLocked(m_pszData))
        SetString(strSrc.GetString(), strSrc.GetLength());
    else
        Release(std::exchange(m_pszData, Share(strSrc.m_pszData)));
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
    return HeadOf(m_pszData).length;
}

bool CString::IsEmpty() const
{
    return GetLength() == 0;
}

void CString::Empty()
{
    if (IsLocked(m_pszData))
        SetLengthOf(m_pszData, 0);
    else
        Release(std::exchange(m_pszData, Nothing()));
}

CString::XCHAR CString::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
        AfxThrowInvalidArgException();
    return m_pszData[iChar];
}

CString::XCHAR CString::operator[](int iChar) const
{
    return GetAt(iChar);
}

void CString::SetAt(int iChar, XCHAR ch)
{
    if (iChar < 0 || iChar >= GetLength())
        AfxThrowInvalidArgException();
    MakeWritable(m_pszData, GetLength());
    m_pszData[iChar] = ch;
}

CString::PCXSTR CString::GetString() const
{
    return m_pszData;
}

CString::operator PCXSTR() const
{
    return m_pszData;
}

void CString::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

void CString::SetString(PCXSTR pszSrc, int nLength)
{
    afxint::Assign(m_pszData, pszSrc, nLength);
}

void CString::Append(PCXSTR pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

void CString::Append(PCXSTR pszSrc, int nLength)
{
    if (nLength < 0 || (pszSrc == nullptr && nLength > 0))
        AfxThrowInvalidArgException();
    if (nLength > 0)
        AppendTo(m_pszData, pszSrc, static_cast<int>(strnlen(pszSrc, nLength)));
}

void CString::Append(const CString& strSrc)
{
    if (m_pszData == Nothing())
        *this = strSrc;
    else
        AppendTo(m_pszData, strSrc.m_pszData, strSrc.GetLength());
}

void CString::AppendChar(XCHAR ch)
{
    AppendTo(m_pszData, &ch, 1);
}

CString::PXSTR CString::GetBuffer(int nMinBufferLength)
{
    if (nMinBufferLength < 0)
        AfxThrowInvalidArgException();
    MakeWritable(m_pszData, nMinBufferLength);
    return m_pszData;
}

CString::PXSTR CString::GetBuffer()
{
    return GetBuffer(0);
}

CString::PXSTR CString::GetBufferSetLength(int nLength)
{
    GetBuffer(nLength);
    SetLengthOf(m_pszData, nLength);
    return m_pszData;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
        nNewLength = static_cast<int>(strnlen(m_pszData, GetAllocLength()));
    ReleaseBufferSetLength(nNewLength);
}

void CString::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetAllocLength())
        AfxThrowInvalidArgException();
    if (nNewLength == GetLength() && m_pszData[nNewLength] == '\0')
        return;
    MakeWritable(m_pszData, nNewLength);
    SetLengthOf(m_pszData, nNewLength);
}

CString::PXSTR CString::LockBuffer()
{
    GetBuffer();
    HeadOf(m_pszData).references = locked;
    return m_pszData;
}

void CString::UnlockBuffer()
{
    if (IsLocked(m_pszData))
        HeadOf(m_pszData).references = 1;
}

int CString::GetAllocLength() const
{
    return HeadOf(m_pszData).capacity;
}

void CString::Preallocate(int nLength)
{
    MakeWritable(m_pszData, nLength);
}

void CString::FreeExtra()
{
    const int length = GetLength();
    if (!IsOwned(m_pszData) || IsLocked(m_pszData) || GetAllocLength() == length)
        return;
    Release(std::exchange(m_pszData, CopyOf(m_pszData, length, length)));
}

void CString::Truncate(int nNewLength)
{
    if (nNewLength < 0)
        AfxThrowInvalidArgException();
    if (nNewLength >= GetLength())
        return;
    MakeWritable(m_pszData, nNewLength);
    SetLengthOf(m_pszData, nNewLength);
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
    if (psz == nullptr)
        return 0;
    const size_t length = strlen(psz);
    if (length > longest)
        AfxThrowMemoryException();
    return static_cast<int>(length);
}
