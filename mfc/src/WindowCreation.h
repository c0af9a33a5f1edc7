// Ties a new system window to its object before the window's first message.
#pragma once

#include <classes/Platform.h>

class CWnd;

namespace afxint {

/// Attaches an object to the first window that the calling thread creates while this lives, as
/// SubclassWindow would.
class WindowCreation
{
public:
    explicit WindowCreation(CWnd* object);
    ~WindowCreation();
    WindowCreation(const WindowCreation&) = delete;
    WindowCreation& operator=(const WindowCreation&) = delete;

    /// Stops waiting. False when no window came; the object's PostNcDestroy is then still to be
    /// called, while after true it may have been called, and the object be gone.
    bool Finish();

private:
    CWnd* outerObject_;
    HHOOK outerHook_;
    bool finished_ = false;
};

/// The dialog procedure of every dialog with an object. It leaves all to the object, which sees
/// the messages first.
INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace afxint
