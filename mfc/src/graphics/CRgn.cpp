#include <afxwin.h>

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn::CRgn()
{
}

CRgn::~CRgn()
{
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode)
{
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode)
{
    return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return Attach(::PathToRegion(pDC->GetSafeHdc()));
}

BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
{
    return Attach(::ExtCreateRegion(lpXForm, nCount, pRgnData));
}

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn)
{
    return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn));
}

CRgn::operator HRGN() const
{
    return static_cast<HRGN>(GetSafeHandle());
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    ::SetRectRgn(*this, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(*this, static_cast<HRGN>(pRgn1->GetSafeHandle()),
                        static_cast<HRGN>(pRgn2->GetSafeHandle()), nCombineMode);
}

int CRgn::CopyRgn(CRgn* pRgnSrc)
{
    return ::CombineRgn(*this, static_cast<HRGN>(pRgnSrc->GetSafeHandle()), NULL, RGN_COPY);
}

int CRgn::OffsetRgn(int x, int y)
{
    return ::OffsetRgn(*this, x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return OffsetRgn(point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    return ::GetRgnBox(*this, lpRect);
}

BOOL CRgn::EqualRgn(CRgn* pRgn) const
{
    return ::EqualRgn(*this, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const
{
    return ::RectInRegion(*this, lpRect);
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const
{
    return static_cast<int>(::GetRegionData(*this, nDataSize, lpRgnData));
}
