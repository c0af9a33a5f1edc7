// Parts of a string, and where they are.
#include <classes/CString.h>

#include <classes/CException.h>

#include "text/MultibyteText.h"

using afxint::CharacterBytes;
using afxint::Contains;
using afxint::FindCharacter;
using afxint::FindText;
using afxint::ForEachCharacter;
using afxint::ViewOf;

CString CString::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

CString CString::Mid(int iFirst, int nCount) const
{
    const int length = GetLength();
    iFirst = min(max(iFirst, 0), length);
    nCount = min(max(nCount, 0), length - iFirst);
    return nCount == length ? *this : CString(data_ + iFirst, nCount);
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    nCount = min(max(nCount, 0), GetLength());
    return Mid(GetLength() - nCount, nCount);
}

CString CString::SpanIncluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        AfxThrowInvalidArgException();
    return Left(FindCharacter(ViewOf(*this), 0, [=](std::string_view character) {
        return !Contains(pszCharSet, character);
    }));
}

CString CString::SpanExcluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        AfxThrowInvalidArgException();
    return Left(FindCharacter(ViewOf(*this), 0, [=](std::string_view character) {
        return Contains(pszCharSet, character);
    }));
}

CString CString::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    const std::string_view text = ViewOf(*this);
    const std::string_view delimiters = ViewOf(pszTokens);
    const auto delimits = [=](std::string_view c) { return Contains(delimiters, c); };
    const int length = GetLength();
    if (iStart >= 0 && iStart < length) {
        const int first =
            FindCharacter(text, iStart, [=](std::string_view c) { return !delimits(c); });
        const int end = FindCharacter(text, first, delimits);
        if (first < length) {
            // Past the delimiter that ends the token, or past the end.
            iStart = end == length ? length : end + CharacterBytes(text.substr(end));
            return Mid(first, end - first);
        }
    }
    iStart = -1;
    return CString();
}

int CString::Find(PCXSTR pszSub, int iStart) const
{
    return pszSub == NULL ? -1 : FindText(ViewOf(*this), pszSub, iStart);
}

int CString::Find(XCHAR ch, int iStart) const
{
    return FindText(ViewOf(*this), {&ch, 1}, iStart);
}

int CString::ReverseFind(XCHAR ch) const
{
    int found = -1;
    ForEachCharacter(ViewOf(*this), 0, [&](int position, std::string_view character) {
        if (character == std::string_view(&ch, 1))
            found = position;
        return true;
    });
    return found;
}

int CString::FindOneOf(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        AfxThrowInvalidArgException();
    const int found = FindCharacter(ViewOf(*this), 0, [=](std::string_view character) {
        return Contains(pszCharSet, character);
    });
    return found == GetLength() ? -1 : found;
}
