#include "faces/ShadePixels.h"

#include "faces/CpuFeatures.h"
#include "faces/ShadeGrain.h"
#include "faces/ShadeRamp.h"
#include "faces/ShadeScratches.h"
#include "faces/WorkRows.h"

#include <algorithm>
#include <cstring>

namespace {

using std::int16_t;
using std::int64_t;
using std::uint64_t;
using std::uint8_t;

constexpr int scratchRoom = 40;     // what the ramp of a scratched face leaves for them
constexpr int scratchBand = 131072; // bytes of a face that stay near at hand
constexpr int maxRamp = 16;         // columns of the side ramps of a rounded bump

constexpr int profileRise = 255;

/// Written over plain pointers for the compiler to make vectors of it.
void AddBytes(const uint8_t* first, const uint8_t* second, uint8_t* sum, int count)
{
    for (int i = 0; i < count; ++i)
        sum[i] = static_cast<uint8_t>(first[i] + second[i]);
}

/// One fill of one surface.
class ShadeFill
{
public:
    ShadeFill(const ShadeSurface& surface, uint8_t granularity, ShadeRandom& random,
              const GrainKernels& kernels, WorkRows& rows)
        : m_surface(surface), m_width(surface.width), m_height(surface.height),
          m_grain(granularity), m_low(granularity), m_high(255 - granularity),
          m_divider(DividerOf(ShadeRandom::largest / std::max(2 * granularity, 1))),
          m_random(random), m_kernels(kernels), m_rows(rows)
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
        SetRows(profileRise, [&](int ramp) { return BumpOf(ramp); });
        GrainAlongRows();
    }

    void FillColumnBump()
    {
        SetColumns(profileRise, [&](int ramp) { return BumpOf(ramp); });
        GrainAlongColumns();
    }

    /// Neighbouring rows often have the same profile; each run of them is one job.
    void FillCrossBump()
    {
        const int scale = 128 - m_grain;
        Ramp column(profileRise, m_width);
        for (int x = m_width - 1; x >= 0; --x) {
            column.Advance();
            m_rows.columns[x] = static_cast<int16_t>(CubicProfile(column.Value()) * scale);
        }
        SetRows(0, [](int) { return 0; });

        GrainJob job = JobOf(m_random.GetState());
        Ramp row(profileRise, m_height);
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

    /// The second pass goes over each row right after the first, with the numbers that it would
    /// draw if the whole first pass had gone before.
    void FillRoundedBump()
    {
        SetRows(profileRise,
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
        m_rampWidth = std::min(m_width / 6, maxRamp);
        for (int i = 0; m_rampWidth > 0 && i <= maxRamp; ++i) {
            m_leftRamp[i] = static_cast<uint8_t>(m_high - 128 * i / m_rampWidth);
            m_rightRamp[i] = static_cast<uint8_t>(128 * i / m_rampWidth + m_low);
        }
    }

    /// Replaces the work row's ends; what lies beyond `edge` on either side of the middle belongs
    /// to the ramps, never more than their width.
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

    /// Scratches are drawn band by band, while a band's rows are near at hand, and the ramp and the
    /// grain are added to a band as soon as its scratches are in.
    void FillScratched()
    {
        const ShadeScratches scratches(m_width, m_height, m_random);

        const int rise = (m_high - m_low - scratchRoom) / 2;
        SetColumns(rise, [](int ramp) { return ramp; });
        // Kept: the grain of a scratched face is not centred; it goes from 0 to about twice g.
        SetRows(rise, [&](int ramp) { return ramp + m_grain; });

        const int bandRows = static_cast<int>(std::max<std::ptrdiff_t>(
            1, scratchBand / std::max<std::ptrdiff_t>(m_surface.stride, 1)));
        GrainJob job = JobOf(m_random.GetState());
        job.rows = 1;
        job.base = m_rows.row;
        for (int first = 0; first < m_height; first += std::min(bandRows, m_height - first)) {
            const int end = first + std::min(bandRows, m_height - first);
            for (int r = first; r < end; ++r)
                std::memset(RowOf(r), 0, m_width);
            scratches.Draw(m_surface, first, end);
            for (int r = first; r < end; ++r) {
                job.bits = RowOf(r);
                AddBytes(job.bits, m_rows.base, m_rows.row, m_width);
                job.add = m_rows.add + r;
                job.state = m_kernels.grainRows(job);
            }
        }
        m_random.Skip(PixelCount());
    }

    /// The cubic profile lessened by the grain and set on mid-grey.
    int BumpOf(int ramp) const { return CubicProfile(ramp) * (128 - m_grain) / 128 + 128; }

    /// The terms of the columns, over a ramp that is full at the left.
    template <class Term>
    void SetColumns(int rise, Term term)
    {
        Ramp ramp(rise, m_width);
        for (int x = m_width - 1; x >= 0; --x) {
            ramp.Advance();
            m_rows.base[x] = static_cast<uint8_t>(term(ramp.Value()));
        }
    }

    /// The terms of the rows, over a ramp that begins at the bottom. They take in that grain
    /// reaches as far down as up.
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
        job.lineJump = JumpAhead(m_height);
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
        job.lineJump = JumpAhead(m_width);
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
    uint8_t m_leftRamp[maxRamp + 1];  // by the column
    uint8_t m_rightRamp[maxRamp + 1]; // by the distance from the face's end
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
    if (surface.width >= Ramp::maxLength || surface.height >= Ramp::maxLength)
        return false;
    WorkRows rows(surface.width, surface.height);
    if (!rows.IsValid())
        return false;
    const GrainKernels kernels =
        engine == ShadeEngine::Avx2 ? GrainKernelsAvx2() : GrainKernelsSse2();
    ShadeFill(surface, granularity, random, kernels, rows).Run(style);
    return true;
}
