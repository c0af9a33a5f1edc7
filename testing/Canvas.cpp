#include "testing/Canvas.h"

namespace umbra::testing {

Canvas::Canvas(int width, int height, COLORREF background) : width_(width), height_(height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // Rows from the top.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    dc_ = ::CreateCompatibleDC(nullptr);
    bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    previous_ = ::SelectObject(dc_, bitmap_);
    Fill(background);
}

Canvas::~Canvas()
{
    ::SelectObject(dc_, previous_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(dc_);
}

void Canvas::Fill(COLORREF color)
{
    const RECT all{0, 0, width_, height_};
    HBRUSH brush = ::CreateSolidBrush(color);
    ::FillRect(dc_, &all, brush);
    ::DeleteObject(brush);
}

Picture Canvas::ToPicture() const
{
    ::GdiFlush();
    return Picture::OfBitmap(bitmap_);
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
