// The colours and modes of a device context.
#include <afxwin.h>

#include "graphics/BothContexts.h"

using afxint::OnBoth;

CPoint CDC::GetBrushOrg() const
{
    CPoint origin(0, 0);
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint former(0, 0);
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetDCBrushColor(dc, crColor); });
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetDCPenColor(dc, crColor); });
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetColorAdjustment(dc, lpColorAdjust); });
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetBkColor(dc, crColor); });
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetTextColor(dc, crColor); });
}
