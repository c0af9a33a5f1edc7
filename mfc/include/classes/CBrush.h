// A brush: the drawing object that fills.
#pragma once

#include <classes/CGdiObject.h>

class CBitmap;

class AFX_EXPORTED CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    /// These throw a CResourceException when the brush cannot be made.
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);
    virtual ~CBrush();

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage);
    BOOL CreateSysColorBrush(int nIndex);

    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const;
    int GetLogBrush(LOGBRUSH* pLogBrush);
};
