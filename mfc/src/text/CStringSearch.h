// Parts of a string, and where they are.
#pragma once

#include <classes/CString.h>

#include <classes/CException.h>

#include "text/Characters.h"

using afxint::CharacterUnits;
using afxint::Contains;
using afxint::FindCharacter;
using afxint::FindText;
using afxint::ForEachCharacter;
using afxint::ViewOf;

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Mid(int iFirst, int nCount) const
{
    const int length = GetLength();
    iFirst = min(max(iFirst, 0), length);
    nCount = min(max(nCount, 0), length - iFirst);
    return nCount == length ? *this : CStringT(data_ + iFirst, nCount);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Left(int nCount) const
{
    return Mid(0, nCount);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Right(int nCount) const
{
    nCount = min(max(nCount, 0), GetLength());
    return Mid(GetLength() - nCount, nCount);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>
CStringT<BaseType, StringTraits>::SpanIncluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        AfxThrowInvalidArgException();
    const auto set = ViewOf(pszCharSet);
    return Left(
        FindCharacter(ViewOf(*this), 0, [=](auto character) { return !Contains(set, character); }));
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>
CStringT<BaseType, StringTraits>::SpanExcluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        AfxThrowInvalidArgException();
    const auto set = ViewOf(pszCharSet);
    return Left(
        FindCharacter(ViewOf(*this), 0, [=](auto character) { return Contains(set, character); }));
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits> CStringT<BaseType, StringTraits>::Tokenize(PCXSTR pszTokens,
                                                                            int& iStart) const
{
    const auto text = ViewOf(*this);
    const auto delimiters = ViewOf(pszTokens);
    const auto delimits = [=](auto c) { return Contains(delimiters, c); };
    const int length = GetLength();
    if (iStart >= 0 && iStart < length) {
        const int first = FindCharacter(text, iStart, [=](auto c) { return !delimits(c); });
        const int end = FindCharacter(text, first, delimits);
        if (first < length) {
            // Past the delimiter that ends the token, or past the end.
            iStart = end == length ? length : end + CharacterUnits(text.substr(end));
            return Mid(first, end - first);
        }
    }
    iStart = -1;
    return CStringT();
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Find(PCXSTR pszSub, int iStart) const
{
    return pszSub == NULL ? -1 : FindText(ViewOf(*this), pszSub, iStart);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Find(XCHAR ch, int iStart) const
{
    return FindText(ViewOf(*this), {&ch, 1}, iStart);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::ReverseFind(XCHAR ch) const
{
    int found = -1;
    ForEachCharacter(ViewOf(*this), 0, [&](int position, auto character) {
        if (character.size() == 1 && character[0] == ch)
            found = position;
        return true;
    });
    return found;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::FindOneOf(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        AfxThrowInvalidArgException();
    const auto set = ViewOf(pszCharSet);
    const int found =
        FindCharacter(ViewOf(*this), 0, [=](auto character) { return Contains(set, character); });
    return found == GetLength() ? -1 : found;
}
