// The shade styles as plainly as they can be written: every pixel by its formula, one number of the
// stream at a time. What the generator makes is compared with this.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

/// The recurrence of the random numbers, step by step.
class PlainRandom
{
public:
    explicit PlainRandom(std::uint32_t state) : m_state(state) {}
    int operator()()
    {
        m_state = m_state * 214013u + 2531011u;
        return static_cast<int>(m_state >> 16) & 32767;
    }
    std::uint32_t GetState() const { return m_state; }

private:
    std::uint32_t m_state;
};

/// A face whose pixels are filled by their formulas.
class PlainShade
{
public:
    PlainShade(int width, int height, int granularity, std::uint32_t state)
        : W(width), H(height), g(granularity), Lo(granularity), Hi(255 - granularity),
          R(32767 / std::max(2 * granularity, 1)), m_rand(state),
          m_pixels(static_cast<std::size_t>(width) * height, 0xEE)
    {
    }

    void Fill(unsigned style)
    {
        switch (style) {
        case 1:
            Diagonal();
            break;
        case 2:
            Rows();
            break;
        case 3:
            Columns();
            break;
        case 4:
            RowBump();
            break;
        case 5:
            ColumnBump();
            break;
        case 6:
            CrossBump();
            break;
        case 7:
            RoundedBump();
            break;
        case 8:
            Scratched();
            break;
        default:
            Flat();
            break;
        }
    }

    // Row 0 is the bottom row.
    std::uint8_t& At(int r, int x) { return m_pixels[static_cast<std::size_t>(r) * W + x]; }
    const std::uint8_t* Row(int r) const { return &m_pixels[static_cast<std::size_t>(r) * W]; }
    std::uint32_t GetState() const { return m_rand.GetState(); }

private:
    int Noise() { return m_rand() / R - g; }
    void Store(int r, int x, int value) { At(r, x) = static_cast<std::uint8_t>(value & 255); }
    void Add(int r, int x, int value) { Store(r, x, At(r, x) + value); }

    void Flat()
    {
        for (int r = 0; r < H; ++r)
            for (int x = 0; x < W; ++x)
                Store(r, x, 128 + Noise());
    }

    void Diagonal()
    {
        const int a = (Hi - Lo) / 2;
        for (int r = 0; r < H; ++r)
            for (int x = 0; x < W; ++x)
                Store(r, x, Lo + a * (W - x) / W + a * r / H + Noise());
    }

    void Rows()
    {
        const int b = Hi - Lo;
        for (int r = 0; r < H; ++r)
            for (int x = 0; x < W; ++x)
                Store(r, x, Lo + r * b / H + Noise());
    }

    void Columns()
    {
        const int b = Hi - Lo;
        for (int x = 0; x < W; ++x)
            for (int r = 0; r < H; ++r)
                Store(r, x, Lo + b * (W - x) / W + Noise());
    }

    void RowBump()
    {
        for (int r = 0; r < H; ++r) {
            const int t = 255 * r / H - 127;
            const int v = ((t * t * t / 128) / 128) * (128 - g) / 128 + 128;
            for (int x = 0; x < W; ++x)
                Store(r, x, v + Noise());
        }
    }

    void ColumnBump()
    {
        for (int x = 0; x < W; ++x) {
            const int t = 255 * (W - x) / W - 127;
            const int v = ((t * t * t / 128) / 128) * (128 - g) / 128 + 128;
            for (int r = 0; r < H; ++r)
                Store(r, x, v + Noise());
        }
    }

    void CrossBump()
    {
        for (int r = 0; r < H; ++r) {
            for (int x = 0; x < W; ++x) {
                const int ty = 255 * r / H - 127;
                const int cy = (ty * ty * ty / 128) / 128;
                const int tx = 255 * (W - x) / W - 127;
                const int cx = (tx * tx * tx / 128) / 128;
                const int c = (cx + cy) * (128 - g);
                int v = c / 128 + 128;
                v = std::max(v, Lo);
                v = std::min(v, Hi);
                Store(r, x, v + Noise());
            }
        }
    }

    void RoundedBump()
    {
        for (int r = 0; r < H; ++r) {
            const int t = 255 * r / H - 127;
            const int v = 2 * (((t * t * t / 128) / 128) * (64 - g)) / 128 + 128;
            for (int x = 0; x < W; ++x)
                Store(r, x, v + Noise());
        }

        const int k = std::min(W / 6, 16);
        const int d = (H * H) / 4;
        if (d == 0)
            return;
        for (int r = 0; r < H; ++r) {
            const int dy = r - H / 2;
            const int e = k * dy * dy / d + W / 2 - k;
            for (int x = 0; x < W; ++x) {
                const int dx = x - W / 2;
                if (k != 0 && dx > e)
                    Store(r, x, 128 * (W - x) / k + Lo);
                if (k != 0 && dx + e < 0)
                    Store(r, x, Hi - 128 * x / k);
                Add(r, x, Noise());
            }
        }
    }

    void Scratched()
    {
        std::fill(m_pixels.begin(), m_pixels.end(), std::uint8_t{0});
        const int Rw = 32767 / W;
        const int Rh = 32767 / H;
        const int Rm = 32767 / std::min(W, H);
        for (int scratch = 0; Rw != 0 && Rh != 0 && scratch < 200; ++scratch) {
            const int x0 = m_rand() / Rw;
            const int y0 = m_rand() / Rh;
            const int half = m_rand() / Rm / 2;
            const int k = m_rand() / 819;
            for (int i = 0; i < half; ++i) {
                if (x0 - i > 0 && y0 + i < H)
                    SetFromTop(x0 - i, y0 + i, k);
                if (x0 + i < W && y0 - i > 0)
                    SetFromTop(W - x0 + i, y0 - i, k);
            }
        }
        const int a = (Hi - Lo - 40) / 2;
        for (int r = 0; r < H; ++r)
            for (int x = 0; x < W; ++x)
                Add(r, x, a * (W - x) / W + a * r / H + m_rand() / R);
    }

    void SetFromTop(int x, int y, int value)
    {
        if (x >= 0 && y >= 0 && x < W && y < H)
            Store(H - y - 1, x, value);
    }

    const int W, H, g, Lo, Hi, R;
    PlainRandom m_rand;
    std::vector<std::uint8_t> m_pixels;
};
