// A window for controls to act on, made by calls of the test program's own, so that no failing call
// of the toolkit or of the class library reaches it.
#pragma once

#include "tests/Folders.h"

#include <afxwin.h>

/// One of the toolkit's images.
inline CString ImageFile(LPCTSTR name)
{
    return ImagePath(name).c_str();
}

/// A visible top-level window of the system, which the class library takes over as it can.
class Stage : public CWnd
{
public:
    Stage()
        : m_window(::CreateWindowEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, _T("#32770"), _T(""),
                                    WS_POPUP | WS_VISIBLE, 40, 40, 300, 200, nullptr, nullptr,
                                    nullptr, nullptr))
    {
        SubclassWindow(m_window);
    }
    ~Stage() override { Close(); }

    HWND Add(LPCTSTR className, LPCTSTR text, DWORD style, const CRect& place)
    {
        const HWND control = ::CreateWindow(
            className, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top, place.Width(),
            place.Height(), m_window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(++m_lastId)),
            nullptr, nullptr);
        ::SendMessage(control, WM_SETFONT,
                      reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        return control;
    }
    HWND AddLabel(LPCTSTR text = _T("A text"))
    {
        return Add(_T("Static"), text, SS_NOTIFY, CRect(20, 20, 140, 60));
    }
    HWND AddButton(DWORD style, int top = 20)
    {
        return Add(_T("Button"), _T("&Go on"), WS_TABSTOP | style, CRect(20, top, 140, top + 40));
    }

    void Show() { Paint(m_window); }
    /// Destroys the window, before the objects of its controls go.
    void Close()
    {
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
    }

    static void Paint(HWND window)
    {
        ::RedrawWindow(window, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    /// Puts the pointer over the control, or off it, and tells it so.
    static void MovePointer(HWND window, POINT client)
    {
        POINT screen = client;
        ::ClientToScreen(window, &screen);
        ::SetCursorPos(screen.x, screen.y);
        SendMouse(window, WM_MOUSEMOVE, client);
    }
    static LRESULT SendMouse(HWND window, UINT message, POINT client)
    {
        return ::SendMessage(window, message, MK_LBUTTON, MAKELPARAM(client.x, client.y));
    }
    static void Hover(HWND window)
    {
        ::SendMessage(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                      MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        MovePointer(window, inside);
        Paint(window);
        ::SendMessage(window, WM_MOUSELEAVE, 0, 0);
        SendMouse(window, WM_MOUSEMOVE, inside);
    }
    static void HoverAndPress(HWND window)
    {
        Hover(window);
        SendMouse(window, WM_LBUTTONDOWN, inside);
        Paint(window);
        SendMouse(window, WM_LBUTTONUP, inside);
        Paint(window);
    }

    static constexpr POINT inside = {6, 6};
    static constexpr POINT outside = {-10, -10};

private:
    HWND m_window;
    int m_lastId = 100;
};
