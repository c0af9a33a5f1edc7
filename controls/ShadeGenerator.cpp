#include "controls/ShadeGenerator.h"

#include <cstring>

namespace {

constexpr int kPaletteSize = 256;

// One channel of one colour on the way from `from` (part 0) to `to` (part 128).
BYTE MixOn128(BYTE from, BYTE to, int part)
{
    return static_cast<BYTE>((from * (128 - part) + to * part) / 128);
}

RGBQUAD MixColors(COLORREF from, COLORREF to, int part)
{
    return {MixOn128(GetBValue(from), GetBValue(to), part),
            MixOn128(GetGValue(from), GetGValue(to), part),
            MixOn128(GetRValue(from), GetRValue(to), part), 0};
}

void BuildPalette(const ShadeColors& colors, RGBQUAD (&palette)[kPaletteSize])
{
    for (int i = 0; i <= 128; ++i)
        palette[i] = MixColors(colors.shadow, colors.face, i);
    // Kept: the second half starts on the last entry of the first, so that entry 128 is a touch
    // lighter than the face colour and entry 255 is the highlight colour itself.
    for (int j = 1; j <= 128; ++j)
        palette[j + 127] = MixColors(colors.face, colors.highlight, j);
}

void StorePalette(const PaletteDib& dib, const RGBQUAD (&palette)[kPaletteSize])
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

    RGBQUAD palette[kPaletteSize];
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
