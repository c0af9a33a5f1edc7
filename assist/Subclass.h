// A procedure in front of a window's own, until the window goes.
#pragma once

#include <afxmt.h>
#include <afxwin.h>

#include <map>

namespace umbra {

/// A kind of subclassing, with what it knows of its windows. (The system's own way of subclassing would
/// load the common controls with every page, and a property of the window costs a call of the system's
/// for each message.)
class Subclassing
{
public:
    explicit Subclassing(WNDPROC procedure) : m_procedure(procedure) {}

    /// Puts the procedure in front of the window's present one; a second time changes nothing. FALSE:
    /// the window is gone, or there is too little memory.
    BOOL Serve(HWND window);
    bool Serves(HWND window) { return FindPrevious(window) != nullptr; }
    /// Gives the message to the previous procedure; with the window's last one the tie is cut.
    LRESULT PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    WNDPROC FindPrevious(HWND window);
    BOOL Remember(HWND window, WNDPROC previous);
    void Forget(HWND window);

    const WNDPROC m_procedure;
    CCriticalSection m_lock; ///< Pages of several threads share what is below.
    std::map<HWND, WNDPROC> m_previous;
};

} // namespace umbra
