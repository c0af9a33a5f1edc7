// A font: the drawing object that text is written with.
#pragma once

#include <classes/CGdiObject.h>

class CDC;

class AFX_EXPORTED CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont();
    virtual ~CFont();

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    LPCTSTR lpszFacename);
    /// The size is in tenths of a point, measured on pDC or, when that is NULL, on the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = NULL);
    /// lfHeight is in tenths of a point; the structure itself stays as it is.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = NULL);

    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const;
    int GetLogFont(LOGFONT* pLogFont);
};
