// A width and a height, with the arithmetic the SIZE structure lacks.
#pragma once

#include <classes/Platform.h>

class CPoint;
class CRect;

class AFX_EXPORTED CSize : public tagSIZE
{
public:
    CSize();
    CSize(int initCX, int initCY);
    CSize(SIZE initSize);
    CSize(POINT initPt);
    /// Low word: width, high word: height, both signed.
    CSize(DWORD dwSize);

    BOOL operator==(SIZE size) const;
    BOOL operator!=(SIZE size) const;
    void operator+=(SIZE size);
    void operator-=(SIZE size);

    CSize operator+(SIZE size) const;
    CSize operator-(SIZE size) const;
    CSize operator-() const;

    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;

    /// The rectangle moved by this size.
    CRect operator+(const RECT* lpRect) const;
    CRect operator-(const RECT* lpRect) const;
};
