// Opening web addresses, documents and files as the user's shell does, with a fallback.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

/// Reads the default value of a registry key into `out`, which has room for MAX_PATH characters
/// and may be the same buffer as `subKey`. Answers the error code of opening the key; `out` is
/// touched only when that is ERROR_SUCCESS. A value that cannot be read is empty.
UMBRA_API LONG QueryRegistryDefault(HKEY root, LPCTSTR subKey, LPTSTR out);

/// Opens the target through the shell. Where the shell fails (a result of 32 or less), runs the
/// program that is registered for files of `extension` with the target appended, unquoted.
/// Answers the result of WinExec, or what stands for it, when that program was run, else the
/// shell's. Never says anything.
UMBRA_API UINT ShellOpen(LPCTSTR target, int showCommand, LPCTSTR extension);
