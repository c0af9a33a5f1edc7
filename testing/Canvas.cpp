#include "testing/Canvas.h"

namespace umbra::testing {

Canvas::Canvas(int width, int height, COLORREF background) : m_width(width), m_height(height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // Rows from the top.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_dc = ::CreateCompatibleDC(nullptr);
    m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_previous = ::SelectObject(m_dc, m_bitmap);
    Fill(background);
}

Canvas::~Canvas()
{
    ::SelectObject(m_dc, m_previous);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_dc);
}

void Canvas::Fill(COLORREF color)
{
    const RECT all{0, 0, m_width, m_height};
    HBRUSH brush = ::CreateSolidBrush(color);
    ::FillRect(m_dc, &all, brush);
    ::DeleteObject(brush);
}

Picture Canvas::ToPicture() const
{
    ::GdiFlush();
    return Picture::OfBitmap(m_bitmap);
}

Picture PrintControl(HWND control, COLORREF background)
{
    RECT client{};
    ::GetClientRect(control, &client);
    Canvas canvas(client.right, client.bottom, background);
    ::SendMessage(control, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    return canvas.ToPicture();
}

Picture DrawOwnerDrawnButton(HWND button, UINT itemState, UINT itemAction, COLORREF background)
{
    RECT client{};
    ::GetClientRect(button, &client);
    Canvas canvas(client.right, client.bottom, background);
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = static_cast<UINT>(::GetDlgCtrlID(button));
    item.itemAction = itemAction;
    item.itemState = itemState;
    item.hwndItem = button;
    item.hDC = canvas.Dc();
    item.rcItem = client;
    ::SendMessage(::GetParent(button), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    return canvas.ToPicture();
}

} // namespace umbra::testing
