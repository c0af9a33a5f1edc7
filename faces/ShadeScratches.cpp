#include "faces/ShadeScratches.h"

#include "faces/ShadeGrain.h"

#include <algorithm>

namespace {

constexpr int indexDivisor = 819; // Gives indices 0 to 40.

/// Pixels are set eight at a time, the last one of the rest more than once if need be: most
/// scratches of a button are no longer, and a loop whose length cannot be foreseen costs more than
/// the pixels.
void SetDiagonal(std::uint8_t* pixel, std::ptrdiff_t step, int count, std::uint8_t index)
{
    constexpr int atOnce = 8;
    for (; count > atOnce; count -= atOnce, pixel += atOnce * step) {
        for (int i = 0; i < atOnce; ++i)
            pixel[i * step] = index;
    }
    for (int i = 0; i < atOnce; ++i)
        pixel[std::min(i, count - 1) * step] = index;
}

} // namespace

ShadeScratches::ShadeScratches(int width, int height, ShadeRandom& random)
    : m_width(width), m_height(height)
{
    const int maxX = ShadeRandom::largest / width;
    const int maxY = ShadeRandom::largest / height;
    if (maxX == 0 || maxY == 0)
        return;
    const GrainDivider dividerX = DividerOf(maxX);
    const GrainDivider dividerY = DividerOf(maxY);
    const GrainDivider dividerLength = DividerOf(std::max(maxX, maxY));
    for (int i = 0; i < scratchCount; ++i) {
        const int x = dividerX.Divide(random.Next());
        const int y = dividerY.Divide(random.Next());
        const int half = dividerLength.Divide(random.Next()) / 2;
        const auto index = static_cast<std::uint8_t>(random.Next() / indexDivisor);
        Keep(LeftHalf(x, y, half, index));
        Keep(RightHalf(x, y, half, index));
    }
}

void ShadeScratches::Draw(const ShadeSurface& surface, int first, int end) const
{
    for (int i = 0; i < m_count; ++i) {
        const Half& half = m_halves[i];
        const int from = std::max(first, half.first);
        const int count = std::min(end, half.end) - from;
        if (count > 0)
            SetDiagonal(surface.bits + from * surface.stride + from + half.diagonal,
                        surface.stride + 1, count, half.index);
    }
}

/// The pixels (x - i, y + i), y from the top, for which 0 < x - i < width and y + i < height.
/// x and y may lie just outside the face.
ShadeScratches::Half ShadeScratches::LeftHalf(int x, int y, int half, std::uint8_t index) const
{
    const int first = std::max(0, x - m_width + 1);
    const int end = std::min({half, x, m_height - y});
    const int row = m_height - 1 - y;
    return {row - end + 1, row - first + 1, x - row, index};
}

/// The pixels (width - x + i, y - i).
// Kept: the half starts at the mirrored column, while its bounds are tested without mirroring
// (x + i < width, y - i > 0), which scatters it to the other side. What is outside the face all
// the same is dropped: i < x, and at the start what is left of it or below it.
ShadeScratches::Half ShadeScratches::RightHalf(int x, int y, int half, std::uint8_t index) const
{
    const int first = std::max({0, x - m_width, y - m_height + 1});
    const int end = std::min({half, x, m_width - x, y});
    const int row = m_height - 1 - y;
    return {row + first, row + end, m_width - x - row, index};
}

/// An empty half is overwritten by the next.
void ShadeScratches::Keep(const Half& half)
{
    m_halves[m_count] = half;
    m_count += half.first < half.end;
}
