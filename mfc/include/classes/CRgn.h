// A region: a drawing object that is a part of the plane, of any shape.
#pragma once

#include <atltypes.h>
#include <classes/CGdiObject.h>

class CDC;

class AFX_EXPORTED CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();
    virtual ~CRgn();

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect);
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode);
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData);

    static CRgn* PASCAL FromHandle(HRGN hRgn);
    operator HRGN() const;

    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT lpRect);
    /// These return the kind of the resulting region, ERROR on failure.
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int CopyRgn(CRgn* pRgnSrc);
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT point);
    int GetRgnBox(LPRECT lpRect) const;
    BOOL EqualRgn(CRgn* pRgn) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    BOOL RectInRegion(LPCRECT lpRect) const;
    /// With a NULL pointer: the number of bytes that are needed.
    int GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const;
};
