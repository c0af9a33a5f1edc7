#include <afxwin.h>

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush()
{
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap))
        AfxThrowResourceException();
}

CBrush::~CBrush()
{
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    const void* dib = ::GlobalLock(hPackedDIB);
    if (dib == NULL)
        return FALSE;
    const BOOL made = CreateDIBPatternBrush(dib, nUsage);
    ::GlobalUnlock(hPackedDIB);
    return made;
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage)
{
    return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return Attach(::GetSysColorBrush(nIndex));
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(GetSafeHandle());
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush)
{
    return GetObject(sizeof(*pLogBrush), pLogBrush);
}
