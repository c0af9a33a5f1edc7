#include "controls/ShadePixels.h"

#include "controls/CpuFeatures.h"
#include "controls/ShadeGrain.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

namespace {

using std::int64_t;
using std::uint8_t;

constexpr int kScratchCount = 200;
constexpr int kScratchDivisor = 819; // gives indices 0 to 40
constexpr int kScratchRoom = 40;     // what the ramp of a scratched face leaves for them
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
        m_columns.reset(new (std::nothrow) std::int16_t[rounded]());
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
    std::int16_t* columns; // per column
    std::uint32_t* states; // of the grain of columns

private:
    std::unique_ptr<uint8_t[]> m_bytes;
    std::unique_ptr<std::int16_t[]> m_columns;
    std::unique_ptr<std::uint32_t[]> m_states;
};

// The position along a side, -127 to 127.
int ProfilePosition(int64_t position, int length)
{
    return static_cast<int>(255 * position / length - 127);
}

// The cubic profile of that position, -125 to 125.
int CubicProfile(int64_t position, int length)
{
    const int t = ProfilePosition(position, length);
    return t * t * t / 128 / 128;
}

// One fill of one surface.
class ShadeFill
{
public:
    ShadeFill(const ShadeSurface& surface, uint8_t granularity, ShadeRandom& random,
              const GrainKernels& kernels, WorkRows& rows)
        : m_surface(surface), m_width(surface.width), m_height(surface.height), m_grain(granularity),
          m_low(granularity), m_high(255 - granularity),
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
        SetRows([](int) { return 128; });
        GrainAlongRows();
    }

    void FillDiagonal()
    {
        const int64_t rise = (m_high - m_low) / 2;
        SetColumns([&](int x) { return m_low + rise * (m_width - x) / m_width; });
        SetRows([&](int r) { return rise * r / m_height; });
        GrainAlongRows();
    }

    void FillRows()
    {
        const int64_t rise = m_high - m_low;
        SetRows([&](int r) { return m_low + r * rise / m_height; });
        GrainAlongRows();
    }

    void FillColumns()
    {
        const int64_t rise = m_high - m_low;
        SetColumns([&](int x) { return m_low + rise * (m_width - x) / m_width; });
        GrainAlongColumns();
    }

    void FillRowBump()
    {
        SetRows([&](int r) { return BumpOf(CubicProfile(r, m_height)); });
        GrainAlongRows();
    }

    void FillColumnBump()
    {
        SetColumns([&](int x) { return BumpOf(CubicProfile(m_width - x, m_width)); });
        GrainAlongColumns();
    }

    // Neighbouring rows often have the same profile; each run of them is one job.
    void FillCrossBump()
    {
        for (int x = 0; x < m_width; ++x)
            m_rows.columns[x] = static_cast<std::int16_t>(CubicProfile(m_width - x, m_width));
        SetRows([](int) { return 0; });

        GrainJob job = JobOf(m_random.GetState());
        for (int r = 0; r < m_height; r += job.rows) {
            const int profile = CubicProfile(r, m_height);
            job.rows = 1;
            while (r + job.rows < m_height && CubicProfile(r + job.rows, m_height) == profile)
                ++job.rows;
            BuildCrossBumpRow(profile);
            job.bits = RowOf(r);
            job.add = m_rows.add + r;
            job.state = m_kernels.grainRows(job);
        }
        m_random.Skip(PixelCount());
    }

    void BuildCrossBumpRow(int profile)
    {
        CrossBumpJob job;
        job.bits = m_rows.base;
        job.width = m_width;
        job.columns = m_rows.columns;
        job.row = static_cast<std::int16_t>(profile);
        job.scale = static_cast<std::int16_t>(128 - m_grain);
        job.low = static_cast<std::int16_t>(m_low);
        job.high = static_cast<std::int16_t>(m_high);
        m_kernels.crossBump(job);
    }

    // The second pass goes over each row right after the first, with the numbers that it would
    // draw if the whole first pass had gone before.
    void FillRoundedBump()
    {
        SetRows([&](int r) {
            return 2 * (CubicProfile(r, m_height) * (64 - m_grain)) / 128 + 128;
        });
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

    void FillScratched()
    {
        for (int r = 0; r < m_height; ++r)
            std::memset(RowOf(r), 0, m_width);
        DrawScratches();

        const int64_t rise = (m_high - m_low - kScratchRoom) / 2;
        // Kept: the grain of a scratched face is not centred; it goes from 0 to about twice g.
        for (int r = 0; r < m_height; ++r)
            m_rows.add[r] = static_cast<uint8_t>(rise * r / m_height);
        SetColumns([&](int x) { return rise * (m_width - x) / m_width; });

        GrainJob job = JobOf(m_random.GetState());
        job.rows = 1;
        job.base = m_rows.row;
        for (int r = 0; r < m_height; ++r) {
            job.bits = RowOf(r);
            for (int x = 0; x < m_width; ++x)
                m_rows.row[x] = static_cast<uint8_t>(job.bits[x] + m_rows.base[x]);
            job.add = m_rows.add + r;
            job.state = m_kernels.grainRows(job);
        }
        m_random.Skip(PixelCount());
    }

    void DrawScratches()
    {
        const int divisorX = ShadeRandom::kMax / m_width;
        const int divisorY = ShadeRandom::kMax / m_height;
        const int divisorLength = ShadeRandom::kMax / std::min(m_width, m_height);
        if (divisorX == 0 || divisorY == 0)
            return;
        for (int i = 0; i < kScratchCount; ++i) {
            const int x = m_random.Next() / divisorX;
            const int y = m_random.Next() / divisorY;
            const int length = m_random.Next() / divisorLength;
            const int index = m_random.Next() / kScratchDivisor;
            DrawScratch(x, y, length / 2, static_cast<uint8_t>(index));
        }
    }

    // y counts from the top. x and y may lie just outside the face.
    void DrawScratch(int x, int y, int half, uint8_t index)
    {
        // To the left and down from (x, y): the steps for which 0 < x - i < width and
        // y + i < height.
        const int leftFirst = std::max(0, x - m_width + 1);
        const int leftEnd = std::min({half, x, m_height - y});
        DrawLine(x, y, -1, leftFirst, leftEnd, index);

        // Kept: the other half starts at the mirrored column, while its bounds are tested without
        // the mirroring (x + i < width), which scatters it to the other side. Here too the column
        // itself must be inside: i < x.
        const int rightFirst = std::max({0, x - m_width, y - m_height + 1});
        const int rightEnd = std::min({half, x, m_width - x, y});
        DrawLine(m_width - x, y, 1, rightFirst, rightEnd, index);
    }

    // Steps first to end - 1 of the line from (x, y): to the right and up, or to the left and down.
    void DrawLine(int x, int y, int direction, int first, int end, uint8_t index)
    {
        if (first >= end)
            return;
        uint8_t* pixel = RowOf(m_height - 1 - y + direction * first) + x + direction * first;
        const std::ptrdiff_t step = direction * (m_surface.stride + 1);
        for (int i = first; i < end - 1; ++i, pixel += step)
            *pixel = index;
        *pixel = index;
    }

    // A profile lessened by the grain and set on mid-grey.
    int BumpOf(int profile) const { return profile * (128 - m_grain) / 128 + 128; }

    template <class Term>
    void SetColumns(Term term)
    {
        for (int x = 0; x < m_width; ++x)
            m_rows.base[x] = static_cast<uint8_t>(term(x));
    }

    // Takes in that grain reaches as far down as up.
    template <class Term>
    void SetRows(Term term)
    {
        for (int r = 0; r < m_height; ++r)
            m_rows.add[r] = static_cast<uint8_t>(term(r) - m_grain);
    }

    void GrainAlongRows()
    {
        m_kernels.grainRows(JobOf(m_random.GetState()));
        m_random.Skip(PixelCount());
    }

    void GrainAlongColumns()
    {
        SetRows([](int) { return 0; });
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
    std::uint64_t PixelCount() const { return std::uint64_t(m_width) * m_height; }

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
    WorkRows rows(surface.width, surface.height);
    if (!rows.IsValid())
        return false;
    const GrainKernels kernels =
        engine == ShadeEngine::Avx2 ? GrainKernelsAvx2() : GrainKernelsSse2();
    ShadeFill(surface, granularity, random, kernels, rows).Run(style);
    return true;
}
