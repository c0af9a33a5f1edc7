#pragma once

#include "controls/ShadeRandom.h"

#include <cstddef>
#include <cstdint>

// Division of random numbers (0 to 32767) by a fixed divisor (1 to 32767), made of a
// multiplication and a shift: number / divisor = (2 * number * factor >> 16) >> shift.
struct GrainDivider
{
    std::uint16_t factor;
    std::uint16_t shift;
};

// Exact for every number.
GrainDivider DividerOf(int divisor);

// What the grain of some rows is made of. Every pixel is base[x] + add[row] + number / divisor, the
// low 8 bits of it, with the random numbers taken pixel by pixel.
struct GrainJob
{
    std::uint8_t* bits; // the first row
    std::ptrdiff_t stride;
    int width;
    int rows;
    const std::uint8_t* base; // readable up to width rounded up to kGrainBlock
    const std::uint8_t* add;  // one a row
    GrainDivider divider;
    std::uint32_t state; // of the stream, before the first pixel's number
    RandomLeap lineLeap; // the steps of one row, or of one column where columns go first
};

// Widths of row buffers are rounded up to a multiple of this.
constexpr int kGrainBlock = 32;

// What the profile of one row of crossing bumps is made of: (column[x] + row) * scale / 128 + 128,
// kept at or above low first, at or below high then.
struct CrossBumpJob
{
    std::uint8_t* bits; // writable up to width rounded up to kGrainBlock
    int width;
    const std::int16_t* columns; // readable as far; -125 to 125
    std::int16_t row;            // -125 to 125
    std::int16_t scale;          // -127 to 128
    std::int16_t low;            // 0 to 255
    std::int16_t high;           // 0 to 255
};

// The inner loops, one set for each instruction set.
struct GrainKernels
{
    // Numbers go along the rows. Returns the state after the last pixel's number.
    std::uint32_t (*grainRows)(const GrainJob& job);
    // Numbers go along the columns, column after column. states is room to work in: two words for
    // each column of the rounded width.
    void (*grainColumns)(const GrainJob& job, std::uint32_t* states);
    void (*crossBump)(const CrossBumpJob& job);
};

GrainKernels GrainKernelsSse2();
GrainKernels GrainKernelsAvx2();
