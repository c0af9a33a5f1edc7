#include "bench/PlainFaces.h"

#include "bench/PlainPixels.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int entries = 256;

BYTE Mix(BYTE from, BYTE to, int part, int whole)
{
    return static_cast<BYTE>((from * (whole - part) + to * part) / whole);
}

RGBQUAD MixColors(COLORREF from, COLORREF to, int part)
{
    return {Mix(GetBValue(from), GetBValue(to), part, 128),
            Mix(GetGValue(from), GetGValue(to), part, 128),
            Mix(GetRValue(from), GetRValue(to), part, 128), 0};
}

} // namespace

PlainFaces::~PlainFaces()
{
    for (Bitmap* bitmap : {&m_normal, &m_down, &m_disabled, &m_over, &m_focusH, &m_focusV})
        std::free(bitmap->block);
}

void PlainFaces::Fill(int width, int height, int border, const ShadeLook& look,
                      const ShadeColors& colors)
{
    Create(m_focusH, std::max(width - 2 * border - 1, 1), 1);
    Create(m_focusV, 1, std::max(height - 2 * border - 1, 1));
    Create(m_normal, width, height);

    for (const Bitmap* bitmap : {&m_normal, &m_focusH, &m_focusV}) {
        RGBQUAD* palette = PaletteOf(*bitmap);
        for (int i = 0; i <= 128; ++i)
            palette[i] = MixColors(colors.shadow, colors.face, i);
        for (int j = 1; j <= 128; ++j)
            palette[j + 127] = MixColors(colors.face, colors.highlight, j);
    }
    Blend(m_normal, look.color, look.coloring);

    for (int i = 0; i < m_focusH.header.biWidth; ++i)
        PixelsOf(m_focusH)[i] = i % 2 == 0 ? 0 : 255;
    for (int i = 0; i < m_focusV.header.biHeight; ++i)
        PixelsOf(m_focusV)[i * m_focusV.stride] = i % 2 == 0 ? 0 : 255;

    FillPlainPixels({PixelsOf(m_normal), width, height, m_normal.stride}, look.style,
                    look.granularity);

    Clone(m_disabled, m_normal);
    Clone(m_over, m_normal);
    Blend(m_over, colors.highlight, look.highlight);
    Clone(m_down, m_over);
}

void PlainFaces::Create(Bitmap& bitmap, int width, int height)
{
    std::free(bitmap.block);
    bitmap.stride = (8 * width + 31) / 32 * 4;
    bitmap.header = {};
    bitmap.header.biSize = sizeof(bitmap.header);
    bitmap.header.biWidth = width;
    bitmap.header.biHeight = height;
    bitmap.header.biPlanes = 1;
    bitmap.header.biBitCount = 8;
    bitmap.header.biSizeImage = bitmap.stride * height;
    bitmap.block = static_cast<BYTE*>(
        std::malloc(sizeof(bitmap.header) + entries * sizeof(RGBQUAD) + bitmap.header.biSizeImage));
    if (bitmap.block == nullptr)
        std::abort();
    std::memcpy(bitmap.block, &bitmap.header, sizeof(bitmap.header));
}

void PlainFaces::Clone(Bitmap& bitmap, const Bitmap& source)
{
    Create(bitmap, source.header.biWidth, source.header.biHeight);
    std::memcpy(bitmap.block, source.block,
                sizeof(source.header) + entries * sizeof(RGBQUAD) + source.header.biSizeImage);
}

RGBQUAD* PlainFaces::PaletteOf(const Bitmap& bitmap)
{
    return reinterpret_cast<RGBQUAD*>(bitmap.block + sizeof(bitmap.header));
}

BYTE* PlainFaces::PixelsOf(const Bitmap& bitmap)
{
    return bitmap.block + sizeof(bitmap.header) + entries * sizeof(RGBQUAD);
}

void PlainFaces::Blend(const Bitmap& bitmap, COLORREF color, int percent)
{
    percent = std::min(percent, 100);
    RGBQUAD* palette = PaletteOf(bitmap);
    for (int i = 0; i < entries; ++i) {
        palette[i].rgbRed = Mix(palette[i].rgbRed, GetRValue(color), percent, 100);
        palette[i].rgbGreen = Mix(palette[i].rgbGreen, GetGValue(color), percent, 100);
        palette[i].rgbBlue = Mix(palette[i].rgbBlue, GetBValue(color), percent, 100);
    }
}
