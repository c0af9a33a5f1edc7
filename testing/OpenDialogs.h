// The dialogs of the calling thread.
#pragma once

#include <windows.h>

#include <vector>

namespace umbra::testing {

/// A dialog box, a message box or a property sheet; also a CDialog with a window class of its own.
bool IsDialog(HWND window);
/// One of the system's own: texts, an icon and buttons, and no object of the class library.
bool IsMessageBox(HWND window);
/// Whether a user can act on it: it is shown, and no other dialog has disabled it.
bool IsOpenDialog(HWND window);

/// All top-level dialogs, the one in front first; hidden and disabled ones, too.
std::vector<HWND> FindDialogs();
/// Those that a user sees: the open ones and those that wait for another one.
std::vector<HWND> FindShownDialogs();
std::vector<HWND> FindOpenDialogs();

} // namespace umbra::testing
