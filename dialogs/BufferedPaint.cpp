#include "dialogs/BufferedPaint.h"

#include "controls/BufferTarget.h"
#include "controls/HyperLink.h"
#include "controls/MemoryCanvas.h"
#include "controls/ShadeButton.h"
#include "controls/StaticTS.h"

#include <afxtempl.h>

#include <utility>

namespace umbra {

namespace {

/// Copies a part of one context to a place in another one.
void Copy(CDC& target, const CPoint& place, CDC& source, const CRect& part)
{
    target.BitBlt(place.x, place.y, part.Width(), part.Height(), &source, part.left, part.top,
                  SRCCOPY);
}

struct Control
{
    HWND window;
    CRect area;           ///< Its client area, in the page's coordinates.
    bool isDrawn = false; ///< Into the buffer.
};

/// Whether the control can draw itself into any context as it does on the screen.
bool DrawsAnywhere(HWND control)
{
    const CWnd* object = CWnd::FromHandlePermanent(control);
    return dynamic_cast<const CxShadeButton*>(object) != nullptr ||
           dynamic_cast<const CStaticTS*>(object) != nullptr ||
           dynamic_cast<const CHyperLink*>(object) != nullptr;
}

CRect AreaOf(HWND control, const CWnd& page)
{
    CRect area;
    ::GetClientRect(control, &area);
    ::MapWindowPoints(control, page.GetSafeHwnd(), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

using Controls = CArray<Control, const Control&>;

/// The visible controls with a part of the region, the one that is painted last at the front.
void FindControls(Controls& controls, const CRgn& region, const CWnd& page)
{
    for (HWND window = ::GetTopWindow(page.GetSafeHwnd()); window != nullptr;
         window = ::GetWindow(window, GW_HWNDNEXT)) {
        const CRect area = AreaOf(window, page);
        if (::IsWindowVisible(window) && region.RectInRegion(area))
            controls.Add({window, area});
    }
}

/// Has the control draw itself over what is there, in a canvas where it begins at the origin, as it
/// does on the screen: some systems clip a button as if it could be nowhere else.
void DrawControl(CDC& page, CDC& canvas, const Control& control)
{
    const int clean = canvas.SaveDC();
    Copy(canvas, CPoint(0, 0), page, control.area);
    canvas.IntersectClipRect(0, 0, control.area.Width(), control.area.Height());
    const HDC context = canvas.GetSafeHdc();
    const ScopedBufferTarget named(context);
    ::SendMessage(control.window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT);
    canvas.RestoreDC(clean);
    Copy(page, control.area.TopLeft(), canvas, CRect(CPoint(0, 0), control.area.Size()));
}

/// Tells the system that the control, or the page with all its controls, has been painted there.
void TellPainted(CWnd& page, CRgn& updated)
{
    page.RedrawWindow(nullptr, &updated,
                      RDW_VALIDATE | RDW_NOERASE | RDW_NOFRAME | RDW_ALLCHILDREN);
}

void TellPainted(const Control& control, CRgn& updated)
{
    CRgn own;
    own.CreateRectRgn(0, 0, 0, 0);
    own.CopyRgn(&updated);
    own.OffsetRgn(-control.area.left, -control.area.top);
    ::ValidateRgn(control.window, own);
}

} // namespace

bool BufferedPaint::PutsErasingOff(const CWnd& page, HDC dc)
{
    if (m_erases || ::WindowFromDC(dc) != page.GetSafeHwnd())
        return false;
    m_putOff = true;
    return true;
}

void BufferedPaint::Paint(CWnd& page)
{
    CRgn updated;
    updated.CreateRectRgn(0, 0, 0, 0);
    page.GetUpdateRgn(&updated);
    CPaintDC screen(&page);
    const bool erases = std::exchange(m_putOff, false);
    const CRect part(screen.m_ps.rcPaint);
    if (part.IsRectEmpty())
        return;

    MemoryCanvas buffer(screen, part.Size());
    CDC& target = buffer.IsReady() ? buffer.Dc() : screen;
    if (buffer.IsReady()) {
        Copy(target, CPoint(0, 0), screen, part); // What is not erased shows through.
        target.SetViewportOrg(-part.left, -part.top);
        target.SetBrushOrg(-part.left, -part.top);
    }
    const int clean = target.SaveDC();
    const WPARAM context = reinterpret_cast<WPARAM>(target.GetSafeHdc());
    if (erases) {
        m_erases = true;
        page.SendMessage(WM_ERASEBKGND, context);
        m_erases = false;
    }
    page.SendMessage(WM_PRINTCLIENT, context, PRF_CLIENT);
    target.RestoreDC(clean);
    DrawControls(page, target, updated);
    if (buffer.IsReady())
        Copy(screen, part.TopLeft(), target, part);
}

void BufferedPaint::DrawControls(CWnd& page, CDC& dc, CRgn& updated)
{
    if ((page.GetStyle() & WS_CLIPCHILDREN) != 0)
        return; // The screen's context leaves the controls out.
    Controls controls;
    FindControls(controls, updated, page);
    CSize largest(1, 1);
    for (int i = 0; i < controls.GetCount(); ++i) {
        largest.cx = max(largest.cx, controls[i].area.Width());
        largest.cy = max(largest.cy, controls[i].area.Height());
    }
    MemoryCanvas canvas(dc, largest);
    if (!canvas.IsReady())
        return;
    // A button that is held may have to change its state first: it paints itself.
    const HWND held = ::GetCapture();
    bool all = true;
    for (int i = static_cast<int>(controls.GetCount()) - 1; i >= 0; --i) {
        Control& control = controls[i];
        control.isDrawn = control.window != held && DrawsAnywhere(control.window);
        all = all && control.isDrawn;
        if (control.isDrawn)
            DrawControl(dc, canvas.Dc(), control);
    }
    if (all) {
        TellPainted(page, updated); // In one go.
        return;
    }
    for (int i = 0; i < controls.GetCount(); ++i) {
        if (controls[i].isDrawn)
            TellPainted(controls[i], updated);
    }
}

} // namespace umbra
