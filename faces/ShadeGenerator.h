// The faces of a shaded button: six bitmaps made from a style, three colours and a tint.
#pragma once

#include "faces/PaletteDib.h"
#include "faces/ShadePixels.h"

/// What a shaded button is to look like.
struct ShadeLook
{
    UINT style;       ///< SHADE_NOISE ... SHADE_SCRATCHED; others look like SHADE_NOISE.
    BYTE granularity; ///< Amplitude of the grain.
    BYTE highlight;   ///< Percent that the hot and pressed faces move toward the highlight colour.
    BYTE coloring;    ///< Percent that all faces move toward `color`.
    COLORREF color;
};

/// The three colours that a palette runs through, index 0 to 255.
struct ShadeColors
{
    COLORREF shadow;
    COLORREF face;
    COLORREF highlight;

    /// The system's button colours of this moment.
    static ShadeColors OfSystem();
};

/// The bitmaps of one button, which stay the button's.
struct ShadeFaces
{
    PaletteDib& normal;
    PaletteDib& down;
    PaletteDib& disabled;
    PaletteDib& over;
    PaletteDib& focusH;
    PaletteDib& focusV;
};

/// Makes all six bitmaps for a button of width x height pixels with its focus lines border pixels
/// inside its edges. Bitmaps that cannot be made are left empty.
void FillShadeFaces(const ShadeFaces& faces, int width, int height, int border,
                    const ShadeLook& look, const ShadeColors& colors, ShadeRandom& random,
                    ShadeEngine engine = BestShadeEngine());
