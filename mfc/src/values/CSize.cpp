#include <atltypes.h>

CSize::CSize() : CSize(0, 0)
{
}

CSize::CSize(int initCX, int initCY)
{
    cx = initCX;
    cy = initCY;
}

CSize::CSize(SIZE initSize) : tagSIZE(initSize)
{
}

CSize::CSize(POINT initPt) : CSize(initPt.x, initPt.y)
{
}

CSize::CSize(DWORD dwSize)
    : CSize(static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize)))
{
}

BOOL CSize::operator==(SIZE size) const
{
    return cx == size.cx && cy == size.cy;
}

BOOL CSize::operator!=(SIZE size) const
{
    return cx != size.cx || cy != size.cy;
}

void CSize::operator+=(SIZE size)
{
    cx += size.cx;
    cy += size.cy;
}

void CSize::operator-=(SIZE size)
{
    cx -= size.cx;
    cy -= size.cy;
}

CSize CSize::operator+(SIZE size) const
{
    return CSize(cx + size.cx, cy + size.cy);
}

CSize CSize::operator-(SIZE size) const
{
    return CSize(cx - size.cx, cy - size.cy);
}

CSize CSize::operator-() const
{
    return CSize(-cx, -cy);
}

CPoint CSize::operator+(POINT point) const
{
    return CPoint(cx + point.x, cy + point.y);
}

CPoint CSize::operator-(POINT point) const
{
    return CPoint(cx - point.x, cy - point.y);
}

CRect CSize::operator+(const RECT* lpRect) const
{
    return CRect(lpRect) + *this;
}

CRect CSize::operator-(const RECT* lpRect) const
{
    return CRect(lpRect) - *this;
}
