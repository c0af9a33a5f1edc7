#include <atltypes.h>

CPoint::CPoint() : CPoint(0, 0)
{
}

CPoint::CPoint(int initX, int initY)
{
    x = initX;
    y = initY;
}

CPoint::CPoint(POINT initPt) : tagPOINT(initPt)
{
}

CPoint::CPoint(SIZE initSize) : CPoint(initSize.cx, initSize.cy)
{
}

CPoint::CPoint(LPARAM dwPoint) : CPoint(GET_X_LPARAM(dwPoint), GET_Y_LPARAM(dwPoint))
{
}

void CPoint::Offset(int xOffset, int yOffset)
{
    x += xOffset;
    y += yOffset;
}

void CPoint::Offset(POINT point)
{
    Offset(point.x, point.y);
}

void CPoint::Offset(SIZE size)
{
    Offset(size.cx, size.cy);
}

BOOL CPoint::operator==(POINT point) const
{
    return x == point.x && y == point.y;
}

BOOL CPoint::operator!=(POINT point) const
{
    return x != point.x || y != point.y;
}

void CPoint::operator+=(SIZE size)
{
    Offset(size);
}

void CPoint::operator-=(SIZE size)
{
    Offset(-size.cx, -size.cy);
}

void CPoint::operator+=(POINT point)
{
    Offset(point);
}

void CPoint::operator-=(POINT point)
{
    Offset(-point.x, -point.y);
}

CPoint CPoint::operator+(SIZE size) const
{
    return CPoint(x + size.cx, y + size.cy);
}

CPoint CPoint::operator-(SIZE size) const
{
    return CPoint(x - size.cx, y - size.cy);
}

CPoint CPoint::operator-() const
{
    return CPoint(-x, -y);
}

CPoint CPoint::operator+(POINT point) const
{
    return CPoint(x + point.x, y + point.y);
}

CSize CPoint::operator-(POINT point) const
{
    return CSize(x - point.x, y - point.y);
}

CRect CPoint::operator+(const RECT* lpRect) const
{
    return CRect(lpRect) + *this;
}

CRect CPoint::operator-(const RECT* lpRect) const
{
    return CRect(lpRect) - *this;
}
