// What pixels are written to.
#pragma once

#include <cstddef>
#include <cstdint>

/// Rows of 8-bit pixels, the bottom row first.
struct ShadeSurface
{
    std::uint8_t* bits;
    int width;
    int height;
    std::ptrdiff_t stride; ///< Bytes from one row to the next.
};
