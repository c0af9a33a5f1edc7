// The inner loops of the pixels, and the arithmetic they share: one set of loops for each
// instruction set.
#pragma once

#include "faces/ShadeRandom.h"

#include <cstddef>
#include <cstdint>

/// Division of random numbers (0 to 32767) by a fixed divisor, made of a multiplication and a
/// shift: number / divisor = number * factor >> shift.
struct GrainDivider
{
    std::uint32_t factor; ///< Below 2^16 for all divisors but 1.
    int shift;            ///< 16 or more for all divisors but 1.

    int Divide(int number) const
    {
        return static_cast<int>(static_cast<std::uint32_t>(number) * factor >> shift);
    }
};

/// Exact for every number; the divisor is 1 to 32767.
GrainDivider DividerOf(int divisor);

/// What the grain of some rows is made of. Every pixel is base[x] + add[row] + number / divisor,
/// the low 8 bits of it, with the random numbers taken pixel by pixel.
struct GrainJob
{
    std::uint8_t* bits; ///< The first row.
    std::ptrdiff_t stride;
    int width;
    int rows;
    const std::uint8_t* base; ///< Readable up to width rounded up to grainBlock.
    const std::uint8_t* add;  ///< One a row.
    GrainDivider divider;     ///< Of 2 or more.
    std::uint32_t state;      ///< Of the stream, before the first pixel's number.
    RandomJump lineJump;      ///< The steps of one row, or of one column where columns go first.
};

/// Widths of row buffers are rounded up to a multiple of this.
constexpr int grainBlock = 32;

/// What the profile of one row of crossing bumps is made of: (columns[x] + row) / 128 + 128, kept
/// at or above low first, at or below high then.
struct CrossBumpJob
{
    std::uint8_t* bits; ///< Writable up to width rounded up to grainBlock.
    int width;
    const std::int16_t* columns; ///< Readable as far; no sum with row may leave 16 bits.
    std::int16_t row;
    std::uint8_t low;
    std::uint8_t high;
};

/// The inner loops, one set for each instruction set.
struct GrainKernels
{
    /// Numbers go along the rows. Returns the state after the last pixel's number.
    std::uint32_t (*grainRows)(const GrainJob& job);
    /// Numbers go along the columns, column after column. states is room to work in: two words for
    /// each column of the rounded width.
    void (*grainColumns)(const GrainJob& job, std::uint32_t* states);
    void (*crossBump)(const CrossBumpJob& job);
};

GrainKernels GrainKernelsSse2();
GrainKernels GrainKernelsAvx2();
