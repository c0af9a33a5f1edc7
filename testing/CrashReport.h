// Tells where a program crashed or hangs, without a debugger.
#pragma once

#include <windows.h>

namespace umbra::testing {

/// The exit codes of programs that were ended by a report. A shell sees the same numbers.
constexpr UINT crashExitCode = 197;
constexpr UINT hangExitCode = 198;

/// From now on an unhandled exception, abort, a call of a pure virtual function or an exception
/// that nobody catches writes to stderr what happened and the calls that led there, as module
/// names with offsets, and ends the process with crashExitCode.
void InstallCrashReport();

/// What the program is busy with, written in front of a report. The text is not copied.
void SetCrashContext(const char* text);

/// Ends the process with hangExitCode and the calling thread's stack, when that long has passed.
void LimitRunTime(DWORD milliseconds);

} // namespace umbra::testing
