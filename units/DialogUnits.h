// Dialog units of the toolkit's reference font, 8-point "MS Mincho", and the grid they make.
//
// The base units are measured anew at every conversion, so that a change of the display or of the
// installed fonts is seen at once. Where the face is not installed the system's own dialog base
// units stand in.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

/// Measures the reference font: its average character width and its line height in pixels.
UMBRA_API void GetFontBaseUnits(unsigned int* pHorizontal, unsigned int* pVertical);

/// The nearest whole number; an exact half goes down (2.5 gives 2, -2.5 gives -3).
UMBRA_API int RoundHalfDown(double x);

/// Converts a rectangle from pixels to dialog units of the reference font.
UMBRA_API void PixelsToDialogUnits(int x, int y, int cx, int cy, int* pX, int* pY, int* pCx,
                                   int* pCy);

/// Converts a rectangle from dialog units of the reference font to pixels. A negative value comes
/// out as a very large positive one.
UMBRA_API void DialogUnitsToPixels(int x, int y, int cx, int cy, int* pX, int* pY, int* pCx,
                                   int* pCy);

/// Moves the rectangle of a window that is about to be created onto the dialog-unit grid.
UMBRA_API void SnapToDialogUnits(CREATESTRUCT& creation);

/// The conversions on given base units.
namespace DialogUnits {

/// Base units in pixels: four horizontal dialog units are `horizontal` pixels wide, eight vertical
/// ones `vertical` pixels high.
struct Base
{
    unsigned int horizontal;
    unsigned int vertical;
};

/// Position and size, in pixels or in dialog units.
struct Box
{
    int x;
    int y;
    int cx;
    int cy;
};

UMBRA_API Box FromPixels(const Box& pixels, const Base& base);
UMBRA_API Box ToPixels(const Box& units, const Base& base);

} // namespace DialogUnits
