#include "shell/ShellOpen.h"

#include "shell/CommandLine.h"

#include <shellapi.h>
#include <string.h>

namespace {

const UINT lastShellFailure = 32; // Results up to this one are errors.
const char openVerb[] = "\\shell\\open\\command";

/// The open command registered for files of the extension; FALSE when a key is missing.
BOOL ReadOpenCommand(const char* extension, char (&command)[umbra::shellCommandCapacity])
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
    const LONG read = ::RegQueryValue(key, nullptr, value, &size);
    // The registry does not promise a terminator; a value that fills the buffer without one is cut.
    const BOOL whole = read == ERROR_SUCCESS && memchr(value, '\0', MAX_PATH) != nullptr;
    strcpy(out, whole ? value : "");
    ::RegCloseKey(key);
    return opened;
}

UINT ShellOpen(const char* target, int showCommand, const char* extension)
{
    // The shell's result is a number of 32 bits, whatever its type says.
    const UINT shellResult = static_cast<UINT>(reinterpret_cast<UINT_PTR>(
        ::ShellExecute(nullptr, "open", target, nullptr, nullptr, showCommand)));
    if (shellResult > lastShellFailure)
        return shellResult;

    char command[umbra::shellCommandCapacity];
    if (!ReadOpenCommand(extension, command) ||
        !umbra::ComposeCommandLine(command, sizeof(command), target)) {
        TRACE("Umbra: '%.260s' cannot be opened, nor can a program for %s files.\n", target,
              extension);
        return shellResult;
    }
    return ::WinExec(command, showCommand);
}
