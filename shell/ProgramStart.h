// Starting the program that a command line names.
#pragma once

#include <afxwin.h>

namespace umbra {

/// Runs the command line as WinExec does, and answers as that does: more than 31 when the program
/// has started, else an error code.
UINT StartProgram(LPTSTR commandLine, int showCommand);

} // namespace umbra
