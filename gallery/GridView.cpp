#include "GridView.h"

#include "GalleryPage.h"

BEGIN_MESSAGE_MAP(CGridView, CStatic)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

const int largestScale = 16; // Screen pixels for one pixel.
const int closestLines = 3;  // Screen pixels between grid lines; closer ones are left out.
const int unitsAcross = 4;   // Dialog units in a horizontal base, each fourth line is a strong one;
const int unitsDown = 8;     // and in a vertical base.

CRect Enlarge(const CRect& place, int scale)
{
    return CRect(place.left * scale, place.top * scale, place.right * scale, place.bottom * scale);
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

int CGridView::Scale(const CRect& client) const
{
    const int across = client.Width() / max(1, static_cast<int>(m_extent.cx));
    const int down = client.Height() / max(1, static_cast<int>(m_extent.cy));
    return max(1, min(largestScale, min(across, down)));
}

void CGridView::DrawView(CDC& dc, const CRect& client)
{
    dc.FillSolidRect(&client, palette::paper);
    const int scale = Scale(client);
    DrawGrid(dc, client, scale);

    const CRect place = Enlarge(m_rectangle, scale);
    CBrush frame(m_color);
    CRect edge = place;
    for (int i = 0; i < 2; ++i) {
        dc.FrameRect(&edge, &frame);
        edge.DeflateRect(1, 1);
    }
    if (!m_outline.IsRectEmpty())
        DrawOutline(dc, Enlarge(m_outline, scale));

    CBrush border(palette::line);
    dc.FrameRect(&client, &border);
}

void CGridView::DrawGrid(CDC& dc, const CRect& client, int scale)
{
    UINT horizontal = 0;
    UINT vertical = 0;
    GetFontBaseUnits(&horizontal, &vertical);
    const DialogUnits::Base base = {horizontal, vertical};
    const bool allAcross = static_cast<int>(horizontal) * scale >= closestLines * unitsAcross;
    const bool allDown = static_cast<int>(vertical) * scale >= closestLines * unitsDown;
    const int last = max(client.Width(), client.Height());
    for (int unit = 0; unit <= last; ++unit) {
        const DialogUnits::Box at = DialogUnits::ToPixels({unit, unit, 0, 0}, base);
        const bool strongAcross = unit % unitsAcross == 0;
        const bool strongDown = unit % unitsDown == 0;
        if (at.x * scale < client.Width() && (strongAcross || allAcross))
            dc.FillSolidRect(at.x * scale, 0, 1, client.Height(),
                             strongAcross ? palette::line : palette::faintLine);
        if (at.y * scale < client.Height() && (strongDown || allDown))
            dc.FillSolidRect(0, at.y * scale, client.Width(), 1,
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
