#include "ShellOpen.h"

#include <mbctype.h>
#include <shellapi.h>
#include <string.h>

namespace {

const UINT lastShellFailure = 32; // Results up to this one are errors.
const char openVerb[] = "\\shell\\open\\command";

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
    return NULL;
}

/// The open command registered for files of the extension; FALSE when a key is missing.
BOOL ReadOpenCommand(const char* extension, char (&command)[shellCommandCapacity])
{
    if (QueryRegistryDefault(HKEY_CLASSES_ROOT, extension, command) != ERROR_SUCCESS)
        return FALSE;
    strcat(command, openVerb);
    return QueryRegistryDefault(HKEY_CLASSES_ROOT, command, command) == ERROR_SUCCESS;
}

} // namespace

LONG QueryRegistryDefault(HKEY root, const char* subKey, char* out)
{
    HKEY key;
    const LONG opened = ::RegOpenKeyEx(root, subKey, 0, KEY_QUERY_VALUE, &key);
    if (opened != ERROR_SUCCESS)
        return opened;

    char value[MAX_PATH] = "";
    LONG size = MAX_PATH;
    const LONG read = ::RegQueryValue(key, NULL, value, &size);
    // The registry does not promise a terminator; a value that fills the buffer without one is cut.
    const BOOL whole = read == ERROR_SUCCESS && memchr(value, '\0', MAX_PATH) != NULL;
    strcpy(out, whole ? value : "");
    ::RegCloseKey(key);
    return opened;
}

UINT ShellOpen(const char* target, int showCommand, const char* extension)
{
    // The shell's result is a number of 32 bits, whatever its type says.
    const UINT shellResult = static_cast<UINT>(
        reinterpret_cast<UINT_PTR>(::ShellExecute(NULL, "open", target, NULL, NULL, showCommand)));
    if (shellResult > lastShellFailure)
        return shellResult;

    char command[shellCommandCapacity];
    if (!ReadOpenCommand(extension, command) ||
        !ComposeCommandLine(command, shellCommandCapacity, target)) {
        TRACE("Umbra: '%.260s' cannot be opened, nor can a program for %s files.\n", target,
              extension);
        return shellResult;
    }
    return ::WinExec(command, showCommand);
}

BOOL CutPlaceholder(char* commandLine)
{
    char* placeholder = FindText(commandLine, "\"%1\"");
    if (placeholder == NULL)
        placeholder = FindText(commandLine, "%1");
    if (placeholder == NULL)
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
