#include "shell/ShellOpen.h"

#include "shell/CommandLine.h"
#include "shell/ProgramStart.h"

#include <shellapi.h>
#include <tchar.h>

namespace {

const UINT lastShellFailure = 32; // Results up to this one are errors.
const TCHAR openVerb[] = _T("\\shell\\open\\command");

/// The open command registered for files of the extension; FALSE when a key is missing.
BOOL ReadOpenCommand(LPCTSTR extension, TCHAR (&command)[umbra::shellCommandCapacity])
{
    if (QueryRegistryDefault(HKEY_CLASSES_ROOT, extension, command) != ERROR_SUCCESS)
        return FALSE;
    _tcscat(command, openVerb);
    return QueryRegistryDefault(HKEY_CLASSES_ROOT, command, command) == ERROR_SUCCESS;
}

} // namespace

LONG QueryRegistryDefault(HKEY root, LPCTSTR subKey, LPTSTR out)
{
    HKEY key;
    const LONG opened = ::RegOpenKeyEx(root, subKey, 0, KEY_QUERY_VALUE, &key);
    if (opened != ERROR_SUCCESS)
        return opened;

    TCHAR value[MAX_PATH] = _T("");
    LONG size = sizeof(value); // Bytes.
    const LONG read = ::RegQueryValue(key, nullptr, value, &size);
    // The registry does not promise a terminator; a value that fills the buffer without one is cut.
    const BOOL whole = read == ERROR_SUCCESS && _tcsnlen(value, MAX_PATH) < MAX_PATH;
    _tcscpy(out, whole ? value : _T(""));
    ::RegCloseKey(key);
    return opened;
}

UINT ShellOpen(LPCTSTR target, int showCommand, LPCTSTR extension)
{
    // The shell's result is a number of 32 bits, whatever its type says.
    const UINT shellResult = static_cast<UINT>(reinterpret_cast<UINT_PTR>(
        ::ShellExecute(nullptr, _T("open"), target, nullptr, nullptr, showCommand)));
    if (shellResult > lastShellFailure)
        return shellResult;

    TCHAR command[umbra::shellCommandCapacity];
    if (!ReadOpenCommand(extension, command) ||
        !umbra::ComposeCommandLine(command, _countof(command), target)) {
        TRACE(_T("Umbra: '%.260s' cannot be opened, nor can a program for %s files.\n"), target,
              extension);
        return shellResult;
    }
    return umbra::StartProgram(command, showCommand);
}
