#include "assist/LinkKeys.h"

#include "assist/Subclass.h"

#include "controls/HyperLink.h"
#include "controls/StaticTS.h"

namespace umbra {

namespace {

LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

Subclassing keys(ServeMessage);

const int focusGap = 1; // Pixels between the text and the focus rectangle, above and below.

/// What the two kinds of labels say of themselves.
struct Label
{
    bool isLink = false;
    UINT alignment = DT_LEFT;
};

Label Describe(HWND window)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (const auto* link = dynamic_cast<CHyperLink*>(object))
        return {link->IsLink(), DT_CENTER};
    if (const auto* label = dynamic_cast<CStaticTS*>(object))
        return {label->m_bLink != FALSE, label->m_nTextFormat & (DT_CENTER | DT_RIGHT)};
    return {};
}

bool IsLink(HWND window)
{
    return Describe(window).isLink;
}

bool Presses(WPARAM key)
{
    return key == VK_RETURN || key == VK_SPACE;
}

/// Whether the key of the message is the link's, and not the dialog's.
bool WantsMessage(LPARAM question)
{
    const auto* message = reinterpret_cast<const MSG*>(question);
    return message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
}

void UpdateTabStop(HWND window)
{
    const LONG_PTR style = ::GetWindowLongPtr(window, GWL_STYLE);
    if (IsLink(window) && (style & WS_TABSTOP) == 0)
        ::SetWindowLongPtr(window, GWL_STYLE, style | WS_TABSTOP);
}

/// The label lets its background to the page, which therefore has to be painted anew, too.
void RepaintWithBackground(HWND window)
{
    RECT area;
    const HWND page = ::GetParent(window);
    ::GetWindowRect(window, &area);
    ::MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&area), 2);
    ::InvalidateRect(page, &area, TRUE);
}

RECT FindText(HWND window, HDC dc)
{
    RECT client;
    ::GetClientRect(window, &client);
    TCHAR text[1024] = _T("");
    ::GetWindowText(window, text, _countof(text));
    RECT area = client;
    ::DrawText(dc, text, -1, &area, DT_CALCRECT | DT_WORDBREAK);
    const int room = client.right - area.right;
    const UINT alignment = Describe(window).alignment;
    ::OffsetRect(&area, alignment == DT_CENTER ? room / 2 : alignment == DT_RIGHT ? room : 0, 0);
    TEXTMETRIC metrics = {};
    ::GetTextMetrics(dc, &metrics);
    ::InflateRect(&area, metrics.tmAveCharWidth, focusGap); // Some text is wider than it measures.
    ::IntersectRect(&area, &area, &client);
    return area;
}

void DrawFocus(HWND window, HDC dc)
{
    if (::GetFocus() != window || !IsLink(window))
        return;
    const int clean = ::SaveDC(dc);
    if (const auto font = reinterpret_cast<HGDIOBJ>(::SendMessage(window, WM_GETFONT, 0, 0)))
        ::SelectObject(dc, font);
    ::SetTextColor(dc, RGB(0, 0, 0)); // The rectangle inverts by these.
    ::SetBkColor(dc, RGB(255, 255, 255));
    const RECT area = FindText(window, dc);
    ::DrawFocusRect(dc, &area);
    ::RestoreDC(dc, clean);
}

LRESULT PaintWithFocus(HWND window, WPARAM wParam, LPARAM lParam)
{
    // Only what is painted now gets its part of the rectangle, which inverts what is there.
    const HRGN painted = ::CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(window, painted, FALSE);
    const LRESULT result = keys.PassOn(window, WM_PAINT, wParam, lParam);
    if (::IsWindow(window)) {
        if (const HDC dc = ::GetDC(window)) {
            ::SelectClipRgn(dc, painted);
            DrawFocus(window, dc);
            ::ReleaseDC(window, dc);
        }
    }
    ::DeleteObject(painted);
    return result;
}

/// As the mouse would, in the middle of the label.
void Press(HWND window)
{
    RECT client;
    ::GetClientRect(window, &client);
    ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON,
                  MAKELPARAM(client.right / 2, client.bottom / 2));
}

LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result;
    switch (message) {
    case WM_GETDLGCODE:
        result = keys.PassOn(window, message, wParam, lParam);
        return IsLink(window) && WantsMessage(lParam) ? result | DLGC_WANTMESSAGE : result;
    case WM_KEYDOWN:
        if (!IsLink(window) || !Presses(wParam))
            break;
        Press(window);
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        if (IsLink(window))
            RepaintWithBackground(window);
        break;
    case WM_PAINT:
        if (::GetFocus() == window)
            return PaintWithFocus(window, wParam, lParam);
        break;
    case WM_PRINTCLIENT:
        result = keys.PassOn(window, message, wParam, lParam);
        DrawFocus(window, reinterpret_cast<HDC>(wParam));
        return result;
    case WM_SETFONT: // What a label does that becomes a link.
        result = keys.PassOn(window, message, wParam, lParam);
        UpdateTabStop(window);
        return result;
    }
    return keys.PassOn(window, message, wParam, lParam);
}

} // namespace

void ServeLink(HWND label)
{
    keys.Serve(label);
    UpdateTabStop(label);
}

} // namespace umbra
