// A colour palette: the drawing object that says which colours a device shows.
#pragma once

#include <classes/CGdiObject.h>

class CDC;

class AFX_EXPORTED CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette();
    virtual ~CPalette();

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    BOOL CreateHalftonePalette(CDC* pDC);

    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    operator HPALETTE() const;

    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                           LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    UINT GetNearestPaletteIndex(COLORREF crColor) const;
    BOOL ResizePalette(UINT nNumEntries);
};
