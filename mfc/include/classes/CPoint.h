// A point, with the arithmetic the POINT structure lacks.
#pragma once

#include <classes/Platform.h>

class CRect;
class CSize;

class AFX_EXPORTED CPoint : public tagPOINT
{
public:
    CPoint();
    CPoint(int initX, int initY);
    CPoint(POINT initPt);
    CPoint(SIZE initSize);
    /// Low word: x, high word: y, both signed, as mouse messages carry them.
    CPoint(LPARAM dwPoint);

    void Offset(int xOffset, int yOffset);
    void Offset(POINT point);
    void Offset(SIZE size);

    BOOL operator==(POINT point) const;
    BOOL operator!=(POINT point) const;
    void operator+=(SIZE size);
    void operator-=(SIZE size);
    void operator+=(POINT point);
    void operator-=(POINT point);

    CPoint operator+(SIZE size) const;
    CPoint operator-(SIZE size) const;
    CPoint operator-() const;
    CPoint operator+(POINT point) const;
    CSize operator-(POINT point) const;

    /// The rectangle moved by this point.
    CRect operator+(const RECT* lpRect) const;
    CRect operator-(const RECT* lpRect) const;
};
