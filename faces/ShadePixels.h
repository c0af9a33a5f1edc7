// The pixels of a shaded face: what palette index each style gives each pixel.
#pragma once

#include "faces/ShadeRandom.h"
#include "faces/ShadeStyle.h"
#include "faces/ShadeSurface.h"

#include <cstdint>

/// The instruction sets that pixels can be made with; what comes out is the same.
enum class ShadeEngine { Sse2, Avx2 };

/// The fastest engine of this processor.
ShadeEngine BestShadeEngine();
bool HasShadeEngine(ShadeEngine engine);

/// Writes the palette index of every pixel, one or two random numbers a pixel. Bytes between the
/// rows stay as they are. A style other than those above acts as SHADE_NOISE. False, with nothing
/// written or drawn from the stream, when there is no memory for the working rows or a side has
/// 2^26 pixels or more.
///
/// Where a side is too short (or, for scratches, too long) for a divisor of the style to be other
/// than zero, only what that divisor is needed for is left out:
/// - SHADE_ROUNDED_BUMP: lower than 2 pixels, the whole second pass and its random numbers;
/// narrower
///   than 6, the side ramps alone, the second grain being added all the same.
/// - SHADE_SCRATCHED: a side beyond 32767, the scratches and their random numbers.
bool FillShadePixels(const ShadeSurface& surface, unsigned style, std::uint8_t granularity,
                     ShadeRandom& random, ShadeEngine engine = BestShadeEngine());
