#include "windows/WindowCreation.h"

#include "threads/SystemCall.h"
#include "threads/ThreadState.h"
#include "windows/WindowMessages.h"

#include <classes/CWnd.h>

namespace afxint {

namespace {

/// The system makes windows for input methods while it makes the first window of a thread.
bool IsInputMethodWindow(HWND window, const CREATESTRUCT& create)
{
    if ((GetClassLongPtr(window, GCL_STYLE) & CS_IME) != 0)
        return true;
    // Not every system marks the class of its own.
    return !IS_INTRESOURCE(create.lpszClass) && lstrcmpi(create.lpszClass, _T("IME")) == 0;
}

} // namespace

WindowCreation::WindowCreation(CWnd* object)
    : object_(object), hook_(SetWindowsHookEx(WH_CBT, &OnHook, NULL, GetCurrentThreadId())),
      outer_(CurrentThread().creation)
{
    if (IsReady())
        CurrentThread().creation = this;
}

WindowCreation::~WindowCreation()
{
    StopWaiting();
}

CWnd* WindowCreation::AwaitedObject()
{
    const WindowCreation* creation = CurrentThread().creation;
    return creation == NULL ? NULL : creation->object_;
}

bool WindowCreation::Finish(HWND window)
{
    StopWaiting();
    if (window_ == NULL)
        return false;
    if (window != NULL || CWnd::FromHandlePermanent(window_) != object_)
        return true;
    // The window vanished without WM_NCDESTROY.
    WindowMessages::Forget(object_);
    return false;
}

LRESULT CALLBACK WindowCreation::OnHook(int code, WPARAM wParam, LPARAM lParam)
{
    WindowCreation* creation = CurrentThread().creation;
    if (code != HCBT_CREATEWND || creation == NULL)
        return CallNextHookEx(NULL, code, wParam, lParam);
    const auto* details = reinterpret_cast<CBT_CREATEWND*>(lParam);
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (IsInputMethodWindow(window, *details->lpcs))
        return CallNextHookEx(NULL, code, wParam, lParam);

    CWnd* object = creation->object_;
    creation->StopWaiting();
    MSG message{};
    message.hwnd = window;
    message.message = WM_CREATE; // An exception fails the creation, as one in that handler does.
    if (!CalledBySystem(message, false, [&] { return WindowMessages::TakeOver(object, window); }))
        return 1; // No window.
    creation->window_ = window;
    return CallNextHookEx(NULL, code, wParam, lParam);
}

void WindowCreation::StopWaiting()
{
    if (hook_ == NULL)
        return;
    UnhookWindowsHookEx(hook_);
    hook_ = NULL;
    CurrentThread().creation = outer_;
}

INT_PTR CALLBACK DialogProcedure(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

} // namespace afxint
