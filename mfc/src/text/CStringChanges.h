// Strings changed in place, and strings joined.
#pragma once

#include <classes/CString.h>

#include <classes/CException.h>

#include "text/Characters.h"
#include "text/StringBuffer.h"

#include <string_view>

using afxint::CharacterTraits;
using afxint::Contains;
using afxint::FindCharacter;
using afxint::FindText;
using afxint::ForEachCharacter;
using afxint::LengthWithoutTail;
using afxint::longest;
using afxint::MakeWritable;
using afxint::SetLengthOf;
using afxint::ViewOf;

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::MakeUpper()
{
    MakeWritable(data_, GetLength());
    CharacterTraits<XCHAR>::MakeUpper(data_, GetLength());
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::MakeLower()
{
    MakeWritable(data_, GetLength());
    CharacterTraits<XCHAR>::MakeLower(data_, GetLength());
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::MakeReverse()
{
    const CStringT forward(*this);
    MakeWritable(data_, GetLength());
    PXSTR to = data_ + GetLength();
    ForEachCharacter(ViewOf(forward), 0, [&](int, auto character) {
        to -= character.size();
        character.copy(to, character.size());
        return true;
    });
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Trim()
{
    return TrimRight().TrimLeft();
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Trim(XCHAR chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Trim(PCXSTR pszTargets)
{
    return TrimRight(pszTargets).TrimLeft(pszTargets);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimLeft()
{
    Delete(0, FindCharacter(ViewOf(*this), 0,
                            [](auto c) { return !CharacterTraits<XCHAR>::IsSpace(c); }));
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimLeft(XCHAR chTarget)
{
    const XCHAR set[] = {chTarget, 0};
    return TrimLeft(set);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimLeft(PCXSTR pszTargets)
{
    const auto set = ViewOf(pszTargets);
    Delete(0, FindCharacter(ViewOf(*this), 0, [=](auto c) { return !Contains(set, c); }));
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimRight()
{
    Truncate(LengthWithoutTail(ViewOf(*this), CharacterTraits<XCHAR>::IsSpace));
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimRight(XCHAR chTarget)
{
    const XCHAR set[] = {chTarget, 0};
    return TrimRight(set);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::TrimRight(PCXSTR pszTargets)
{
    const auto set = ViewOf(pszTargets);
    Truncate(LengthWithoutTail(ViewOf(*this), [=](auto c) { return Contains(set, c); }));
    return *this;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Replace(XCHAR chOld, XCHAR chNew)
{
    if (chOld == chNew)
        return 0;
    int replaced = 0;
    for (int at = Find(chOld); at >= 0; at = Find(chOld, at + 1)) {
        SetAt(at, chNew);
        ++replaced;
    }
    return replaced;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const auto text = ViewOf(*this);
    const auto wanted = ViewOf(pszOld);
    const auto added = ViewOf(pszNew);
    if (wanted.empty())
        return 0;
    CStringT result;
    int replaced = 0;
    int copied = 0;
    for (int at = FindText(text, wanted, 0); at >= 0; at = FindText(text, wanted, copied)) {
        result.Append(text.data() + copied, at - copied);
        result.Append(added.data(), static_cast<int>(added.size()));
        copied = at + static_cast<int>(wanted.size());
        ++replaced;
    }
    if (replaced == 0)
        return 0;
    result.Append(text.data() + copied, GetLength() - copied);
    SetString(result, result.GetLength());
    return replaced;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Remove(XCHAR chRemove)
{
    CStringT kept;
    ForEachCharacter(ViewOf(*this), 0, [&](int, auto character) {
        if (character.size() != 1 || character[0] != chRemove)
            kept.Append(character.data(), static_cast<int>(character.size()));
        return true;
    });
    const int removed = GetLength() - kept.GetLength();
    if (removed > 0)
        SetString(kept, kept.GetLength());
    return removed;
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Insert(int iIndex, XCHAR ch)
{
    const XCHAR text[] = {ch, 0};
    return Insert(iIndex, text);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Insert(int iIndex, PCXSTR psz)
{
    const auto inserted = ViewOf(psz);
    if (inserted.empty())
        return GetLength();
    iIndex = min(max(iIndex, 0), GetLength());
    const CStringT head =
        Concatenate(data_, iIndex, inserted.data(), static_cast<int>(inserted.size()));
    *this = Concatenate(head, head.GetLength(), data_ + iIndex, GetLength() - iIndex);
    return GetLength();
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Delete(int iIndex, int nCount)
{
    const int length = GetLength();
    iIndex = max(iIndex, 0);
    nCount = min(max(nCount, 0), length - iIndex);
    if (nCount <= 0)
        return length;
    MakeWritable(data_, length);
    std::char_traits<XCHAR>::move(data_ + iIndex, data_ + iIndex + nCount,
                                  length - iIndex - nCount);
    SetLengthOf(data_, length - nCount);
    return length - nCount;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>
CStringT<BaseType, StringTraits>::Concatenate(PCXSTR left, int leftLength, PCXSTR right,
                                              int rightLength)
{
    if (leftLength > longest - rightLength)
        AfxThrowMemoryException();
    CStringT result;
    const PXSTR text = result.GetBufferSetLength(leftLength + rightLength);
    CopyChars(text, left, leftLength);
    CopyChars(text + leftLength, right, rightLength);
    return result;
}
