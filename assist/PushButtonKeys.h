// Shaded push buttons that Enter presses.
#pragma once

#include <windows.h>

namespace umbra {

/// Has a shaded push button, which the system takes for an owner-drawn one, answer as push buttons
/// do: Enter presses the one that has the focus.
void ServePushButton(HWND button);

/// Whether Enter would press that button, which ServePushButton has served.
bool IsDefaultButton(HWND button);

/// Repaints the button of a page that Enter presses while the focus is on none.
void RepaintDefaultButton(HWND page);

} // namespace umbra
