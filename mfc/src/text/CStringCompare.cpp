// The order of strings.
#include <classes/CString.h>

#include <classes/CException.h>

#include <mbstring.h>

namespace {

int CompareOrThrow(int (*compare)(const unsigned char*, const unsigned char*), LPCSTR left,
                   LPCSTR right)
{
    if (right == nullptr)
        AfxThrowInvalidArgException();
    return compare(reinterpret_cast<const unsigned char*>(left),
                   reinterpret_cast<const unsigned char*>(right));
}

/// Order by characters; NULL counts as empty.
int CompareText(LPCSTR left, LPCSTR right)
{
    return CompareOrThrow(_mbscmp, left == nullptr ? "" : left, right == nullptr ? "" : right);
}

} // namespace

int CString::Compare(PCXSTR psz) const
{
    return CompareOrThrow(_mbscmp, m_pszData, psz);
}

int CString::CompareNoCase(PCXSTR psz) const
{
    return CompareOrThrow(_mbsicmp, m_pszData, psz);
}

int CString::Collate(PCXSTR psz) const
{
    return CompareOrThrow(_mbscoll, m_pszData, psz);
}

int CString::CollateNoCase(PCXSTR psz) const
{
    return CompareOrThrow(_mbsicoll, m_pszData, psz);
}

bool operator==(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) == 0;
}

bool operator==(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) == 0;
}

bool operator==(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) == 0;
}

bool operator!=(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) != 0;
}

bool operator!=(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) != 0;
}

bool operator!=(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) != 0;
}

bool operator<(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) < 0;
}

bool operator<(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) < 0;
}

bool operator<(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) < 0;
}

bool operator>(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) > 0;
}

bool operator>(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) > 0;
}

bool operator>(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) > 0;
}

bool operator<=(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) <= 0;
}

bool operator<=(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) <= 0;
}

bool operator<=(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) <= 0;
}

bool operator>=(const CString& str1, const CString& str2)
{
    return CompareText(str1, str2) >= 0;
}

bool operator>=(const CString& str1, LPCSTR psz2)
{
    return CompareText(str1, psz2) >= 0;
}

bool operator>=(LPCSTR psz1, const CString& str2)
{
    return CompareText(psz1, str2) >= 0;
}
