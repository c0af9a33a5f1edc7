// A device context: what all drawing goes through.
#pragma once

#include <atltypes.h>
#include <classes/CObject.h>
#include <classes/CString.h>

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPalette;
class CPen;
class CRgn;
class CWnd;

/// Holds a device context and owns it: the destructor deletes what is still held. Objects that
/// FromHandle makes for foreign contexts are temporary and own nothing.
///
/// Output goes to m_hDC, questions to m_hAttribDC, settings to both; the two are the same except
/// for metafiles and while SetAttribDC or SetOutputDC is in use.
class AFX_EXPORTED CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    CDC();
    virtual ~CDC();
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HDC m_hDC;       ///< Where output goes; NULL while nothing is held.
    HDC m_hAttribDC; ///< Where questions go.

    operator HDC() const;
    /// The output context; NULL also for a NULL object.
    HDC GetSafeHdc() const;
    CWnd* GetWindow() const;

    /// The object that owns the context, else a temporary one that lives until the next idle time.
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. Only for objects that hold none. FALSE for a NULL handle.
    BOOL Attach(HDC hDC);
    /// Gives the handle up without deleting the context.
    HDC Detach();
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    BOOL IsPrinting() const;

    // Making and deleting
    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData);
    /// With a NULL context: compatible with the screen.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    BOOL ResetDC(const DEVMODE* lpDevMode);

    // The state
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags);
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags);
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point);
    int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData);

    // Objects. Each selection returns the former object, often a temporary one, or NULL.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    /// Makes a copy of the region the clip region; returns its kind.
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CPalette* GetCurrentPalette() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    COLORREF GetDCBrushColor() const;
    COLORREF SetDCBrushColor(COLORREF crColor);
    COLORREF GetDCPenColor() const;
    COLORREF SetDCPenColor(COLORREF crColor);

    // Colours and palettes
    COLORREF GetNearestColor(COLORREF crColor) const;
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette();
    void UpdateColors();
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const;
    BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust);

    // Drawing attributes
    COLORREF GetBkColor() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    int GetBkMode() const;
    int SetBkMode(int nBkMode);
    int GetPolyFillMode() const;
    int SetPolyFillMode(int nPolyFillMode);
    int GetROP2() const;
    int SetROP2(int nDrawMode);
    int GetStretchBltMode() const;
    int SetStretchBltMode(int nStretchMode);
    COLORREF GetTextColor() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    int GetGraphicsMode() const;
    int SetGraphicsMode(int iMode);
    BOOL GetWorldTransform(XFORM& rXform) const;
    BOOL SetWorldTransform(const XFORM& rXform);
    BOOL ModifyWorldTransform(const XFORM& rXform, DWORD iMode);
    DWORD GetLayout() const;
    DWORD SetLayout(DWORD dwLayout);

    // Mapping
    int GetMapMode() const;
    virtual int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point);
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size);
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size);
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    void LPtoDP(LPSIZE lpSize) const;
    /// HIMETRIC units are hundredths of a millimetre.
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;

    // Regions and clipping. The int results are kinds of regions, ERROR on failure.
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;
    virtual BOOL RectVisible(LPCRECT lpRect) const;
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size);

    // Lines
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle);
    int GetArcDirection() const;
    int SetArcDirection(int nArcDirection);
    BOOL Polyline(LPPOINT lpPoints, int nCount);
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount);
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount);
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount);
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount);

    // Simple drawing
    /// A brush whose pixels alternate; it lives as long as the program. NULL on failure.
    static CBrush* PASCAL GetHalftoneBrush();
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon);
    /// The kind of image is told by the type of the argument and need not be in the flags.
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, CBrush* pBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   HBRUSH hBrush = NULL);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   CBrush* pBrush = NULL);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    void DrawFocusRect(LPCRECT lpRect);
    /// Erases the last rectangle of a drag and shows the next, without flicker. NULL brushes stand
    /// for the halftone brush.
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast,
                      CBrush* pBrush = NULL, CBrush* pBrushLast = NULL);
    /// These leave the background colour changed.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);

    // Ellipses and polygons
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polygon(LPPOINT lpPoints, int nCount);
    BOOL PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT lpRect, POINT point);

    // Bitmaps
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop);
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 CBitmap& maskBitmap, int xMask, int yMask, DWORD dwRop);
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                CBitmap& maskBitmap, int xMask, int yMask);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                      DWORD dwMode);
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor);
    BOOL SetPixelV(int x, int y, COLORREF crColor);
    BOOL SetPixelV(POINT point, COLORREF crColor);
    BOOL FloodFill(int x, int y, COLORREF crColor);
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType);

    // Text
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                            UINT nCount, LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                    LPINT lpDxWidths);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                        LPINT lpnTabStopPositions, int nTabOrigin);
    /// A length of -1 stands for text up to its terminator. Returns the height of the text.
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams);
    int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int),
                            LPARAM lpData, int nCount, int x, int y, int nWidth, int nHeight);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const;
    BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                               LPSIZE lpSize) const;
    BOOL GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const;
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                    LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(const CString& str, int nTabPositions,
                                    LPINT lpnTabStopPositions) const;
    UINT GetTextAlign() const;
    UINT SetTextAlign(UINT nFlags);
    int GetTextFace(int nCount, LPTSTR lpszFacename) const;
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const;
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int GetTextCharacterExtra() const;
    int SetTextCharacterExtra(int nCharExtra);
    DWORD GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent,
                                LPGCP_RESULTS lpResults, DWORD dwFlags) const;
    DWORD GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults,
                                DWORD dwFlags) const;

    // Fonts
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const;
    BOOL GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const;
    BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const;
    BOOL GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const;
    CSize GetAspectRatioFilter() const;
    DWORD SetMapperFlags(DWORD dwFlag);
    int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const;
    UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const;
    DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer,
                          LPVOID lpBuffer, const MAT2* lpmat2) const;
    DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const;
    DWORD GetFontLanguageInfo() const;

    // Printing
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize,
               LPSTR lpszOutputData);
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);
    int DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData);
    int StartDoc(LPCTSTR lpszDocName);
    int StartDoc(LPDOCINFO lpDocInfo);
    int StartPage();
    int EndPage();
    int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int));
    int AbortDoc();
    int EndDoc();

    // Scrolling
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);

    // Metafiles
    BOOL PlayMetaFile(HMETAFILE hMF);
    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds);
    BOOL AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData);

    // Paths
    BOOL AbortPath();
    BOOL BeginPath();
    BOOL CloseFigure();
    BOOL EndPath();
    BOOL FillPath();
    BOOL FlattenPath();
    BOOL StrokeAndFillPath();
    BOOL StrokePath();
    BOOL WidenPath();
    BOOL SelectClipPath(int nMode);
    float GetMiterLimit() const;
    BOOL SetMiterLimit(float fMiterLimit);
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const;
};
