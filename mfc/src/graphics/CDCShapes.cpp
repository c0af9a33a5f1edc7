// Filled shapes, edges and frames, and things drawn in a state.
#include <afxwin.h>

#include "graphics/DrawingHandles.h"

using afxint::HandleOf;

namespace {

BOOL DrawAnyState(HDC dc, HBRUSH brush, DRAWSTATEPROC procedure, LPARAM data, WPARAM detail,
                  CPoint at, CSize size, UINT flags)
{
    return ::DrawState(dc, brush, procedure, data, detail, at.x, at.y, size.cx, size.cy, flags);
}

template <class Image>
LPARAM AsData(Image image)
{
    return reinterpret_cast<LPARAM>(image);
}

HBRUSH MakeHalftoneBrush()
{
    WORD rows[8];
    for (int row = 0; row < 8; ++row)
        rows[row] = row % 2 == 0 ? 0x5555 : 0xAAAA;
    const HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 1, rows);
    const HBRUSH brush = ::CreatePatternBrush(bitmap);
    ::DeleteObject(bitmap);
    return brush;
}

/// The frame of a drag rectangle as a clip region, in device units.
void MakeFrame(const CDC& dc, CRgn& frame, LPCRECT rect, SIZE thickness)
{
    CRect outer(rect);
    CRect inner(rect);
    inner.DeflateRect(thickness.cx, thickness.cy);
    inner.IntersectRect(inner, outer);
    dc.LPtoDP(&outer);
    dc.LPtoDP(&inner);
    CRgn hole;
    hole.CreateRectRgnIndirect(&inner);
    frame.CreateRectRgnIndirect(&outer);
    frame.CombineRgn(&frame, &hole, RGN_DIFF);
}

/// Inverts with the brush's pattern what lies in the region; a second time restores it.
void InvertByPattern(HDC dc, const CRgn& region, HBRUSH brush)
{
    const int saved = ::SaveDC(dc);
    RECT box;
    ::ExtSelectClipRgn(dc, region, RGN_AND);
    ::GetClipBox(dc, &box);
    ::SelectObject(dc, brush);
    ::PatBlt(dc, box.left, box.top, box.right - box.left, box.bottom - box.top, PATINVERT);
    ::RestoreDC(dc, saved);
}

} // namespace

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    static const HBRUSH brush = MakeHalftoneBrush();
    return CBrush::FromHandle(brush);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, HandleOf(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, HandleOf(pBrush));
}

void CDC::InvertRect(LPCRECT lpRect)
{
    ::InvertRect(m_hDC, lpRect);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return DrawAnyState(m_hDC, hBrush, NULL, AsData(hBitmap), 0, pt, size, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, HandleOf(pBitmap), nFlags, HandleOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return DrawAnyState(m_hDC, hBrush, NULL, AsData(hIcon), 0, pt, size, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, HandleOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, HBRUSH hBrush)
{
    const UINT kind = bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    return DrawAnyState(m_hDC, hBrush, NULL, AsData(lpszText), nTextLen, pt, size, nFlags | kind);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, CBrush* pBrush)
{
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, HandleOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush)
{
    return DrawAnyState(m_hDC, hBrush, lpDrawProc, lData, 0, pt, size, nFlags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, HandleOf(pBrush));
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    ::DrawFocusRect(m_hDC, lpRect);
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast)
{
    const HBRUSH brush = HandleOf(pBrush != NULL ? pBrush : GetHalftoneBrush());
    const HBRUSH lastBrush = pBrushLast != NULL ? HandleOf(pBrushLast) : brush;
    CRgn frame;
    MakeFrame(*this, frame, lpRect, size);
    if (lpRectLast != NULL) {
        CRgn lastFrame;
        MakeFrame(*this, lastFrame, lpRectLast, sizeLast);
        // What both frames cover stays as it is, hence no flicker.
        if (brush == lastBrush)
            frame.CombineRgn(&frame, &lastFrame, RGN_XOR);
        else
            InvertByPattern(m_hDC, lastFrame, lastBrush);
    }
    InvertByPattern(m_hDC, frame, brush);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, NULL, 0, NULL);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(LPPOINT lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}
