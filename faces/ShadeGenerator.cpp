#include "faces/ShadeGenerator.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr int paletteSize = 256;

// Writes 128 colours on the way from one to the other, the first being firstPart / 128 of it. The
// channels of two colours at a time fill a vector of 16-bit numbers; the reserved one stays 0.
void WriteRamp(RGBQUAD* palette, COLORREF from, COLORREF to, int firstPart)
{
    constexpr int lanes = 8;
    const int start[4] = {GetBValue(from), GetGValue(from), GetRValue(from), 0};
    const int end[4] = {GetBValue(to), GetGValue(to), GetRValue(to), 0};
    std::uint16_t sums[lanes];
    std::uint16_t steps[lanes];
    for (int i = 0; i < lanes; ++i) {
        const int part = firstPart + i / 4;
        sums[i] = static_cast<std::uint16_t>(start[i % 4] * (128 - part) + end[i % 4] * part);
        steps[i] = static_cast<std::uint16_t>((end[i % 4] - start[i % 4]) * 2);
    }

    BYTE* channels = reinterpret_cast<BYTE*>(palette);
    for (int entry = 0; entry < 128; entry += 2, channels += lanes) {
        for (int i = 0; i < lanes; ++i) {
            channels[i] = static_cast<BYTE>(sums[i] >> 7);
            sums[i] = static_cast<std::uint16_t>(sums[i] + steps[i]);
        }
    }
}

void BuildPalette(const ShadeColors& colors, RGBQUAD (&palette)[paletteSize])
{
    // Kept: the second half begins one step on the way to the highlight colour, so that entry 128
    // is a touch lighter than the face colour, which no entry is, and entry 255 is the highlight
    // itself.
    WriteRamp(palette, colors.shadow, colors.face, 0);
    WriteRamp(palette + 128, colors.face, colors.highlight, 1);
}

void StorePalette(const PaletteDib& dib, const RGBQUAD (&palette)[paletteSize])
{
    if (dib.IsValid())
        std::memcpy(dib.GetPalette(), palette, sizeof(palette));
}

// Alternates shadow and highlight colour along a line of pixels that lie step bytes apart.
void DotLine(const PaletteDib& line, int length, int step)
{
    BYTE* pixel = line.GetBits();
    if (pixel == nullptr)
        return;
    for (int i = 0; i < length; ++i, pixel += step)
        *pixel = i % 2 == 0 ? 0 : 255;
}

// The length of a focus line along a side; long long, since any border may be asked for.
int LineLength(int side, int border)
{
    const long long length = side - 2LL * border - 1;
    if (length < 1)
        return 1;
    return length > INT_MAX ? INT_MAX : static_cast<int>(length);
}

void FillFace(PaletteDib& face, const ShadeLook& look, ShadeRandom& random, ShadeEngine engine)
{
    if (!face.IsValid())
        return;
    const ShadeSurface surface = {face.GetBits(), face.GetWidth(), face.GetHeight(),
                                  face.GetStride()};
    if (!FillShadePixels(surface, look.style, look.granularity, random, engine))
        face.Destroy();
}

} // namespace

ShadeColors ShadeColors::OfSystem()
{
    return {::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNFACE),
            ::GetSysColor(COLOR_BTNHIGHLIGHT)};
}

void FillShadeFaces(const ShadeFaces& faces, int width, int height, int border,
                    const ShadeLook& look, const ShadeColors& colors, ShadeRandom& random,
                    ShadeEngine engine)
{
    faces.focusH.Create(LineLength(width, border), 1, 8);
    faces.focusV.Create(1, LineLength(height, border), 8);
    faces.normal.Create(width, height, 8);

    RGBQUAD palette[paletteSize];
    BuildPalette(colors, palette);
    StorePalette(faces.normal, palette);
    StorePalette(faces.focusH, palette);
    StorePalette(faces.focusV, palette);
    faces.normal.BlendPalette(look.color, look.coloring);

    DotLine(faces.focusH, faces.focusH.GetWidth(), 1);
    DotLine(faces.focusV, faces.focusV.GetHeight(), faces.focusV.GetStride());

    FillFace(faces.normal, look, random, engine);

    faces.disabled.Clone(faces.normal);
    faces.over.Clone(faces.normal);
    faces.over.BlendPalette(colors.highlight, look.highlight);
    faces.down.Clone(faces.over);
}
