#include "gallery/Pointer.h"

namespace {

const DWORD settleTime = 60; // Milliseconds.

void SendButton(DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
    Settle(settleTime);
}

} // namespace

void Settle(DWORD milliseconds)
{
    const DWORD start = ::GetTickCount();
    for (;;) {
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&message);
            ::DispatchMessage(&message);
        }
        const DWORD passed = ::GetTickCount() - start;
        if (passed >= milliseconds)
            return;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

void PointAt(const CWnd& window)
{
    CRect place;
    window.GetWindowRect(&place);
    const CPoint middle = place.CenterPoint();
    ::SetCursorPos(middle.x, middle.y);
    Settle(settleTime);
}

void PointAway()
{
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    Settle(settleTime);
}

void PressPointer()
{
    SendButton(MOUSEEVENTF_LEFTDOWN);
}

void ReleasePointer()
{
    SendButton(MOUSEEVENTF_LEFTUP);
}

void Click(const CWnd& window)
{
    PointAt(window);
    PressPointer();
    ReleasePointer();
}
