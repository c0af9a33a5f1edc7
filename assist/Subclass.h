// A procedure in front of a window's own, until the window goes.
#pragma once

#include <windows.h>

namespace umbra {

/// A kind of subclassing: the procedure, and a name of its own for what it remembers in a window.
/// (The system's own way of subclassing would load the common controls with every page.)
struct Subclassing
{
    LPCTSTR name;
    WNDPROC procedure;

    /// Puts the procedure in front of the window's present one; a second time changes nothing. FALSE:
    /// there is too little memory.
    BOOL Serve(HWND window) const;
    bool Serves(HWND window) const;
    /// Gives the message to the previous procedure; with the window's last one the tie is cut.
    LRESULT PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const;
};

} // namespace umbra
