// Strings changed in place, and strings joined.
#include <classes/CString.h>

#include <classes/CException.h>

#include "text/MultibyteText.h"
#include "text/StringBuffer.h"

#include <mbstring.h>

#include <string_view>

using afxint::CharacterCode;
using afxint::Contains;
using afxint::FindCharacter;
using afxint::FindText;
using afxint::ForEachCharacter;
using afxint::HasDoubleBytes;
using afxint::IsSpace;
using afxint::LengthWithoutTail;
using afxint::longest;
using afxint::MakeWritable;
using afxint::SetLengthOf;
using afxint::ViewOf;

namespace {

/// Changes each character by a function of the C library, or the whole text by one of the system
/// when all characters are single bytes.
void ChangeCase(char* text, int length, unsigned (*change)(unsigned),
                DWORD(WINAPI* changeBytes)(LPSTR, DWORD))
{
    if (!HasDoubleBytes()) {
        changeBytes(text, length);
        return;
    }
    ForEachCharacter({text, static_cast<size_t>(length)}, 0, [&](int position, std::string_view c) {
        const unsigned changed = change(CharacterCode(c));
        if (c.size() == 2)
            text[position++] = static_cast<char>(changed >> 8);
        text[position] = static_cast<char>(changed);
        return true;
    });
}

CString Concatenate(std::string_view left, std::string_view right)
{
    if (left.size() + right.size() > longest)
        AfxThrowMemoryException();
    CString result;
    char* text = result.GetBufferSetLength(static_cast<int>(left.size() + right.size()));
    left.copy(text, left.size());
    right.copy(text + left.size(), right.size());
    return result;
}

} // namespace

CString& CString::MakeUpper()
{
    MakeWritable(data_, GetLength());
    ChangeCase(data_, GetLength(), _mbctoupper, ::CharUpperBuff);
    return *this;
}

CString& CString::MakeLower()
{
    MakeWritable(data_, GetLength());
    ChangeCase(data_, GetLength(), _mbctolower, ::CharLowerBuff);
    return *this;
}

CString& CString::MakeReverse()
{
    const CString forward(*this);
    MakeWritable(data_, GetLength());
    char* to = data_ + GetLength();
    ForEachCharacter(ViewOf(forward), 0, [&](int, std::string_view character) {
        to -= character.size();
        character.copy(to, character.size());
        return true;
    });
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(XCHAR chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::Trim(PCXSTR pszTargets)
{
    return TrimRight(pszTargets).TrimLeft(pszTargets);
}

CString& CString::TrimLeft()
{
    Delete(0, FindCharacter(ViewOf(*this), 0, [](std::string_view c) { return !IsSpace(c); }));
    return *this;
}

CString& CString::TrimLeft(XCHAR chTarget)
{
    const char set[] = {chTarget, '\0'};
    return TrimLeft(set);
}

CString& CString::TrimLeft(PCXSTR pszTargets)
{
    const std::string_view set = ViewOf(pszTargets);
    Delete(0,
           FindCharacter(ViewOf(*this), 0, [=](std::string_view c) { return !Contains(set, c); }));
    return *this;
}

CString& CString::TrimRight()
{
    Truncate(LengthWithoutTail(ViewOf(*this), IsSpace));
    return *this;
}

CString& CString::TrimRight(XCHAR chTarget)
{
    const char set[] = {chTarget, '\0'};
    return TrimRight(set);
}

CString& CString::TrimRight(PCXSTR pszTargets)
{
    const std::string_view set = ViewOf(pszTargets);
    Truncate(
        LengthWithoutTail(ViewOf(*this), [=](std::string_view c) { return Contains(set, c); }));
    return *this;
}

int CString::Replace(XCHAR chOld, XCHAR chNew)
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

int CString::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const std::string_view text = ViewOf(*this);
    const std::string_view wanted = ViewOf(pszOld);
    const std::string_view added = ViewOf(pszNew);
    if (wanted.empty())
        return 0;
    CString result;
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

int CString::Remove(XCHAR chRemove)
{
    CString kept;
    ForEachCharacter(ViewOf(*this), 0, [&](int, std::string_view character) {
        if (character != std::string_view(&chRemove, 1))
            kept.Append(character.data(), static_cast<int>(character.size()));
        return true;
    });
    const int removed = GetLength() - kept.GetLength();
    if (removed > 0)
        SetString(kept, kept.GetLength());
    return removed;
}

int CString::Insert(int iIndex, XCHAR ch)
{
    const char text[] = {ch, '\0'};
    return Insert(iIndex, text);
}

int CString::Insert(int iIndex, PCXSTR psz)
{
    const std::string_view inserted = ViewOf(psz);
    if (inserted.empty())
        return GetLength();
    iIndex = min(max(iIndex, 0), GetLength());
    const std::string_view text = ViewOf(*this);
    const CString head = Concatenate(text.substr(0, iIndex), inserted);
    return (*this = Concatenate(ViewOf(head), text.substr(iIndex))).GetLength();
}

int CString::Delete(int iIndex, int nCount)
{
    const int length = GetLength();
    iIndex = max(iIndex, 0);
    nCount = min(max(nCount, 0), length - iIndex);
    if (nCount <= 0)
        return length;
    MakeWritable(data_, length);
    memmove(data_ + iIndex, data_ + iIndex + nCount, length - iIndex - nCount);
    SetLengthOf(data_, length - nCount);
    return length - nCount;
}

CString operator+(const CString& str1, const CString& str2)
{
    return Concatenate(ViewOf(str1), ViewOf(str2));
}

CString operator+(const CString& str1, LPCSTR psz2)
{
    return Concatenate(ViewOf(str1), ViewOf(psz2));
}

CString operator+(LPCSTR psz1, const CString& str2)
{
    return Concatenate(ViewOf(psz1), ViewOf(str2));
}
