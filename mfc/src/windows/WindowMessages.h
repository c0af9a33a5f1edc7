// The window procedure of all windows with an object.
#pragma once

#include <classes/Platform.h>

class CWnd;

namespace afxint {

class WindowMessages
{
public:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    /// Attaches the object and routes the window's messages to it. False when the system refuses.
    static bool TakeOver(CWnd* object, HWND window);
    /// Gives the window its previous procedure back, or keeps that for it when somebody else has
    /// put his own in front.
    static void GiveBack(HWND window, WNDPROC former);
    /// Leaves the previous procedure with a window whose object goes while ours stays in place.
    static void KeepFormer(HWND window, WNDPROC former);
    static WNDPROC TakeKeptFormer(HWND window);
    /// Cuts the tie between object and window, without a word to either.
    static void Forget(CWnd* object);
};

} // namespace afxint
