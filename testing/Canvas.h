// A device context in memory to paint on, and to see what was painted.
#pragma once

#include "testing/Picture.h"

namespace umbra::testing {

/// Owns a memory device context with a 32-bit bitmap selected.
class Canvas
{
public:
    Canvas(int width, int height, COLORREF background = RGB(255, 255, 255));
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    HDC Dc() const { return m_dc; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    void Fill(COLORREF color);
    Picture ToPicture() const;

private:
    int m_width;
    int m_height;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
};

/// A control's client area, painted by WM_PRINTCLIENT over the background: needs no visible
/// window. Controls that do not know the message leave the background as it is.
Picture PrintControl(HWND control, COLORREF background = RGB(255, 255, 255));

/// An owner-drawn button, painted by the WM_DRAWITEM that its parent would get, with the item
/// state given (ODS_...).
Picture DrawOwnerDrawnButton(HWND button, UINT itemState, UINT itemAction = ODA_DRAWENTIRE,
                             COLORREF background = RGB(255, 255, 255));

} // namespace umbra::testing
