// The plain making of pixels, to measure against.
#pragma once

#include "faces/ShadePixels.h"

/// The shade styles as a careful programmer writes them without vectors: terms of rows and columns
/// are computed once, each random number is one call of the run-time's rand and one division.
void FillPlainPixels(const ShadeSurface& surface, unsigned style, int granularity);
