// PaletteDib: a palette bitmap that is kept in one heap block: header, colour table, pixel rows
// (bottom row first). Empty until Create or Clone succeeds; copying is done by Clone alone.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

class UMBRA_API PaletteDib
{
public:
    PaletteDib() = default;
    PaletteDib(const PaletteDib&) = delete;
    PaletteDib& operator=(const PaletteDib&) = delete;
    ~PaletteDib();

    /// Makes the bitmap afresh and returns its block; colour table and pixels are not set. A
    /// bitCount of 1, 4, 8 or 24 comes out of any request (the next one up, at most 24). Null, and
    /// the bitmap empty, for a size that is negative or cannot be had.
    /// Creating a bitmap of the size that it has keeps its block, so no pointer changes.
    BYTE* Create(int width, int height, int bitCount);
    /// Becomes a copy of source (header, colour table, pixels), or empty if that fails.
    void Clone(const PaletteDib& source);
    /// Frees the block.
    void Destroy();

    BOOL IsValid() const { return m_bits != nullptr; }
    /// The bottom row's first pixel, or null when empty.
    BYTE* GetBits() const;
    /// Bytes of the whole block, as the header describes it.
    DWORD GetSize() const;
    int GetWidth() const { return m_header.biWidth; }
    int GetHeight() const { return m_header.biHeight; }
    /// Bytes from one row to the next.
    int GetStride() const { return m_stride; }
    /// Entries of the colour table: 2, 16, 256, or 0 for 24 bits a pixel.
    WORD GetPaletteCount() const { return m_paletteCount; }
    /// The colour table, or null when there is none.
    RGBQUAD* GetPalette() const;

    void SetPaletteIndex(UINT index, BYTE red, BYTE green, BYTE blue);
    /// Sets the pixel in column x of row y from the top. Ignored outside the bitmap, and for
    /// bitmaps of other than 8 bits a pixel.
    void SetPixelIndex(int x, int y, BYTE value);
    /// Moves every colour of the table toward `color`; percent above 100 acts as 100.
    void BlendPalette(COLORREF color, UINT percent);
    /// Sets every byte of the pixel rows.
    void Clear(BYTE value);

    /// Draws the bitmap with its top left corner at (x, y). Returns 0 if there is nothing to draw
    /// or nothing to draw on, else 1.
    BOOL Draw(HDC dc, int x, int y) const;

protected:
    BYTE* m_bits = nullptr;
    BITMAPINFOHEADER m_header = {};
    int m_stride = 0;
    WORD m_paletteCount = 0;
};
