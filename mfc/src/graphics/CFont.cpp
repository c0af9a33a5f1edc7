#include <afxwin.h>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace {

/// The font height, in the logical units of the context, for a size in tenths of a point.
LONG HeightOfPoints(HDC dc, LONG tenths)
{
    constexpr int tenthsPerInch = 720;
    POINT edges[] = {{0, 0}, {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), tenths, tenthsPerInch)}};
    ::DPtoLP(dc, edges, 2);
    return -labs(edges[1].y - edges[0].y);
}

} // namespace

CFont::CFont()
{
}

CFont::~CFont()
{
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                       LPCTSTR lpszFacename)
{
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                               bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                               nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    LOGFONT font = *lpLogFont;
    if (pDC != NULL) {
        font.lfHeight = HeightOfPoints(pDC->m_hAttribDC, font.lfHeight);
    } else {
        const HDC screen = ::GetDC(NULL);
        font.lfHeight = HeightOfPoints(screen, font.lfHeight);
        ::ReleaseDC(NULL, screen);
    }
    return CreateFontIndirect(&font);
}

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
}

CFont::operator HFONT() const
{
    return static_cast<HFONT>(GetSafeHandle());
}

int CFont::GetLogFont(LOGFONT* pLogFont)
{
    return GetObject(sizeof(*pLogFont), pLogFont);
}
