// Strings in archives.
#include <classes/CArchive.h>

namespace {

// The number of characters stands first, as short as it can be. Before that of wide text stands a
// mark, which no number begins with.
constexpr BYTE longLength = 0xFF;
constexpr WORD longerLength = 0xFFFF;
constexpr WORD wideMark = 0xFFFE;
constexpr DWORD longestLength = 0xFFFFFFFF;

constexpr ULONGLONG partLength = 32 * 1024;

} // namespace

void CArchive::PutText(const char* text, int length)
{
    PutTextLength(length);
    Write(text, length);
}

void CArchive::PutText(const wchar_t* text, int length)
{
    if (length > INT_MAX / static_cast<int>(sizeof(wchar_t)))
        AfxThrowMemoryException();
    *this << longLength << wideMark;
    PutTextLength(length);
    Write(text, length * static_cast<int>(sizeof(wchar_t)));
}

void CArchive::PutTextLength(int length)
{
    if (length < longLength)
        *this << static_cast<BYTE>(length);
    else if (length < wideMark)
        *this << longLength << static_cast<WORD>(length);
    else
        *this << longLength << longerLength << static_cast<DWORD>(length);
}

void CArchive::GetText(CStringA& text)
{
    bool wide = false;
    const ULONGLONG length = GetTextLength(wide);
    if (wide) {
        CStringW other;
        GetCharacters(other, length);
        text = other;
    } else {
        GetCharacters(text, length);
    }
}

void CArchive::GetText(CStringW& text)
{
    bool wide = false;
    const ULONGLONG length = GetTextLength(wide);
    if (wide) {
        GetCharacters(text, length);
    } else {
        CStringA other;
        GetCharacters(other, length);
        text = other;
    }
}

/// In parts, because the number may be anything in a damaged file.
template <class Text>
void CArchive::GetCharacters(Text& text, ULONGLONG length)
{
    Text read;
    for (ULONGLONG left = length; left > 0;) {
        const int part = static_cast<int>(min(left, partLength));
        const int before = read.GetLength();
        if (before > INT_MAX - part)
            AfxThrowMemoryException();
        ReadWhole(read.GetBufferSetLength(before + part) + before,
                  static_cast<UINT>(part * sizeof(typename Text::XCHAR)));
        left -= static_cast<ULONGLONG>(part);
    }
    text = read;
}

ULONGLONG CArchive::GetTextLength(bool& wide)
{
    wide = false;
    BYTE small = 0;
    *this >> small;
    if (small < longLength)
        return small;
    WORD middle = 0;
    *this >> middle;
    if (middle == wideMark) {
        *this >> small;
        wide = true;
        if (small < longLength)
            return small;
        *this >> middle;
    }
    if (middle < longerLength)
        return middle;
    DWORD great = 0;
    *this >> great;
    if (great < longestLength)
        return great;
    ULONGLONG greatest = 0;
    *this >> greatest;
    return greatest;
}
