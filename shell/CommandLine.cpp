#include "shell/CommandLine.h"

#include <mbctype.h>
#include <string.h>

namespace umbra {

namespace {

/// The first place of `part` in a multibyte text, never within a character. Not every run-time's
/// own search looks where characters begin.
char* FindText(char* text, const char* part)
{
    const size_t length = strlen(part);
    unsigned char* place = reinterpret_cast<unsigned char*>(text);
    while (*place != '\0') {
        if (strncmp(reinterpret_cast<char*>(place), part, length) == 0)
            return reinterpret_cast<char*>(place);
        place += _ismbblead(*place) && place[1] != '\0' ? 2 : 1;
    }
    return nullptr;
}

} // namespace

BOOL CutPlaceholder(char* commandLine)
{
    char* placeholder = FindText(commandLine, "\"%1\"");
    if (placeholder == nullptr)
        placeholder = FindText(commandLine, "%1");
    if (placeholder == nullptr)
        return FALSE;
    *placeholder = '\0';
    return TRUE;
}

BOOL ComposeCommandLine(char* commandLine, size_t capacity, const char* target)
{
    if (commandLine[0] == '\0')
        return FALSE;
    CutPlaceholder(commandLine);
    if (strlen(commandLine) + 1 + strlen(target) >= capacity)
        return FALSE;
    // Kept: the target is never quoted, not even where the placeholder was.
    strcat(commandLine, " ");
    strcat(commandLine, target);
    return TRUE;
}

} // namespace umbra
