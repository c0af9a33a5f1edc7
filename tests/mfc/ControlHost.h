// A window to put controls on, and what it hears from them.
#pragma once

#include <afxcmn.h>

#include "testing/Pump.h"

#include <algorithm>
#include <string>
#include <vector>

/// A visible top-level window. Its controls are destroyed before it or with it.
class ControlHost : public CWnd
{
public:
    ControlHost()
    {
        const LPCTSTR windowClass =
            AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW), (HBRUSH)(COLOR_BTNFACE + 1));
        CreateEx(0, windowClass, _T("Control host"), WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 40,
                 40, 420, 320, NULL, NULL);
    }

    /// The WM_COMMAND and WM_NOTIFY codes that came, in their order.
    std::vector<UINT> codes;
    /// The WM_HSCROLL and WM_VSCROLL codes that came.
    std::vector<UINT> scrolls;

    bool Heard(UINT code) const { return Contains(codes, code); }
    bool Scrolled(UINT code) const { return Contains(scrolls, code); }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        codes.push_back(HIWORD(wParam));
        return CWnd::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        codes.push_back(((NMHDR*)lParam)->code);
        return CWnd::OnNotify(wParam, lParam, pResult);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL || message == WM_VSCROLL)
            scrolls.push_back(LOWORD(wParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    static bool Contains(const std::vector<UINT>& values, UINT value)
    {
        return std::find(values.begin(), values.end(), value) != values.end();
    }
};

/// A click with messages alone, for controls that wait for the end of the click in a loop of
/// their own.
inline void ClickWaitingControl(HWND control, CPoint client)
{
    ::PostMessage(control, WM_LBUTTONUP, 0, MAKELPARAM(client.x, client.y));
    ::SendMessage(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.x, client.y));
    umbra::testing::PumpMessages();
}

/// The style of a child that shows.
constexpr DWORD shownChild = WS_CHILD | WS_VISIBLE;

/// Item data as wide as a pointer.
constexpr auto wideItemData = static_cast<DWORD_PTR>(0x123456789abcull);
