// The plain making of a button's faces, to measure against.
#pragma once

#include "faces/ShadeGenerator.h"

/// The six bitmaps of a button made plainly: fresh memory for each on every call, and the pixels of
/// FillPlainPixels.
class PlainFaces
{
public:
    ~PlainFaces();

    void Fill(int width, int height, int border, const ShadeLook& look, const ShadeColors& colors);

private:
    struct Bitmap
    {
        BITMAPINFOHEADER header = {};
        int stride = 0;
        BYTE* block = nullptr;
    };

    static void Create(Bitmap& bitmap, int width, int height);
    static void Clone(Bitmap& bitmap, const Bitmap& source);
    static RGBQUAD* PaletteOf(const Bitmap& bitmap);
    static BYTE* PixelsOf(const Bitmap& bitmap);
    static void Blend(const Bitmap& bitmap, COLORREF color, int percent);

    Bitmap m_normal;
    Bitmap m_down;
    Bitmap m_disabled;
    Bitmap m_over;
    Bitmap m_focusH;
    Bitmap m_focusV;
};
