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

    /// False when no window can be tied to the object; then none is to be made.
    bool IsReady() const { return hook_ != NULL; }
    /// The object that waits for its window in the calling thread; NULL when none does.
    static CWnd* AwaitedObject();
    /// Stops waiting; `window` is what the system's function returned. False when the object has no
    /// window and nobody has called its PostNcDestroy yet. The object may be gone otherwise.
    bool Finish(HWND window);

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    void StopWaiting();

    CWnd* object_;
    HWND window_ = NULL; ///< The window that came.
    HHOOK hook_;
    WindowCreation* outer_;
};

/// Width or height of a window. It wraps round, so that a side that starts at CW_USEDEFAULT and
/// ends at 0 has the extent CW_USEDEFAULT.
inline int Extent(LONG from, LONG to)
{
    return static_cast<int>(static_cast<ULONG>(to) - static_cast<ULONG>(from));
}

/// The dialog procedure of every dialog with an object. It leaves all to the object, which sees
/// the messages first.
INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace afxint
