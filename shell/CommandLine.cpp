#include "shell/CommandLine.h"

#include <mbctype.h>
#include <tchar.h>

namespace umbra {

namespace {

/// Whether the text begins with a character of two bytes.
bool BeginsWithPair(LPCTSTR text)
{
#ifdef UNICODE
    (void)text;
    return false;
#else
    return _ismbblead(static_cast<unsigned char>(text[0])) && text[1] != '\0';
#endif
}

/// The first place of `part` in a text, never within a character. Not every run-time's own search
/// looks where characters begin.
LPTSTR FindText(LPTSTR text, LPCTSTR part)
{
    const size_t length = _tcslen(part);
    for (LPTSTR place = text; *place != '\0'; place += BeginsWithPair(place) ? 2 : 1) {
        if (_tcsncmp(place, part, length) == 0)
            return place;
    }
    return nullptr;
}

} // namespace

BOOL CutPlaceholder(LPTSTR commandLine)
{
    LPTSTR placeholder = FindText(commandLine, _T("\"%1\""));
    if (placeholder == nullptr)
        placeholder = FindText(commandLine, _T("%1"));
    if (placeholder == nullptr)
        return FALSE;
    *placeholder = '\0';
    return TRUE;
}

BOOL ComposeCommandLine(LPTSTR commandLine, size_t capacity, LPCTSTR target)
{
    if (commandLine[0] == '\0')
        return FALSE;
    CutPlaceholder(commandLine);
    if (_tcslen(commandLine) + 1 + _tcslen(target) >= capacity)
        return FALSE;
    // Kept: the target is never quoted, not even where the placeholder was.
    _tcscat(commandLine, _T(" "));
    _tcscat(commandLine, target);
    return TRUE;
}

} // namespace umbra
