#include "assist/PushButtonKeys.h"

#include "assist/Subclass.h"


namespace umbra {

namespace {

LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

Subclassing keys(ServeMessage);

/// The button that Enter presses while the focus is on none.
HWND FindDefaultButton(HWND page)
{
    const LRESULT id = ::SendMessage(page, DM_GETDEFID, 0, 0);
    return ::GetDlgItem(page, HIWORD(id) == DC_HASDEFID ? LOWORD(id) : IDOK);
}

bool IsPushButton(HWND window)
{
    const LRESULT code = ::SendMessage(window, WM_GETDLGCODE, 0, 0);
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

bool WouldBePressed(HWND button)
{
    const HWND page = ::GetParent(button);
    const HWND focus = ::GetFocus();
    if (focus == button)
        return true;
    if (focus != nullptr && ::IsChild(page, focus) && IsPushButton(focus))
        return false;
    return button == FindDefaultButton(page);
}

bool IsPushButtonStyle(WPARAM style)
{
    return (style & BS_TYPEMASK) == BS_PUSHBUTTON || (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_BUTTON | (WouldBePressed(window) ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
    case BM_SETSTYLE:
        if (!IsPushButtonStyle(wParam))
            break;
        ::InvalidateRect(window, nullptr, FALSE);
        return 0; // It stays owner-drawn.
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        ::InvalidateRect(window, nullptr, FALSE);
        RepaintDefaultButton(::GetParent(window)); // The mark goes from there or comes back.
        break;
    }
    return keys.PassOn(window, message, wParam, lParam);
}

} // namespace

void ServePushButton(HWND button)
{
    keys.Serve(button);
}

bool IsDefaultButton(HWND button)
{
    return keys.Serves(button) && WouldBePressed(button);
}

void RepaintDefaultButton(HWND page)
{
    if (const HWND button = FindDefaultButton(page))
        ::InvalidateRect(button, nullptr, FALSE);
}

} // namespace umbra
