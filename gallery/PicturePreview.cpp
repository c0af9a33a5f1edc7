#include "gallery/PicturePreview.h"

#include "gallery/GalleryPage.h"

BEGIN_MESSAGE_MAP(CPicturePreview, CStatic)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

const int margin = 6; // Pixels around the picture.

} // namespace

BOOL CPicturePreview::Show(const CString& path)
{
    m_picture.DeleteObject();
    if (const HBITMAP picture = LoadPictureBitmap(path))
        m_picture.Attach(picture);
    Invalidate(FALSE);
    return m_picture.GetSafeHandle() != nullptr;
}

CSize CPicturePreview::PictureSize() const
{
    BITMAP record = {};
    if (m_picture.GetSafeHandle() != nullptr)
        ::GetObject(m_picture.GetSafeHandle(), sizeof record, &record);
    return CSize(record.bmWidth, record.bmHeight);
}

BOOL CPicturePreview::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CPicturePreview::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, palette::line);
    client.DeflateRect(1, 1);
    dc.FillSolidRect(&client, palette::paper);
    if (m_picture.GetSafeHandle() != nullptr) {
        client.DeflateRect(margin, margin);
        DrawPicture(dc, client);
    }
}

void CPicturePreview::DrawPicture(CDC& dc, CRect area)
{
    const CSize full = PictureSize();
    CSize shown = full;
    if (shown.cx > area.Width()) {
        shown.cy = max(1, ::MulDiv(full.cy, area.Width(), full.cx));
        shown.cx = area.Width();
    }
    if (shown.cy > area.Height()) {
        shown.cx = max(1, ::MulDiv(full.cx, area.Height(), full.cy));
        shown.cy = area.Height();
    }
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* before = memory.SelectObject(&m_picture);
    dc.SetStretchBltMode(HALFTONE);
    dc.StretchBlt(area.left + (area.Width() - shown.cx) / 2,
                  area.top + (area.Height() - shown.cy) / 2, shown.cx, shown.cy, &memory, 0, 0,
                  full.cx, full.cy, SRCCOPY);
    memory.SelectObject(before);
}
