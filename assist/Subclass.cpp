#include "assist/Subclass.h"

namespace umbra {

BOOL Subclassing::Serve(HWND window) const
{
    if (Serves(window))
        return TRUE;
    const auto previous = reinterpret_cast<HANDLE>(::GetWindowLongPtr(window, GWLP_WNDPROC));
    if (previous == nullptr || !::SetProp(window, name, previous))
        return FALSE;
    ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return TRUE;
}

bool Subclassing::Serves(HWND window) const
{
    return ::GetProp(window, name) != nullptr;
}

LRESULT Subclassing::PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const
{
    const auto previous =
        reinterpret_cast<WNDPROC>(reinterpret_cast<LONG_PTR>(::GetProp(window, name)));
    if (message == WM_NCDESTROY)
        ::RemoveProp(window, name);
    return ::CallWindowProc(previous, window, message, wParam, lParam);
}

} // namespace umbra
