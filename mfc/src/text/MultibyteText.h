// Text as a row of characters, each of which may have two bytes in some code pages.
#pragma once

#include <classes/CString.h>

#include <string_view>

namespace afxint {

inline std::string_view ViewOf(const CString& string)
{
    return {string.GetString(), static_cast<size_t>(string.GetLength())};
}

/// The text up to its terminator; NULL counts as empty.
inline std::string_view ViewOf(LPCSTR text)
{
    return text == NULL ? std::string_view() : std::string_view(text);
}

/// Whether the C library's code page is one of those whose characters may have two bytes.
bool HasDoubleBytes();

/// Bytes of the character at the start of the text.
int CharacterBytes(std::string_view text);

/// The code of the character as the C library's multibyte functions take it.
unsigned CharacterCode(std::string_view character);

bool Contains(std::string_view set, std::string_view character);

bool IsSpace(std::string_view character);

/// The first place, from `start` on, where the needle begins at a character; -1 for none.
int FindText(std::string_view text, std::string_view needle, int start);

/// Calls visit(position, character) for each character until that returns false.
template <class Visit>
void ForEachCharacter(std::string_view text, size_t start, Visit visit)
{
    while (start < text.size()) {
        const std::string_view rest = text.substr(start);
        const std::string_view character = rest.substr(0, CharacterBytes(rest));
        if (!visit(static_cast<int>(start), character))
            return;
        start += character.size();
    }
}

/// The first place, from `start` on, of a character that the predicate accepts; the length of the
/// text when there is none.
template <class Predicate>
int FindCharacter(std::string_view text, int start, Predicate accepts)
{
    int found = static_cast<int>(text.size());
    ForEachCharacter(text, start, [&](int position, std::string_view character) {
        if (!accepts(character))
            return true;
        found = position;
        return false;
    });
    return found;
}

/// The length of the text without the accepted characters at its end.
template <class Predicate>
int LengthWithoutTail(std::string_view text, Predicate accepts)
{
    int length = 0;
    ForEachCharacter(text, 0, [&](int position, std::string_view character) {
        if (!accepts(character))
            length = position + static_cast<int>(character.size());
        return true;
    });
    return length;
}

} // namespace afxint
