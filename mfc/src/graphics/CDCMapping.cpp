// From logical units to pixels: transforms, mapping modes, origins, extents.
#include <afxwin.h>

#include "graphics/BothContexts.h"

using afxint::OnBoth;

namespace {

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
