// Opening web addresses, documents and files as the user's shell does, with a fallback.
#pragma once

#include <afxwin.h>

/// Room for a registered command line, a blank and the target, with the terminator.
const size_t shellCommandCapacity = 528;

/// Reads the default value of a registry key into `out`, which has room for MAX_PATH characters
/// and may be the same buffer as `subKey`. Answers the error code of opening the key; `out` is
/// touched only when that is ERROR_SUCCESS. A value that cannot be read is empty.
AFX_EXT_API LONG QueryRegistryDefault(HKEY root, const char* subKey, char* out);

/// Opens the target through the shell. Where the shell fails (a result of 32 or less), runs the
/// program that is registered for files of `extension` with the target appended, unquoted.
/// Answers the result of WinExec when that program was run, else the shell's. Never says anything.
AFX_EXT_API UINT ShellOpen(const char* target, int showCommand, const char* extension);

/// Cuts a command line off at its placeholder, "%1" in quotes or bare, with all that follows.
/// FALSE when there is none; the command line then stays whole.
AFX_EXT_API BOOL CutPlaceholder(char* commandLine);

/// Puts the target behind a registered command line that stands in a buffer of `capacity`
/// characters. FALSE when the command line is empty or the result does not fit: nothing is to be
/// run then.
AFX_EXT_API BOOL ComposeCommandLine(char* commandLine, size_t capacity, const char* target);
