#include <afxwin.h>

#include "objects/OwnedHandle.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

using afxint::CurrentThread;

namespace {

/// Makes a setting in the output context and, where that is another one, in the attribute context.
/// The result is the attribute context's, as for questions.
template <class Call>
auto OnBoth(const CDC& dc, Call call)
{
    if (dc.m_hAttribDC == NULL || dc.m_hAttribDC == dc.m_hDC)
        return call(dc.m_hDC);
    if (dc.m_hDC != NULL)
        call(dc.m_hDC);
    return call(dc.m_hAttribDC);
}

/// Selects into both contexts and returns the object that was selected.
CGdiObject* SelectIntoBoth(const CDC& dc, HGDIOBJ object)
{
    return CGdiObject::FromHandle(
        OnBoth(dc, [object](HDC context) { return ::SelectObject(context, object); }));
}

CGdiObject* CurrentObject(const CDC& dc, UINT type)
{
    return CGdiObject::FromHandle(::GetCurrentObject(dc.m_hAttribDC, type));
}

/// Brings the position of a separate attribute context to that of the output context.
void FollowPosition(const CDC& dc)
{
    POINT position;
    if (dc.m_hAttribDC != NULL && dc.m_hAttribDC != dc.m_hDC &&
        ::GetCurrentPositionEx(dc.m_hDC, &position))
        ::MoveToEx(dc.m_hAttribDC, position.x, position.y, NULL);
}

HRGN HandleOf(const CRgn* region)
{
    return static_cast<HRGN>(region->GetSafeHandle());
}

HBRUSH HandleOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(brush->GetSafeHandle());
}

HBITMAP HandleOf(const CBitmap* bitmap)
{
    return static_cast<HBITMAP>(bitmap->GetSafeHandle());
}

/// The size that a system function packed into a word of width and a word of height.
CSize UnpackSize(DWORD size)
{
    return CSize(LOWORD(size), HIWORD(size));
}

BOOL DrawAnyState(HDC dc, HBRUSH brush, DRAWSTATEPROC procedure, LPARAM data, WPARAM detail,
                  CPoint at, CSize size, UINT flags)
{
    return ::DrawState(dc, brush, procedure, data, detail, at.x, at.y, size.cx, size.cy, flags);
}

template <class Image>
LPARAM AsData(Image image)
{
    return reinterpret_cast<LPARAM>(image);
}

HBRUSH MakeHalftoneBrush()
{
    WORD rows[8];
    for (int row = 0; row < 8; ++row)
        rows[row] = row % 2 == 0 ? 0x5555 : 0xAAAA;
    const HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 1, rows);
    const HBRUSH brush = ::CreatePatternBrush(bitmap);
    ::DeleteObject(bitmap);
    return brush;
}

/// The frame of a drag rectangle as a clip region, in device units.
void MakeFrame(const CDC& dc, CRgn& frame, LPCRECT rect, SIZE thickness)
{
    CRect outer(rect);
    CRect inner(rect);
    inner.DeflateRect(thickness.cx, thickness.cy);
    inner.IntersectRect(inner, outer);
    dc.LPtoDP(&outer);
    dc.LPtoDP(&inner);
    CRgn hole;
    hole.CreateRectRgnIndirect(&inner);
    frame.CreateRectRgnIndirect(&outer);
    frame.CombineRgn(&frame, &hole, RGN_DIFF);
}

/// Inverts with the brush's pattern what lies in the region; a second time restores it.
void InvertByPattern(HDC dc, const CRgn& region, HBRUSH brush)
{
    const int saved = ::SaveDC(dc);
    RECT box;
    ::ExtSelectClipRgn(dc, region, RGN_AND);
    ::GetClipBox(dc, &box);
    ::SelectObject(dc, brush);
    ::PatBlt(dc, box.left, box.top, box.right - box.left, box.bottom - box.top, PATINVERT);
    ::RestoreDC(dc, saved);
}

constexpr int himetricPerInch = 2540;

/// Whether the mapping mode stands for a fixed physical unit.
bool HasPhysicalUnits(HDC dc)
{
    const int mode = ::GetMapMode(dc);
    return mode == MM_LOMETRIC || mode == MM_HIMETRIC || mode == MM_LOENGLISH ||
           mode == MM_HIENGLISH;
}

/// The number of pixels that `himetric` hundredths of a millimetre take. Physical mapping modes
/// measure by the size of the device, the others by logical inches.
SIZE ResolutionOf(HDC dc, SIZE& himetric)
{
    if (HasPhysicalUnits(dc)) {
        himetric = {::GetDeviceCaps(dc, HORZSIZE) * 100, ::GetDeviceCaps(dc, VERTSIZE) * 100};
        return {::GetDeviceCaps(dc, HORZRES), ::GetDeviceCaps(dc, VERTRES)};
    }
    himetric = {himetricPerInch, himetricPerInch};
    return {::GetDeviceCaps(dc, LOGPIXELSX), ::GetDeviceCaps(dc, LOGPIXELSY)};
}

} // namespace

CDC* afxint::DcTraits::Wrap(HDC handle)
{
    CDC* dc = new CDC;
    dc->m_hDC = dc->m_hAttribDC = handle;
    return dc;
}

void afxint::DcTraits::Unwrap(CDC* dc)
{
    dc->m_hDC = dc->m_hAttribDC = NULL;
    delete dc;
}

CDC::CDC() : m_hDC(NULL), m_hAttribDC(NULL)
{
}

CDC::~CDC()
{
    DeleteDC();
}

CDC::operator HDC() const
{
    return GetSafeHdc();
}

HDC CDC::GetSafeHdc() const
{
    return this == NULL ? NULL : m_hDC;
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    CDC* dc = CurrentThread().dcs.FindOrWrap(hDC);
    // A temporary object may have been emptied by Detach, and its handle be in use again.
    if (dc != NULL && dc->m_hDC == NULL)
        dc->m_hDC = dc->m_hAttribDC = hDC;
    return dc;
}

void PASCAL CDC::DeleteTempMap()
{
    CurrentThread().dcs.DropTemporaries(-1);
}

BOOL CDC::Attach(HDC hDC)
{
    if (!afxint::TakeHandle(CurrentThread().dcs, hDC, this, m_hDC))
        return FALSE;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    ReleaseAttribDC();
    return afxint::GiveHandle(CurrentThread().dcs, this, m_hDC);
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = NULL;
}

void CDC::ReleaseOutputDC()
{
    m_hDC = NULL;
}

BOOL CDC::IsPrinting() const
{
    if (m_hAttribDC == NULL)
        return FALSE;
    const int technology = GetDeviceCaps(TECHNOLOGY);
    return technology == DT_RASPRINTER || technology == DT_PLOTTER;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData)
{
    return Attach(::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData)
{
    return Attach(::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == NULL)
        return FALSE;
    return ::DeleteDC(Detach());
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::ResetDC(dc, lpDevMode); }) != NULL;
}

int CDC::SaveDC()
{
    return OnBoth(*this, [](HDC dc) { return ::SaveDC(dc); });
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    return OnBoth(*this, [=](HDC dc) { return ::RestoreDC(dc, nSavedDC); });
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hDC, lpRectBounds, flags);
}

CPoint CDC::GetBrushOrg() const
{
    CPoint origin(0, 0);
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint former(0, 0);
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return SelectIntoBoth(*this, ::GetStockObject(nIndex));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return static_cast<CPen*>(SelectIntoBoth(*this, pPen->GetSafeHandle()));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return static_cast<CBrush*>(SelectIntoBoth(*this, pBrush->GetSafeHandle()));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return static_cast<CFont*>(SelectIntoBoth(*this, pFont->GetSafeHandle()));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    // A bitmap fits into one context at a time.
    return CBitmap::FromHandle(
        static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->GetSafeHandle())));
}

int CDC::SelectObject(CRgn* pRgn)
{
    const HGDIOBJ region = pRgn->GetSafeHandle();
    const HGDIOBJ kind = OnBoth(*this, [region](HDC dc) { return ::SelectObject(dc, region); });
    return kind == HGDI_ERROR ? ERROR : static_cast<int>(reinterpret_cast<INT_PTR>(kind));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    const HGDIOBJ object = pObject->GetSafeHandle();
    switch (::GetObjectType(object)) {
    case OBJ_REGION: // The system answers a kind of region, not an object.
        SelectObject(static_cast<CRgn*>(pObject));
        return NULL;
    case OBJ_BITMAP:
        return SelectObject(static_cast<CBitmap*>(pObject));
    default:
        return SelectIntoBoth(*this, object);
    }
}

CPen* CDC::GetCurrentPen() const
{
    return static_cast<CPen*>(CurrentObject(*this, OBJ_PEN));
}

CBrush* CDC::GetCurrentBrush() const
{
    return static_cast<CBrush*>(CurrentObject(*this, OBJ_BRUSH));
}

CPalette* CDC::GetCurrentPalette() const
{
    return static_cast<CPalette*>(CurrentObject(*this, OBJ_PAL));
}

CFont* CDC::GetCurrentFont() const
{
    return static_cast<CFont*>(CurrentObject(*this, OBJ_FONT));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return static_cast<CBitmap*>(CurrentObject(*this, OBJ_BITMAP));
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetDCBrushColor(dc, crColor); });
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetDCPenColor(dc, crColor); });
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    const auto palette = static_cast<HPALETTE>(pPalette->GetSafeHandle());
    return CPalette::FromHandle(::SelectPalette(m_hDC, palette, bForceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetColorAdjustment(dc, lpColorAdjust); });
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetBkColor(dc, crColor); });
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetTextColor(dc, crColor); });
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hAttribDC);
}

int CDC::SetGraphicsMode(int iMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetGraphicsMode(dc, iMode); });
}

BOOL CDC::GetWorldTransform(XFORM& rXform) const
{
    return ::GetWorldTransform(m_hAttribDC, &rXform);
}

BOOL CDC::SetWorldTransform(const XFORM& rXform)
{
    return OnBoth(*this, [&](HDC dc) { return ::SetWorldTransform(dc, &rXform); });
}

BOOL CDC::ModifyWorldTransform(const XFORM& rXform, DWORD iMode)
{
    return OnBoth(*this, [&](HDC dc) { return ::ModifyWorldTransform(dc, &rXform, iMode); });
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hAttribDC);
}

DWORD CDC::SetLayout(DWORD dwLayout)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetLayout(dc, dwLayout); });
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::GetViewportOrg() const
{
    CPoint origin(0, 0);
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &former); });
    return former;
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    CPoint former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::OffsetViewportOrgEx(dc, nWidth, nHeight, &former); });
    return former;
}

CSize CDC::GetViewportExt() const
{
    CSize extent(0, 0);
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &former); });
    return former;
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize former(0, 0);
    OnBoth(*this,
           [&](HDC dc) { return ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, &former); });
    return former;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint origin(0, 0);
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &former); });
    return former;
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    CPoint former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::OffsetWindowOrgEx(dc, nWidth, nHeight, &former); });
    return former;
}

CSize CDC::GetWindowExt() const
{
    CSize extent(0, 0);
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &former); });
    return former;
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize former(0, 0);
    OnBoth(*this,
           [&](HDC dc) { return ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, &former); });
    return former;
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::DPtoLP(LPSIZE lpSize) const
{
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = abs(::MulDiv(lpSize->cx, window.cx, viewport.cx));
    lpSize->cy = abs(::MulDiv(lpSize->cy, window.cy, viewport.cy));
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = abs(::MulDiv(lpSize->cx, viewport.cx, window.cx));
    lpSize->cy = abs(::MulDiv(lpSize->cy, viewport.cy, window.cy));
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const
{
    SIZE himetric;
    const SIZE pixels = ResolutionOf(m_hAttribDC, himetric);
    lpSize->cx = ::MulDiv(lpSize->cx, himetric.cx, pixels.cx);
    lpSize->cy = ::MulDiv(lpSize->cy, himetric.cy, pixels.cy);
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const
{
    SIZE himetric;
    const SIZE pixels = ResolutionOf(m_hAttribDC, himetric);
    lpSize->cx = ::MulDiv(lpSize->cx, pixels.cx, himetric.cx);
    lpSize->cy = ::MulDiv(lpSize->cy, pixels.cy, himetric.cy);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const
{
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const
{
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    return ::FillRgn(m_hDC, HandleOf(pRgn), HandleOf(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
{
    return ::FrameRgn(m_hDC, HandleOf(pRgn), HandleOf(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn)
{
    return ::InvertRgn(m_hDC, HandleOf(pRgn));
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    return ::PaintRgn(m_hDC, HandleOf(pRgn));
}

int CDC::GetClipBox(LPRECT lpRect) const
{
    return ::GetClipBox(m_hDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    return OnBoth(*this, [=](HDC dc) { return ::SelectClipRgn(dc, HandleOf(pRgn)); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::ExtSelectClipRgn(dc, HandleOf(pRgn), nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    return ::ExcludeUpdateRgn(m_hDC, pWnd->GetSafeHwnd());
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return OnBoth(*this, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}

CPoint CDC::GetCurrentPosition() const
{
    CPoint position(0, 0);
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, [&](HDC dc) { return ::MoveToEx(dc, x, y, &former); });
    return former;
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    const BOOL drawn = ::LineTo(m_hDC, x, y);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    const BOOL drawn = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    const BOOL drawn = ::AngleArc(m_hDC, x, y, nRadius, fStartAngle, fSweepAngle);
    FollowPosition(*this);
    return drawn;
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

BOOL CDC::Polyline(LPPOINT lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    const BOOL drawn = ::PolylineTo(m_hDC, lpPoints, nCount);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount)
{
    return ::PolyBezier(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount)
{
    const BOOL drawn = ::PolyBezierTo(m_hDC, lpPoints, nCount);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    const BOOL drawn = ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
    FollowPosition(*this);
    return drawn;
}

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    static const HBRUSH brush = MakeHalftoneBrush();
    return CBrush::FromHandle(brush);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, HandleOf(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, HandleOf(pBrush));
}

void CDC::InvertRect(LPCRECT lpRect)
{
    ::InvertRect(m_hDC, lpRect);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return DrawAnyState(m_hDC, hBrush, NULL, AsData(hBitmap), 0, pt, size, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, HandleOf(pBitmap), nFlags, HandleOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return DrawAnyState(m_hDC, hBrush, NULL, AsData(hIcon), 0, pt, size, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, HandleOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, HBRUSH hBrush)
{
    const UINT kind = bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    return DrawAnyState(m_hDC, hBrush, NULL, AsData(lpszText), nTextLen, pt, size, nFlags | kind);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, CBrush* pBrush)
{
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, HandleOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush)
{
    return DrawAnyState(m_hDC, hBrush, lpDrawProc, lData, 0, pt, size, nFlags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, HandleOf(pBrush));
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    ::DrawFocusRect(m_hDC, lpRect);
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast)
{
    const HBRUSH brush = HandleOf(pBrush != NULL ? pBrush : GetHalftoneBrush());
    const HBRUSH lastBrush = pBrushLast != NULL ? HandleOf(pBrushLast) : brush;
    CRgn frame;
    MakeFrame(*this, frame, lpRect, size);
    if (lpRectLast != NULL) {
        CRgn lastFrame;
        MakeFrame(*this, lastFrame, lpRectLast, sizeLast);
        // What both frames cover stays as it is, hence no flicker.
        if (brush == lastBrush)
            frame.CombineRgn(&frame, &lastFrame, RGN_XOR);
        else
            InvertByPattern(m_hDC, lastFrame, lastBrush);
    }
    InvertByPattern(m_hDC, frame, brush);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, NULL, 0, NULL);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(LPPOINT lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, dwRop);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                  CBitmap& maskBitmap, int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, maskBitmap,
                     xMask, yMask, dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                 CBitmap& maskBitmap, int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, lpPoint, pSrcDC->GetSafeHdc(), xSrc, ySrc, nWidth, nHeight, maskBitmap,
                    xMask, yMask);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                     int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(), xSrc,
                        ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                         int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(),
                            xSrc, ySrc, nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                       DWORD dwMode)
{
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor)
{
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor)
{
    return SetPixel(point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(POINT point, COLORREF crColor)
{
    return SetPixelV(point.x, point.y, crColor);
}

BOOL CDC::FloodFill(int x, int y, COLORREF crColor)
{
    return ::FloodFill(m_hDC, x, y, crColor);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str)
{
    return TextOut(x, y, str, str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                     LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str, str.GetLength(), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    return UnpackSize(::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                      lpnTabStopPositions, nTabOrigin));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions,
                         nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    // The string is the caller's and may be shared, so it is never modified.
    return DrawText(str, str.GetLength(), lpRect, nFormat & ~DT_MODIFYSTRING);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                    LPDRAWTEXTPARAMS lpDTParams)
{
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    const auto text = const_cast<LPTSTR>(static_cast<LPCTSTR>(str));
    return DrawTextEx(text, str.GetLength(), lpRect, nFormat & ~DT_MODIFYSTRING, lpDTParams);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                     int nCount, int x, int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, HandleOf(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize size(0, 0);
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return GetTextExtent(str, str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize size(0, 0);
    ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    return GetOutputTextExtent(str, str.GetLength());
}

BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                                LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}

BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hAttribDC, pgiIn, cgi, lpSize);
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const
{
    return UnpackSize(
        ::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions,
                               LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                     LPINT lpnTabStopPositions) const
{
    return UnpackSize(
        ::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetOutputTabbedTextExtent(const CString& str, int nTabPositions,
                                     LPINT lpnTabStopPositions) const
{
    return GetOutputTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
}

int CDC::GetTextFace(CString& rString) const
{
    const int room = ::GetTextFace(m_hAttribDC, 0, NULL); // Counts the terminator.
    if (room <= 0) {
        rString.Empty();
        return 0;
    }
    const int copied = GetTextFace(room, rString.GetBuffer(room));
    rString.ReleaseBuffer();
    return copied;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return ::GetTextMetrics(m_hDC, lpMetrics);
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return OnBoth(*this,
                  [=](HDC dc) { return ::SetTextJustification(dc, nBreakExtra, nBreakCount); });
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); });
}

DWORD CDC::GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent,
                                 LPGCP_RESULTS lpResults, DWORD dwFlags) const
{
    return ::GetCharacterPlacement(m_hAttribDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}

DWORD CDC::GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults,
                                 DWORD dwFlags) const
{
    return GetCharacterPlacement(str, str.GetLength(), nMaxExtent, lpResults, dwFlags);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const
{
    return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}

BOOL CDC::GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const
{
    return ::GetCharWidthI(m_hAttribDC, giFirst, cgi, pgi, lpBuffer);
}

BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const
{
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const
{
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}

BOOL CDC::GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, giFirst, cgi, pgi, lpabc);
}

CSize CDC::GetAspectRatioFilter() const
{
    CSize ratio(0, 0);
    ::GetAspectRatioFilterEx(m_hAttribDC, &ratio);
    return ratio;
}

DWORD CDC::SetMapperFlags(DWORD dwFlag)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetMapperFlags(dc, dwFlag); });
}

int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const
{
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, nPairs, lpkrnpair));
}

UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const
{
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}

DWORD CDC::GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer,
                           LPVOID lpBuffer, const MAT2* lpmat2) const
{
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}

DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const
{
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hAttribDC);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize,
                LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = lpszDocName;
    return StartDoc(&document);
}

int CDC::StartDoc(LPDOCINFO lpDocInfo)
{
    return ::StartDoc(m_hDC, lpDocInfo);
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int))
{
    return ::SetAbortProc(m_hDC, lpfn);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate)
{
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, HandleOf(pRgnUpdate), lpRectUpdate);
}

BOOL CDC::PlayMetaFile(HMETAFILE hMF)
{
    return ::PlayMetaFile(m_hDC, hMF);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

BOOL CDC::SelectClipPath(int nMode)
{
    return ::SelectClipPath(m_hDC, nMode);
}

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}

BOOL CDC::SetMiterLimit(float fMiterLimit)
{
    return ::SetMiterLimit(m_hDC, fMiterLimit, NULL);
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}
