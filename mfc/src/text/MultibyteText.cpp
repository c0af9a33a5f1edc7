#include "text/MultibyteText.h"

#include <mbctype.h>
#include <mbstring.h>

namespace afxint {

bool HasDoubleBytes()
{
    const int codePage = _getmbcp();
    return codePage == 932 || codePage == 936 || codePage == 949 || codePage == 950 ||
           codePage == 1361;
}

int CharacterBytes(std::string_view text)
{
    return text.size() > 1 && _ismbblead(static_cast<unsigned char>(text[0])) ? 2 : 1;
}

unsigned CharacterCode(std::string_view character)
{
    const unsigned first = static_cast<unsigned char>(character[0]);
    return character.size() == 1 ? first : first << 8 | static_cast<unsigned char>(character[1]);
}

bool Contains(std::string_view set, std::string_view character)
{
    bool found = false;
    ForEachCharacter(set, 0, [&](int, std::string_view member) {
        found = member == character;
        return !found;
    });
    return found;
}

bool IsSpace(std::string_view character)
{
    return character.size() == 1 ? isspace(static_cast<unsigned char>(character[0])) != 0
                                 : _ismbcspace(CharacterCode(character)) != 0;
}

int FindText(std::string_view text, std::string_view needle, int start)
{
    if (start < 0 || static_cast<size_t>(start) > text.size())
        return -1;
    if (!HasDoubleBytes() || needle.empty()) {
        const size_t found = text.find(needle, start);
        return found == std::string_view::npos ? -1 : static_cast<int>(found);
    }
    int found = -1;
    ForEachCharacter(text, start, [&](int position, std::string_view) {
        if (text.compare(position, needle.size(), needle) == 0)
            found = position;
        return found < 0;
    });
    return found;
}

} // namespace afxint
