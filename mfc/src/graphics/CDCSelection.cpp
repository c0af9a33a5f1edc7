// The pens, brushes, fonts, bitmaps, regions and palettes that a device context draws with.
#include <afxwin.h>

#include "graphics/BothContexts.h"

using afxint::OnBoth;

namespace {

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

} // namespace

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
