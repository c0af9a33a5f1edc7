// The order of strings.
#include <classes/CString.h>

#include <classes/CException.h>

#include <mbstring.h>

namespace {

int CompareOrThrow(int (*compare)(const unsigned char*, const unsigned char*), LPCSTR left,
                   LPCSTR right)
{
    if (right == NULL)
        AfxThrowInvalidArgException();
    return compare(reinterpret_cast<const unsigned char*>(left),
                   reinterpret_cast<const unsigned char*>(right));
}

/// Order by characters; NULL counts as empty.
int CompareText(LPCSTR left, LPCSTR right)
{
    return CompareOrThrow(_mbscmp, left == NULL ? "" : left, right == NULL ? "" : right);
}

} // namespace

int CString::Compare(PCXSTR psz) const
{
    return CompareOrThrow(_mbscmp, data_, psz);
}

int CString::CompareNoCase(PCXSTR psz) const
{
    return CompareOrThrow(_mbsicmp, data_, psz);
}

int CString::Collate(PCXSTR psz) const
{
    return CompareOrThrow(_mbscoll, data_, psz);
}

int CString::CollateNoCase(PCXSTR psz) const
{
    return CompareOrThrow(_mbsicoll, data_, psz);
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
