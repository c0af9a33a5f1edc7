// A rectangle, with the operations the RECT structure lacks.
//
// Width and Height may be negative; the operations that intersect, unite or inflate expect a
// normalised rectangle, as the system's own do.
#pragma once

#include <classes/Platform.h>

class CPoint;
class CSize;

class AFX_EXPORTED CRect : public tagRECT
{
public:
    CRect();
    CRect(int l, int t, int r, int b);
    CRect(const RECT& srcRect);
    CRect(LPCRECT lpSrcRect);
    CRect(POINT point, SIZE size);
    CRect(POINT topLeft, POINT bottomRight);

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const;
    CPoint& TopLeft();
    CPoint& BottomRight();
    const CPoint& TopLeft() const;
    const CPoint& BottomRight() const;
    CPoint CenterPoint() const;

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    /// True when the width or the height is zero or negative.
    BOOL IsRectEmpty() const;
    /// True when all four sides are zero.
    BOOL IsRectNull() const;
    /// The right and the bottom side are outside.
    BOOL PtInRect(POINT point) const;

    void SetRect(int x1, int y1, int x2, int y2);
    void SetRectEmpty();
    void CopyRect(LPCRECT lpSrcRect);
    BOOL EqualRect(LPCRECT lpRect) const;

    void InflateRect(int x, int y);
    void InflateRect(SIZE size);
    void InflateRect(LPCRECT lpRect);
    void InflateRect(int l, int t, int r, int b);
    void DeflateRect(int x, int y);
    void DeflateRect(SIZE size);
    void DeflateRect(LPCRECT lpRect);
    void DeflateRect(int l, int t, int r, int b);

    void OffsetRect(int x, int y);
    void OffsetRect(POINT point);
    void OffsetRect(SIZE size);
    /// Swaps sides so that width and height are not negative.
    void NormalizeRect();

    void MoveToY(int y);
    void MoveToX(int x);
    void MoveToXY(int x, int y);
    void MoveToXY(POINT point);

    /// FALSE and an empty rectangle when the two have nothing in common.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2);
    /// FALSE when both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2);
    /// The first without the second, where a rectangle remains; else the first.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2);

    void operator=(const RECT& srcRect);
    BOOL operator==(const RECT& rect) const;
    BOOL operator!=(const RECT& rect) const;
    void operator+=(POINT point);
    void operator+=(SIZE size);
    void operator+=(LPCRECT lpRect);
    void operator-=(POINT point);
    void operator-=(SIZE size);
    void operator-=(LPCRECT lpRect);
    void operator&=(const RECT& rect);
    void operator|=(const RECT& rect);

    CRect operator+(POINT point) const;
    CRect operator-(POINT point) const;
    CRect operator+(LPCRECT lpRect) const;
    CRect operator+(SIZE size) const;
    CRect operator-(SIZE size) const;
    CRect operator-(LPCRECT lpRect) const;
    CRect operator&(const RECT& rect2) const;
    CRect operator|(const RECT& rect2) const;
};
