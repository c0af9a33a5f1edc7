#include <afxwin.h>

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen()
{
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
           const DWORD* lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

CPen::~CPen()
{
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle)
{
    return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return Attach(::CreatePenIndirect(lpLogPen));
}

CPen* PASCAL CPen::FromHandle(HPEN hPen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(hPen));
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(GetSafeHandle());
}

int CPen::GetLogPen(LOGPEN* pLogPen)
{
    return GetObject(sizeof(*pLogPen), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen)
{
    return GetObject(sizeof(*pLogPen), pLogPen);
}
