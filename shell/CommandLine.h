// Making a command line of what is registered for a type of file and of the target to open.
#pragma once

#include <afxwin.h>

namespace umbra {

/// Room for a registered command line, a blank and the target, with the terminator, in characters.
const size_t shellCommandCapacity = 528;

/// Cuts a command line off at its placeholder, "%1" in quotes or bare, with all that follows.
/// FALSE when there is none; the command line then stays whole.
BOOL CutPlaceholder(LPTSTR commandLine);

/// Puts the target behind a registered command line that stands in a buffer of `capacity`
/// characters. FALSE when the command line is empty or the result does not fit: nothing is to be
/// run then.
BOOL ComposeCommandLine(LPTSTR commandLine, size_t capacity, LPCTSTR target);

} // namespace umbra
