#include "gallery/GridView.h"

#include "gallery/GalleryPage.h"

BEGIN_MESSAGE_MAP(CGridView, CStatic)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

const int largestScale = 16; // Screen pixels for one pixel.
const int closestLines = 3;  // Screen pixels between grid lines; closer ones are left out.
const int unitsAcross = 4;   // Dialog units in a horizontal base, each fourth line is a strong one;
const int unitsDown = 8;     // and in a vertical base.

int Scaled(int pixels, double scale)
{
    return static_cast<int>(pixels * scale);
}

CRect Scaled(const CRect& place, double scale)
{
    return CRect(Scaled(place.left, scale), Scaled(place.top, scale), Scaled(place.right, scale),
                 Scaled(place.bottom, scale));
}

} // namespace

void CGridView::Show(const CRect& rectangle, const CRect& outline, COLORREF color, CSize extent)
{
    m_rectangle = rectangle;
    m_outline = outline;
    m_color = color;
    m_extent = extent;
    Invalidate(FALSE);
}

BOOL CGridView::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CGridView::OnPaint()
{
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    CDC memory;
    CBitmap bitmap;
    memory.CreateCompatibleDC(&paint);
    bitmap.CreateCompatibleBitmap(&paint, client.Width(), client.Height());
    CBitmap* before = memory.SelectObject(&bitmap);
    DrawView(memory, client);
    paint.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(before);
}

// A whole number of screen pixels for each pixel, unless the extent is too large for that.
double CGridView::Scale(const CRect& client) const
{
    const double across =
        static_cast<double>(client.Width()) / max(1, static_cast<int>(m_extent.cx));
    const double down =
        static_cast<double>(client.Height()) / max(1, static_cast<int>(m_extent.cy));
    const double scale = min(across, down);
    return scale < 1 ? scale : min(largestScale, static_cast<int>(scale));
}

void CGridView::DrawView(CDC& dc, const CRect& client)
{
    dc.FillSolidRect(&client, palette::paper);
    const double scale = Scale(client);
    DrawGrid(dc, client, scale);

    const CRect place = Scaled(m_rectangle, scale);
    CBrush frame(m_color);
    CRect edge = place;
    for (int i = 0; i < 2; ++i) {
        dc.FrameRect(&edge, &frame);
        edge.DeflateRect(1, 1);
    }
    if (!m_outline.IsRectEmpty())
        DrawOutline(dc, Scaled(m_outline, scale));

    CBrush border(palette::line);
    dc.FrameRect(&client, &border);
}

void CGridView::DrawGrid(CDC& dc, const CRect& client, double scale)
{
    UINT horizontal = 0;
    UINT vertical = 0;
    GetFontBaseUnits(&horizontal, &vertical);
    const DialogUnits::Base base = {horizontal, vertical};
    const double across = horizontal * scale;
    const double down = vertical * scale;
    // Nothing could be measured, or no line would have room: it would go on for ever.
    if (across == 0 || down == 0 || (across < closestLines && down < closestLines))
        return;
    for (int unit = 0;; ++unit) {
        const DialogUnits::Box at = DialogUnits::ToPixels({unit, unit, 0, 0}, base);
        const int x = Scaled(at.x, scale);
        const int y = Scaled(at.y, scale);
        if (x >= client.Width() && y >= client.Height())
            return;
        const bool strongAcross = unit % unitsAcross == 0;
        const bool strongDown = unit % unitsDown == 0;
        if (across >= (strongAcross ? closestLines : closestLines * unitsAcross))
            dc.FillSolidRect(x, 0, 1, client.Height(),
                             strongAcross ? palette::line : palette::faintLine);
        if (down >= (strongDown ? closestLines : closestLines * unitsDown))
            dc.FillSolidRect(0, y, client.Width(), 1,
                             strongDown ? palette::line : palette::faintLine);
    }
}

void CGridView::DrawOutline(CDC& dc, CRect place)
{
    CPen dashes(PS_DOT, 1, palette::ember);
    CPen* pen = dc.SelectObject(&dashes);
    CGdiObject* brush = dc.SelectStockObject(NULL_BRUSH);
    dc.SetBkMode(TRANSPARENT);
    dc.Rectangle(&place);
    dc.SelectObject(static_cast<CBrush*>(brush));
    dc.SelectObject(pen);
}
