// The end of a program whose start is timed.
#pragma once

#include <windows.h>

constexpr UINT paintedMessage =
    WM_APP + 1; ///< Posted while the page is painted for the first time.

/// Ends the program once all that the page shows is there.
inline void EndWhenPainted(HWND page)
{
    ::RedrawWindow(page, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::TerminateProcess(::GetCurrentProcess(), 0);
}
