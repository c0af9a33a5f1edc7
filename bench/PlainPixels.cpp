#include "bench/PlainPixels.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using Terms = std::vector<int>;

int Cubic(int position, int length)
{
    const int t = 255 * position / length - 127;
    return t * t * t / 128 / 128;
}

struct PlainFill
{
    PlainFill(const ShadeSurface& surface, int granularity)
        : width(surface.width), height(surface.height), g(granularity), low(granularity),
          high(255 - granularity), divisor(RAND_MAX / std::max(2 * granularity, 1)),
          surface(surface), columns(surface.width), rows(surface.height)
    {
    }

    int Noise() const { return std::rand() / divisor - g; }
    std::uint8_t* RowOf(int r) const { return surface.bits + r * surface.stride; }

    template <class Term>
    void SetColumns(Term term)
    {
        for (int x = 0; x < width; ++x)
            columns[x] = term(x);
    }

    template <class Term>
    void SetRows(Term term)
    {
        for (int r = 0; r < height; ++r)
            rows[r] = term(r);
    }

    void AlongRows()
    {
        for (int r = 0; r < height; ++r) {
            std::uint8_t* row = RowOf(r);
            for (int x = 0; x < width; ++x)
                row[x] = static_cast<std::uint8_t>(rows[r] + columns[x] + Noise());
        }
    }

    void AlongColumns()
    {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* pixel = surface.bits + x;
            for (int r = 0; r < height; ++r, pixel += surface.stride)
                *pixel = static_cast<std::uint8_t>(columns[x] + Noise());
        }
    }

    void CrossBump()
    {
        for (int r = 0; r < height; ++r) {
            std::uint8_t* row = RowOf(r);
            for (int x = 0; x < width; ++x) {
                const int value = (columns[x] + rows[r]) * (128 - g) / 128 + 128;
                row[x] = static_cast<std::uint8_t>(std::min(std::max(value, low), high) + Noise());
            }
        }
    }

    void RoundSides()
    {
        const int k = std::min(width / 6, 16);
        const int d = height * height / 4;
        if (k == 0 || d == 0)
            return;
        Terms left(width);
        Terms right(width);
        for (int x = 0; x < width; ++x) {
            left[x] = high - 128 * x / k;
            right[x] = 128 * (width - x) / k + low;
        }
        for (int r = 0; r < height; ++r) {
            std::uint8_t* row = RowOf(r);
            const int dy = r - height / 2;
            const int e = k * dy * dy / d + width / 2 - k;
            for (int x = 0; x < width; ++x) {
                const int dx = x - width / 2;
                if (dx > e)
                    row[x] = static_cast<std::uint8_t>(right[x]);
                if (dx + e < 0)
                    row[x] = static_cast<std::uint8_t>(left[x]);
                row[x] = static_cast<std::uint8_t>(row[x] + Noise());
            }
        }
    }

    void SetFromTop(int x, int y, int value) const
    {
        if (x >= 0 && y >= 0 && x < width && y < height)
            RowOf(height - y - 1)[x] = static_cast<std::uint8_t>(value);
    }

    void Scratch() const
    {
        for (int scratch = 0; scratch < 200; ++scratch) {
            const int x = std::rand() / (RAND_MAX / width);
            const int y = std::rand() / (RAND_MAX / height);
            const int half = std::rand() / (RAND_MAX / std::min(width, height)) / 2;
            const int index = std::rand() / 819;
            for (int i = 0; i < half; ++i) {
                if (x - i > 0 && y + i < height)
                    SetFromTop(x - i, y + i, index);
                if (x + i < width && y - i > 0)
                    SetFromTop(width - x + i, y - i, index);
            }
        }
    }

    void AddRampAndGrain()
    {
        for (int r = 0; r < height; ++r) {
            std::uint8_t* row = RowOf(r);
            for (int x = 0; x < width; ++x)
                row[x] = static_cast<std::uint8_t>(row[x] + columns[x] + rows[r] +
                                                   std::rand() / divisor);
        }
    }

    const int width;
    const int height;
    const int g;
    const int low;
    const int high;
    const int divisor;
    const ShadeSurface& surface;
    Terms columns;
    Terms rows;
};

} // namespace

void FillPlainPixels(const ShadeSurface& surface, unsigned style, int granularity)
{
    PlainFill fill(surface, granularity);
    const int width = surface.width;
    const int height = surface.height;
    const int rise = fill.high - fill.low;
    const int scale = 128 - granularity;

    switch (style) {
    case SHADE_DIAGONAL:
        fill.SetColumns([&](int x) { return fill.low + rise / 2 * (width - x) / width; });
        fill.SetRows([&](int r) { return rise / 2 * r / height; });
        return fill.AlongRows();
    case SHADE_ROWS:
        fill.SetRows([&](int r) { return fill.low + r * rise / height; });
        return fill.AlongRows();
    case SHADE_COLUMNS:
        fill.SetColumns([&](int x) { return fill.low + rise * (width - x) / width; });
        return fill.AlongColumns();
    case SHADE_ROW_BUMP:
        fill.SetRows([&](int r) { return Cubic(r, height) * scale / 128 + 128; });
        return fill.AlongRows();
    case SHADE_COLUMN_BUMP:
        fill.SetColumns([&](int x) { return Cubic(width - x, width) * scale / 128 + 128; });
        return fill.AlongColumns();
    case SHADE_CROSS_BUMP:
        fill.SetColumns([&](int x) { return Cubic(width - x, width); });
        fill.SetRows([&](int r) { return Cubic(r, height); });
        return fill.CrossBump();
    case SHADE_ROUNDED_BUMP:
        fill.SetRows(
            [&](int r) { return 2 * (Cubic(r, height) * (64 - granularity)) / 128 + 128; });
        fill.AlongRows();
        return fill.RoundSides();
    case SHADE_SCRATCHED:
        std::memset(surface.bits, 0, surface.stride * height);
        fill.Scratch();
        fill.SetColumns([&](int x) { return (rise - 40) / 2 * (width - x) / width; });
        fill.SetRows([&](int r) { return (rise - 40) / 2 * r / height; });
        return fill.AddRampAndGrain();
    default:
        fill.SetRows([](int) { return 128; });
        return fill.AlongRows();
    }
}
