#include "faces/ShadePixels.h"

#include "faces/CpuFeatures.h"
#include "faces/ShadeGrain.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

namespace {

using std::int16_t;
using std::int64_t;
using std::uint64_t;
using std::uint8_t;

constexpr int kScratchCount = 200;
constexpr int kScratchDivisor = 819; // gives indices 0 to 40
constexpr int kScratchRoom = 40;     // what the ramp of a scratched face leaves for them
constexpr int kScratchBand = 131072; // bytes of a face that stay near at hand
constexpr int kMaxRamp = 16;         // columns of the side ramps of a rounded bump

// Rows to work in, rounded up as the kernels need it.
class WorkRows
{
public:
    WorkRows(int width, int height)
    {
        const std::size_t rounded =
            (static_cast<std::size_t>(width) + kGrainBlock - 1) / kGrainBlock * kGrainBlock;
        m_states.reset(new (std::nothrow) std::uint32_t[rounded * 2]);
        m_columns.reset(new (std::nothrow) int16_t[rounded]());
        m_bytes.reset(new (std::nothrow) uint8_t[rounded * 2 + height]());
        base = m_bytes.get();
        row = base + rounded;
        add = row + rounded;
        states = m_states.get();
        columns = m_columns.get();
    }

    bool IsValid() const { return m_bytes && m_columns && m_states; }

    uint8_t* base;         // per column, zeros at first
    uint8_t* row;          // one row on its way to the surface
    uint8_t* add;          // per row, zeros at first
    int16_t* columns;      // per column
    std::uint32_t* states; // of the grain of columns

private:
    std::unique_ptr<uint8_t[]> m_bytes;
    std::unique_ptr<int16_t[]> m_columns;
    std::unique_ptr<std::uint32_t[]> m_states;
};

// rise * i / length for i = 0, 1, 2, ... length, rounded toward zero, without dividing each time.
//
// The step is a little too large, by less than 2^-52; after `length` steps that is less than
// 1 / length as long as length < 2^26, too little to reach the next whole number. With |rise| below
// 2^10 the sum stays within 63 bits.
class Ramp
{
public:
    static constexpr int kMaxLength = 1 << 26;

    Ramp(int rise, int length)
        : m_step((static_cast<uint64_t>(rise < 0 ? -rise : rise) << kFraction) / length + 1),
          m_negative(rise < 0)
    {
    }

    void Advance() { m_sum += m_step; }
    int Value() const
    {
        const int value = static_cast<int>(m_sum >> kFraction);
        return m_negative ? -value : value;
    }

private:
    static constexpr int kFraction = 52;

    uint64_t m_sum = 0;
    uint64_t m_step;
    bool m_negative;
};

// The cubic profile over a ramp of 0 to 255: -125 to 125.
int CubicProfile(int ramp)
{
    const int t = ramp - 127;
    return t * t * t / 128 / 128;
}

constexpr int kProfileRise = 255;

// Written over plain pointers for the compiler to make vectors of it.
void AddBytes(const uint8_t* first, const uint8_t* second, uint8_t* sum, int count)
{
    for (int i = 0; i < count; ++i)
        sum[i] = static_cast<uint8_t>(first[i] + second[i]);
}

// One fill of one surface.
class ShadeFill
{
public:
    ShadeFill(const ShadeSurface& surface, uint8_t granularity, ShadeRandom& random,
              const GrainKernels& kernels, WorkRows& rows)
        : m_surface(surface), m_width(surface.width), m_height(surface.height),
          m_grain(granularity), m_low(granularity), m_high(255 - granularity),
          m_divider(DividerOf(ShadeRandom::kMax / std::max(2 * granularity, 1))), m_random(random),
          m_kernels(kernels), m_rows(rows)
    {
    }

    void Run(unsigned style)
    {
        switch (style) {
        case SHADE_DIAGONAL:
            return FillDiagonal();
        case SHADE_ROWS:
            return FillRows();
        case SHADE_COLUMNS:
            return FillColumns();
        case SHADE_ROW_BUMP:
            return FillRowBump();
        case SHADE_COLUMN_BUMP:
            return FillColumnBump();
        case SHADE_CROSS_BUMP:
            return FillCrossBump();
        case SHADE_ROUNDED_BUMP:
            return FillRoundedBump();
        case SHADE_SCRATCHED:
            return FillScratched();
        default:
            return FillNoise();
        }
    }

private:
    void FillNoise()
    {
        SetRows(0, [](int) { return 128; });
        GrainAlongRows();
    }

    void FillDiagonal()
    {
        const int rise = (m_high - m_low) / 2;
        SetColumns(rise, [&](int ramp) { return m_low + ramp; });
        SetRows(rise, [](int ramp) { return ramp; });
        GrainAlongRows();
    }

    void FillRows()
    {
        SetRows(m_high - m_low, [&](int ramp) { return m_low + ramp; });
        GrainAlongRows();
    }

    void FillColumns()
    {
        SetColumns(m_high - m_low, [&](int ramp) { return m_low + ramp; });
        GrainAlongColumns();
    }

    void FillRowBump()
    {
        SetRows(kProfileRise, [&](int ramp) { return BumpOf(ramp); });
        GrainAlongRows();
    }

    void FillColumnBump()
    {
        SetColumns(kProfileRise, [&](int ramp) { return BumpOf(ramp); });
        GrainAlongColumns();
    }

    // Neighbouring rows often have the same profile; each run of them is one job.
    void FillCrossBump()
    {
        const int scale = 128 - m_grain;
        Ramp column(kProfileRise, m_width);
        for (int x = m_width - 1; x >= 0; --x) {
            column.Advance();
            m_rows.columns[x] = static_cast<int16_t>(CubicProfile(column.Value()) * scale);
        }
        SetRows(0, [](int) { return 0; });

        GrainJob job = JobOf(m_random.GetState());
        Ramp row(kProfileRise, m_height);
        for (int r = 0; r < m_height; r += job.rows) {
            const int profile = CubicProfile(row.Value());
            job.rows = 0;
            do {
                row.Advance();
                ++job.rows;
            } while (r + job.rows < m_height && CubicProfile(row.Value()) == profile);
            BuildCrossBumpRow(profile * scale);
            job.bits = RowOf(r);
            job.add = m_rows.add + r;
            job.state = m_kernels.grainRows(job);
        }
        m_random.Skip(PixelCount());
    }

    void BuildCrossBumpRow(int scaledProfile)
    {
        CrossBumpJob job;
        job.bits = m_rows.base;
        job.width = m_width;
        job.columns = m_rows.columns;
        job.row = static_cast<int16_t>(scaledProfile);
        job.low = static_cast<uint8_t>(m_low);
        job.high = static_cast<uint8_t>(m_high);
        m_kernels.crossBump(job);
    }

    // The second pass goes over each row right after the first, with the numbers that it would
    // draw if the whole first pass had gone before.
    void FillRoundedBump()
    {
        SetRows(kProfileRise,
                [&](int ramp) { return 2 * (CubicProfile(ramp) * (64 - m_grain)) / 128 + 128; });
        const int64_t divisor = int64_t{m_height} * m_height / 4;
        if (divisor == 0)
            return GrainAlongRows();

        SetSideRamps();
        const uint8_t centre = static_cast<uint8_t>(-m_grain);
        GrainJob first = JobOf(m_random.GetState());
        m_random.Skip(PixelCount());
        GrainJob second = JobOf(m_random.GetState());
        first.bits = m_rows.row;
        first.rows = second.rows = 1;
        second.base = m_rows.row;
        second.add = &centre;
        for (int r = 0; r < m_height; ++r) {
            first.add = m_rows.add + r;
            first.state = m_kernels.grainRows(first);
            LaySideRamps(r, divisor);
            second.bits = RowOf(r);
            second.state = m_kernels.grainRows(second);
        }
        m_random.Skip(PixelCount());
    }

    void SetSideRamps()
    {
        m_rampWidth = std::min(m_width / 6, kMaxRamp);
        for (int i = 0; m_rampWidth > 0 && i <= kMaxRamp; ++i) {
            m_leftRamp[i] = static_cast<uint8_t>(m_high - 128 * i / m_rampWidth);
            m_rightRamp[i] = static_cast<uint8_t>(128 * i / m_rampWidth + m_low);
        }
    }

    // Replaces the work row's ends; what lies beyond `edge` on either side of the middle belongs
    // to the ramps, never more than their width.
    void LaySideRamps(int r, int64_t divisor)
    {
        if (m_rampWidth == 0)
            return;
        const int64_t dy = r - m_height / 2;
        const int middle = m_width / 2;
        const int edge = static_cast<int>(m_rampWidth * dy * dy / divisor) + middle - m_rampWidth;
        for (int x = middle + edge + 1; x < m_width; ++x)
            m_rows.row[x] = m_rightRamp[m_width - x];
        for (int x = 0; x < middle - edge; ++x)
            m_rows.row[x] = m_leftRamp[x];
    }

    // Scratches are drawn band by band, while a band's rows are near at hand, and the ramp and the
    // grain are added to a band as soon as its scratches are in.
    void FillScratched()
    {
        Scratch scratches[kScratchCount * 2];
        const int count = ChooseScratches(scratches);

        const int rise = (m_high - m_low - kScratchRoom) / 2;
        SetColumns(rise, [](int ramp) { return ramp; });
        // Kept: the grain of a scratched face is not centred; it goes from 0 to about twice g.
        SetRows(rise, [&](int ramp) { return ramp + m_grain; });

        const int bandRows = static_cast<int>(std::max<std::ptrdiff_t>(
            1, kScratchBand / std::max<std::ptrdiff_t>(m_surface.stride, 1)));
        GrainJob job = JobOf(m_random.GetState());
        job.rows = 1;
        job.base = m_rows.row;
        for (int first = 0; first < m_height; first += std::min(bandRows, m_height - first)) {
            const int end = first + std::min(bandRows, m_height - first);
            for (int r = first; r < end; ++r)
                std::memset(RowOf(r), 0, m_width);
            for (int i = 0; i < count; ++i)
                DrawScratch(scratches[i], first, end);
            for (int r = first; r < end; ++r) {
                job.bits = RowOf(r);
                AddBytes(job.bits, m_rows.base, m_rows.row, m_width);
                job.add = m_rows.add + r;
                job.state = m_kernels.grainRows(job);
            }
        }
        m_random.Skip(PixelCount());
    }

    // A run of pixels along a diagonal, on which the column is the row plus a fixed number.
    struct Scratch
    {
        int first; // rows, in storage order
        int end;
        int diagonal;
        uint8_t index;
    };

    int ChooseScratches(Scratch* scratches)
    {
        const int maxX = ShadeRandom::kMax / m_width;
        const int maxY = ShadeRandom::kMax / m_height;
        if (maxX == 0 || maxY == 0)
            return 0;
        const GrainDivider dividerX = DividerOf(maxX);
        const GrainDivider dividerY = DividerOf(maxY);
        const GrainDivider dividerLength = DividerOf(std::max(maxX, maxY));
        int count = 0;
        for (int i = 0; i < kScratchCount; ++i) {
            const int x = dividerX.Divide(m_random.Next());
            const int y = dividerY.Divide(m_random.Next());
            const int half = dividerLength.Divide(m_random.Next()) / 2;
            const auto index = static_cast<uint8_t>(m_random.Next() / kScratchDivisor);
            // Empty halves are overwritten by the next.
            scratches[count] = LeftHalf(x, y, half, index);
            count += scratches[count].first < scratches[count].end;
            scratches[count] = RightHalf(x, y, half, index);
            count += scratches[count].first < scratches[count].end;
        }
        return count;
    }

    // The pixels (x - i, y + i), y from the top, for which 0 < x - i < width and y + i < height.
    // x and y may lie just outside the face.
    Scratch LeftHalf(int x, int y, int half, uint8_t index) const
    {
        const int first = std::max(0, x - m_width + 1);
        const int end = std::min({half, x, m_height - y});
        const int row = m_height - 1 - y;
        return {row - end + 1, row - first + 1, x - row, index};
    }

    // The pixels (width - x + i, y - i).
    // Kept: the half starts at the mirrored column, while its bounds are tested without mirroring
    // (x + i < width, y - i > 0), which scatters it to the other side. What is outside the face all
    // the same is dropped: i < x, and at the start what is left of it or below it.
    Scratch RightHalf(int x, int y, int half, uint8_t index) const
    {
        const int first = std::max({0, x - m_width, y - m_height + 1});
        const int end = std::min({half, x, m_width - x, y});
        const int row = m_height - 1 - y;
        return {row + first, row + end, m_width - x - row, index};
    }

    // The part within the rows first to end - 1. Pixels are set eight at a time, the last one of
    // the rest more than once if need be: most scratches of a button are no longer, and a loop
    // whose length cannot be foreseen costs more than the pixels.
    void DrawScratch(const Scratch& scratch, int first, int end) const
    {
        constexpr int kAtOnce = 8;
        first = std::max(first, scratch.first);
        int left = std::min(end, scratch.end) - first;
        if (left <= 0)
            return;
        const uint8_t index = scratch.index;
        const std::ptrdiff_t step = m_surface.stride + 1;
        uint8_t* pixel = RowOf(first) + first + scratch.diagonal;
        for (; left > kAtOnce; left -= kAtOnce, pixel += kAtOnce * step) {
            for (int i = 0; i < kAtOnce; ++i)
                pixel[i * step] = index;
        }
        for (int i = 0; i < kAtOnce; ++i)
            pixel[std::min(i, left - 1) * step] = index;
    }

    // The cubic profile lessened by the grain and set on mid-grey.
    int BumpOf(int ramp) const { return CubicProfile(ramp) * (128 - m_grain) / 128 + 128; }

    // The terms of the columns, over a ramp that is full at the left.
    template <class Term>
    void SetColumns(int rise, Term term)
    {
        Ramp ramp(rise, m_width);
        for (int x = m_width - 1; x >= 0; --x) {
            ramp.Advance();
            m_rows.base[x] = static_cast<uint8_t>(term(ramp.Value()));
        }
    }

    // The terms of the rows, over a ramp that begins at the bottom. They take in that grain reaches
    // as far down as up.
    template <class Term>
    void SetRows(int rise, Term term)
    {
        Ramp ramp(rise, m_height);
        for (int r = 0; r < m_height; ++r, ramp.Advance())
            m_rows.add[r] = static_cast<uint8_t>(term(ramp.Value()) - m_grain);
    }

    void GrainAlongRows()
    {
        m_kernels.grainRows(JobOf(m_random.GetState()));
        m_random.Skip(PixelCount());
    }

    void GrainAlongColumns()
    {
        SetRows(0, [](int) { return 0; });
        GrainJob job = JobOf(m_random.GetState());
        job.lineLeap = LeapOf(m_height);
        m_kernels.grainColumns(job, m_rows.states);
        m_random.Skip(PixelCount());
    }

    GrainJob JobOf(std::uint32_t state) const
    {
        GrainJob job;
        job.bits = m_surface.bits;
        job.stride = m_surface.stride;
        job.width = m_width;
        job.rows = m_height;
        job.base = m_rows.base;
        job.add = m_rows.add;
        job.divider = m_divider;
        job.state = state;
        job.lineLeap = LeapOf(m_width);
        return job;
    }

    uint8_t* RowOf(int r) const { return m_surface.bits + r * m_surface.stride; }
    uint64_t PixelCount() const { return uint64_t(m_width) * m_height; }

    const ShadeSurface& m_surface;
    const int m_width;
    const int m_height;
    const int m_grain;
    const int m_low;
    const int m_high;
    const GrainDivider m_divider;
    ShadeRandom& m_random;
    const GrainKernels& m_kernels;
    WorkRows& m_rows;

    int m_rampWidth = 0;
    uint8_t m_leftRamp[kMaxRamp + 1];  // by the column
    uint8_t m_rightRamp[kMaxRamp + 1]; // by the distance from the face's end
};

} // namespace

bool HasShadeEngine(ShadeEngine engine)
{
    return engine == ShadeEngine::Sse2 || CpuHasAvx2();
}

ShadeEngine BestShadeEngine()
{
    static const bool hasAvx2 = CpuHasAvx2();
    return hasAvx2 ? ShadeEngine::Avx2 : ShadeEngine::Sse2;
}

bool FillShadePixels(const ShadeSurface& surface, unsigned style, std::uint8_t granularity,
                     ShadeRandom& random, ShadeEngine engine)
{
    if (surface.bits == nullptr || surface.width <= 0 || surface.height <= 0)
        return true;
    if (surface.width >= Ramp::kMaxLength || surface.height >= Ramp::kMaxLength)
        return false;
    WorkRows rows(surface.width, surface.height);
    if (!rows.IsValid())
        return false;
    const GrainKernels kernels =
        engine == ShadeEngine::Avx2 ? GrainKernelsAvx2() : GrainKernelsSse2();
    ShadeFill(surface, granularity, random, kernels, rows).Run(style);
    return true;
}
