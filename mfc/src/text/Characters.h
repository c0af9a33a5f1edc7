// Text as a row of characters, each of which may have two units: bytes, or halves of UTF-16 pairs.
#pragma once

#include <classes/CString.h>

#include "text/CharacterTraits.h"

#include <string_view>

namespace afxint {

/// Not deduced, so that whatever converts to a view may be passed beside one.
template <class Char>
using AnyView = std::common_type_t<std::basic_string_view<Char>>;

template <class Char, class Traits>
std::basic_string_view<Char> ViewOf(const CStringT<Char, Traits>& string)
{
    return {string.GetString(), static_cast<size_t>(string.GetLength())};
}

/// The text up to its terminator; NULL counts as empty.
template <class Char>
std::basic_string_view<Char> ViewOf(const Char* text)
{
    return text == NULL ? std::basic_string_view<Char>() : std::basic_string_view<Char>(text);
}

/// Units of the character at the start of the text.
template <class Char>
int CharacterUnits(std::basic_string_view<Char> text)
{
    return text.size() > 1 && CharacterTraits<Char>::BeginsWithPair(text) ? 2 : 1;
}

/// Calls visit(position, character) for each character until that returns false.
template <class Char, class Visit>
void ForEachCharacter(std::basic_string_view<Char> text, size_t start, Visit visit)
{
    while (start < text.size()) {
        const auto rest = text.substr(start);
        const auto character = rest.substr(0, CharacterUnits(rest));
        if (!visit(static_cast<int>(start), character))
            return;
        start += character.size();
    }
}

template <class Char>
bool Contains(std::basic_string_view<Char> set, AnyView<Char> character)
{
    bool found = false;
    ForEachCharacter(set, 0, [&](int, auto member) {
        found = member == character;
        return !found;
    });
    return found;
}

/// The first place, from `start` on, where the needle begins at a character; -1 for none.
template <class Char>
int FindText(std::basic_string_view<Char> text, AnyView<Char> needle, int start)
{
    if (start < 0 || static_cast<size_t>(start) > text.size())
        return -1;
    if (!CharacterTraits<Char>::HasMisleadingUnits() || needle.empty()) {
        const size_t found = text.find(needle, start);
        return found == text.npos ? -1 : static_cast<int>(found);
    }
    int found = -1;
    ForEachCharacter(text, start, [&](int position, auto) {
        if (text.compare(position, needle.size(), needle) == 0)
            found = position;
        return found < 0;
    });
    return found;
}

/// The first place, from `start` on, of a character that the predicate accepts; the length of the
/// text when there is none.
template <class Char, class Predicate>
int FindCharacter(std::basic_string_view<Char> text, int start, Predicate accepts)
{
    int found = static_cast<int>(text.size());
    ForEachCharacter(text, start, [&](int position, auto character) {
        if (!accepts(character))
            return true;
        found = position;
        return false;
    });
    return found;
}

/// The length of the text without the accepted characters at its end.
template <class Char, class Predicate>
int LengthWithoutTail(std::basic_string_view<Char> text, Predicate accepts)
{
    int length = 0;
    ForEachCharacter(text, 0, [&](int position, auto character) {
        if (!accepts(character))
            length = position + static_cast<int>(character.size());
        return true;
    });
    return length;
}

} // namespace afxint
