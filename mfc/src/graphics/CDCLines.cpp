// Lines and curves, and the paths that they make up.
#include <afxwin.h>

#include "graphics/BothContexts.h"

using afxint::OnBoth;

namespace {

/// Brings the position of a separate attribute context to that of the output context.
void FollowPosition(const CDC& dc)
{
    POINT position;
    if (dc.m_hAttribDC != NULL && dc.m_hAttribDC != dc.m_hDC &&
        ::GetCurrentPositionEx(dc.m_hDC, &position))
        ::MoveToEx(dc.m_hAttribDC, position.x, position.y, NULL);
}

} // namespace

CPoint CDC::GetCurrentPosition() const
{
    CPoint position(0, 0);
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::MoveToEx(dc, x, y, &former); });
    return former;
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    const BOOL drawn = ::LineTo(m_hDC, x, y);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    const BOOL drawn = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    const BOOL drawn = ::AngleArc(m_hDC, x, y, nRadius, fStartAngle, fSweepAngle);
    FollowPosition(*this);
    return drawn;
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

BOOL CDC::Polyline(LPPOINT lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    const BOOL drawn = ::PolylineTo(m_hDC, lpPoints, nCount);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount)
{
    return ::PolyBezier(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount)
{
    const BOOL drawn = ::PolyBezierTo(m_hDC, lpPoints, nCount);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    const BOOL drawn = ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

BOOL CDC::SelectClipPath(int nMode)
{
    return ::SelectClipPath(m_hDC, nMode);
}

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}

BOOL CDC::SetMiterLimit(float fMiterLimit)
{
    return ::SetMiterLimit(m_hDC, fMiterLimit, NULL);
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}
