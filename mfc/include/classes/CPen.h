// A pen: the drawing object that lines are drawn with.
#pragma once

#include <classes/CGdiObject.h>

class AFX_EXPORTED CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    /// These throw a CResourceException when the pen cannot be made.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = NULL);
    virtual ~CPen();

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = NULL);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);

    static CPen* PASCAL FromHandle(HPEN hPen);
    operator HPEN() const;
    int GetLogPen(LOGPEN* pLogPen);
    int GetExtLogPen(EXTLOGPEN* pLogPen);
};
