#include "assist/RadioButtonKeys.h"

#include "assist/Subclass.h"

#include "controls/DialogGroup.h"
#include "controls/ShadeButton.h"

namespace umbra {

namespace {

LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

Subclassing keys(ServeMessage);

bool IsServed(HWND window)
{
    return keys.Serves(window);
}

bool IsChecked(HWND button)
{
    return ::SendMessage(button, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void SetTabStop(HWND button, bool stops)
{
    const LONG_PTR style = ::GetWindowLongPtr(button, GWL_STYLE);
    const LONG_PTR wanted = stops ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP};
    if (wanted != style)
        ::SetWindowLongPtr(button, GWL_STYLE, wanted);
}

bool BeginsGroup(HWND button)
{
    return (::GetWindowLongPtr(button, GWL_STYLE) & WS_GROUP) != 0;
}

/// Where Tab stops: at the checked button, or at the first where none is checked.
HWND FindTabStop(HWND button)
{
    HWND checked = IsChecked(button) ? button : nullptr;
    HWND first = button;
    ForEachOtherOfGroup(button, [&](HWND other) {
        if (!IsServed(other))
            return;
        if (checked == nullptr && IsChecked(other))
            checked = other;
        if (BeginsGroup(other))
            first = other;
    });
    return checked != nullptr ? checked : first;
}

void KeepOneTabStop(HWND button)
{
    const HWND stop = FindTabStop(button);
    SetTabStop(button, button == stop);
    ForEachOtherOfGroup(button, [stop](HWND other) {
        if (IsServed(other))
            SetTabStop(other, other == stop);
    });
}

/// As if the key that the button itself knows had been pressed.
void PressSpace(HWND button)
{
    ::SendMessage(button, WM_KEYDOWN, VK_SPACE, 1);
    if (::IsWindow(button))
        ::SendMessage(button, WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
}

void SelectNeighbor(HWND button, bool previous)
{
    const HWND page = ::GetParent(button);
    HWND next = button;
    HWND first = nullptr;
    do {
        next = ::GetNextDlgGroupItem(page, next, previous);
        if (next == nullptr || next == first)
            return;
        if (first == nullptr)
            first = next;
    } while (next != button && !IsServed(next));
    if (next == button)
        return;
    ::SetFocus(next);
    if (::IsWindow(next) && !IsChecked(next))
        PressSpace(next);
}

bool SelectByKey(HWND button, WPARAM key)
{
    switch (key) {
    case VK_LEFT:
    case VK_UP:
        SelectNeighbor(button, true);
        return true;
    case VK_RIGHT:
    case VK_DOWN:
        SelectNeighbor(button, false);
        return true;
    }
    return false;
}

LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_BUTTON | DLGC_RADIOBUTTON | DLGC_WANTARROWS;
    case WM_KEYDOWN:
        if (SelectByKey(window, wParam))
            return 0;
        break;
    case BM_SETCHECK:
    case WM_SHADE_UNCHECK:
        const LRESULT result = keys.PassOn(window, message, wParam, lParam);
        if (::IsWindow(window))
            KeepOneTabStop(window);
        return result;
    }
    return keys.PassOn(window, message, wParam, lParam);
}

} // namespace

void ServeRadioButton(HWND button)
{
    keys.Serve(button);
    KeepOneTabStop(button);
}

} // namespace umbra
