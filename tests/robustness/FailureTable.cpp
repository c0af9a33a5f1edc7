#include "tests/robustness/FailureTable.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <span>
#include <string>

using umbra::testing::Failure;
using umbra::testing::Import;

namespace {

/// Whether an imported function is one of the tables below, which name functions that take text
/// without their last letter.
bool IsNamed(const std::string& function, const std::string& name)
{
    return function == name || function == name + "A" || function == name + "W";
}

/// What takes a message further answers whatever its receiver does.
const char* const passesMessagesOn[] = {"CallNextHookEx", "CallWindowProc", "DefWindowProc",
                                        "DispatchMessage"};

/// Locks, clocks, identities and the run-time's start and end.
const char* const cannotFail[] = {
    "AddVectoredExceptionHandler",
    "DeleteCriticalSection",
    "EnterCriticalSection",
    "GetCurrentProcess",
    "GetCurrentProcessId",
    "GetCurrentThread",
    "GetCurrentThreadId",
    "GetLastError",
    "GetSystemTimeAsFileTime",
    "GetTickCount",
    "GetTickCount64",
    "InitializeCriticalSection",
    "IsDBCSLeadByteEx",
    "IsDebuggerPresent",
    "LeaveCriticalSection",
    "OutputDebugString",
    "QueryPerformanceCounter",
    "QueryPerformanceFrequency",
    "RaiseException",
    "RtlCaptureContext",
    "RtlLookupFunctionEntry",
    "RtlUnwindEx",
    "RtlVirtualUnwind",
    "SetLastError",
    "Sleep",
    "TlsGetValue",
    "TlsSetValue",
    "VirtualProtect",
    "VirtualQuery",
    "__C_specific_handler",
    "lstrcpy",
    "lstrlen",
    "lstrcmp",
    "lstrcmpi",
    "lstrcat",
    "lstrcpyn",
};

/// What the run-time library does with memory and text, and what it tells.
const char* const cannotFailInRunTime[] = {
    "___lc_codepage_func",
    "___mb_cur_max_func",
    "__iob_func",
    "_amsg_exit",
    "_errno",
    "_initterm",
    "_ismbblead",
    "_lock",
    "_setjmp",
    "_unlock",
    "abort",
    "atoi",
    "exit",
    "free",
    "isspace",
    "localeconv",
    "longjmp",
    "memchr",
    "memcmp",
    "memcpy",
    "memmove",
    "memset",
    "strcmp",
    "strcpy",
    "strerror",
    "strlen",
    "strncmp",
    "wcscmp",
    "wcscpy",
    "wcslen",
    "wcsncmp",
};

/// A function that does not fail with NULL or FALSE.
struct KnownFailure
{
    const char* name;
    Failure failure;
};

const ULONG_PTR minusOne = static_cast<ULONG_PTR>(-1);

const KnownFailure knownFailures[] = {
    {"CreateFile", {minusOne, ERROR_FILE_NOT_FOUND}},
    {"GetBkColor", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"GetMessage", {minusOne, ERROR_INVALID_WINDOW_HANDLE}},
    {"GetNearestColor", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"GetPixel", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"GetTextColor", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"ImageList_Add", {minusOne, ERROR_NOT_ENOUGH_MEMORY}},
    {"ImageList_AddMasked", {minusOne, ERROR_NOT_ENOUGH_MEMORY}},
    {"ImageList_ReplaceIcon", {minusOne, ERROR_NOT_ENOUGH_MEMORY}},
    {"MulDiv", {minusOne, ERROR_ARITHMETIC_OVERFLOW}},
    {"OleLoadPicturePath", {static_cast<ULONG_PTR>(E_OUTOFMEMORY), ERROR_NOT_ENOUGH_MEMORY}},
    {"RegCloseKey", {ERROR_INVALID_HANDLE, ERROR_INVALID_HANDLE}},
    {"RegOpenKeyEx", {ERROR_FILE_NOT_FOUND, ERROR_FILE_NOT_FOUND}},
    {"RegQueryValue", {ERROR_MORE_DATA, ERROR_MORE_DATA}},
    {"SetBkColor", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"SetPixel", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"SetTextColor", {CLR_INVALID, ERROR_INVALID_HANDLE}},
    {"ShellExecute", {SE_ERR_OOM, ERROR_NOT_ENOUGH_MEMORY}},
    {"TlsAlloc", {TLS_OUT_OF_INDEXES, ERROR_NOT_ENOUGH_MEMORY}},
    {"WaitForMultipleObjects", {WAIT_FAILED, ERROR_INVALID_HANDLE}},
    {"WaitForSingleObject", {WAIT_FAILED, ERROR_INVALID_HANDLE}},
    {"WinExec", {ERROR_FILE_NOT_FOUND, ERROR_FILE_NOT_FOUND}},
    {"_chdir", {minusOne, ERROR_PATH_NOT_FOUND}},
    {"_wchdir", {minusOne, ERROR_PATH_NOT_FOUND}},
    {"_close", {minusOne, ERROR_INVALID_HANDLE}},
    {"_read", {minusOne, ERROR_READ_FAULT}},
};

/// A function whose failing call leaves graphics objects behind that nobody can free.
struct KnownLoss
{
    const char* name;
    int objects;
};

/// A device context keeps the bitmap that is selected. Where the system counts all it has, an icon
/// keeps two bitmaps, and a window's device context two regions.
const KnownLoss knownLosses[] = {
    {"DeleteDC", 2}, {"DeleteObject", 1}, {"DestroyCursor", 2}, {"DestroyIcon", 2},
    {"EndPaint", 3}, {"ReleaseDC", 3},    {"SelectObject", 1},
};

} // namespace

BOOL CanFail(const Import& import)
{
    for (const auto& names :
         {std::span<const char* const>(passesMessagesOn), std::span<const char* const>(cannotFail),
          std::span<const char* const>(cannotFailInRunTime)}) {
        if (std::any_of(names.begin(), names.end(),
                        [&](const char* name) { return IsNamed(import.name, name); }))
            return FALSE;
    }
    return TRUE;
}

Failure FailureOf(const Import& import)
{
    for (const KnownFailure& known : knownFailures) {
        if (IsNamed(import.name, known.name))
            return known.failure;
    }
    return {};
}

int ObjectsLostBy(const Import& import)
{
    for (const KnownLoss& known : knownLosses) {
        if (import.name == known.name)
            return known.objects;
    }
    return 0;
}
