#include "shell/ProgramStart.h"

namespace umbra {

#ifdef UNICODE

namespace {

const UINT started = 33; // Any number above the errors.

/// The error codes that WinExec has.
UINT OldErrorOf(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_FORMAT:
        return error;
    case ERROR_BAD_EXE_FORMAT:
        return ERROR_BAD_FORMAT;
    default:
        return 0;
    }
}

} // namespace

UINT StartProgram(LPTSTR commandLine, int showCommand)
{
    // WinExec takes narrow text only.
    STARTUPINFO start = {};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = static_cast<WORD>(showCommand);
    PROCESS_INFORMATION program = {};
    if (!::CreateProcess(nullptr, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                         &program))
        return OldErrorOf(::GetLastError());
    ::WaitForInputIdle(program.hProcess, 30000); // As WinExec does.
    ::CloseHandle(program.hThread);
    ::CloseHandle(program.hProcess);
    return started;
}

#else

UINT StartProgram(LPTSTR commandLine, int showCommand)
{
    return ::WinExec(commandLine, showCommand);
}

#endif

} // namespace umbra
