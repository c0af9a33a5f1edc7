// The diagonal scratches of a scratched face: chosen once, drawn band by band.
#pragma once

#include "faces/ShadeRandom.h"
#include "faces/ShadeSurface.h"

#include <cstdint>

class ShadeScratches
{
public:
    /// Chooses 200 scratches, each of two halves, for a face of that size, four random numbers a
    /// scratch. A face with a side beyond 32767 gets none and draws no number.
    ShadeScratches(int width, int height, ShadeRandom& random);

    /// Draws what lies within the rows `first` to `end` - 1, in storage order.
    void Draw(const ShadeSurface& surface, int first, int end) const;

private:
    /// A run of pixels along a diagonal, on which the column is the row plus a fixed number.
    struct Half
    {
        int first; // Rows, in storage order.
        int end;
        int diagonal;
        std::uint8_t index;
    };

    Half LeftHalf(int x, int y, int half, std::uint8_t index) const;
    Half RightHalf(int x, int y, int half, std::uint8_t index) const;
    void Keep(const Half& half);

    static constexpr int scratchCount = 200;

    const int m_width;
    const int m_height;
    int m_count = 0;
    Half m_halves[scratchCount * 2 + 1]; // One more to write into without asking.
};
