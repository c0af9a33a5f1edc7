#include "faces/ShadeGrain.h"

#include "faces/CpuFeatures.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr std::uint8_t untouched = 0xA5;

/// One set of inner loops.
struct NamedKernels
{
    const char* name;
    GrainKernels kernels;
};

/// The sets of loops that this processor can run.
std::vector<NamedKernels> KernelsHere()
{
    std::vector<NamedKernels> all = {{"SSE2", GrainKernelsSse2()}};
    if (CpuHasAvx2())
        all.push_back({"AVX2", GrainKernelsAvx2()});
    return all;
}

/// The width that row buffers have.
int RoundUp(int width)
{
    return (width + grainBlock - 1) / grainBlock * grainBlock;
}

/// A job with all that it points at, over a few unlike bytes.
struct Grain
{
    Grain(int width, int rows, int divisor, std::uint32_t state, std::uint64_t lineSteps)
        : stride(width + 5), pixels(static_cast<std::size_t>(stride) * rows, untouched),
          base(RoundUp(width)), add(rows)
    {
        for (std::size_t i = 0; i < base.size(); ++i)
            base[i] = static_cast<std::uint8_t>(i * 37 + 11);
        for (std::size_t i = 0; i < add.size(); ++i)
            add[i] = static_cast<std::uint8_t>(i * 101 + 200);
        job = {pixels.data(),
               stride,
               width,
               rows,
               base.data(),
               add.data(),
               DividerOf(divisor),
               state,
               JumpAhead(lineSteps)};
    }

    std::uint8_t Expect(int row, int x, int number, int divisor) const
    {
        return static_cast<std::uint8_t>(base[x] + add[row] + number / divisor);
    }

    /// Where the pixels are other than planned, or bytes between the rows were written.
    std::string Compare(const std::vector<std::uint8_t>& planned) const
    {
        for (int r = 0; r < job.rows; ++r) {
            for (int x = 0; x < stride; ++x) {
                const std::uint8_t expected =
                    x < job.width ? planned[static_cast<std::size_t>(r) * job.width + x]
                                  : untouched;
                if (pixels[static_cast<std::size_t>(r) * stride + x] != expected)
                    return "pixel " + std::to_string(x) + " of row " + std::to_string(r);
            }
        }
        return {};
    }

    int stride;
    std::vector<std::uint8_t> pixels;
    std::vector<std::uint8_t> base;
    std::vector<std::uint8_t> add;
    GrainJob job;
};

const std::vector<int> widths = {1, 3, 15, 16, 17, 31, 32, 33, 63, 64, 65, 120};

} // namespace

TEST_CASE("division by multiplication is exact for every number and every divisor")
{
    for (int divisor = 1; divisor <= 32767; ++divisor) {
        const GrainDivider divider = DividerOf(divisor);
        // Both quotients only grow, so they are the same if they step at the same places.
        int wrong = -1;
        for (int number = 0; number <= 32767 && wrong < 0; number += divisor) {
            if (divider.Divide(number) != number / divisor ||
                (number > 0 && divider.Divide(number - 1) != (number - 1) / divisor))
                wrong = number;
        }
        if (divider.Divide(32767) != 32767 / divisor)
            wrong = 32767;
        CAPTURE(divisor);
        REQUIRE(wrong == -1);
    }
}

TEST_CASE("factor and shift of all divisors but one fit the halves of a word")
{
    for (int divisor = 2; divisor <= 32767; ++divisor) {
        const GrainDivider divider = DividerOf(divisor);
        CAPTURE(divisor);
        REQUIRE(divider.factor < 0x10000u);
        REQUIRE(divider.shift >= 16);
        REQUIRE(divider.shift < 32);
    }
    CHECK(DividerOf(1).Divide(32767) == 32767);
}

TEST_CASE("grain along the rows takes the numbers pixel by pixel, row after row")
{
    const int divisor = 163, rows = 5;
    for (const NamedKernels& set : KernelsHere()) {
        for (const int width : widths) {
            CAPTURE(set.name);
            CAPTURE(width);
            Grain grain(width, rows, divisor, 12345, static_cast<std::uint64_t>(width));
            std::vector<std::uint8_t> planned;
            ShadeRandom random(12345);
            for (int r = 0; r < rows; ++r) {
                for (int x = 0; x < width; ++x)
                    planned.push_back(grain.Expect(r, x, random.Next(), divisor));
            }
            CHECK(set.kernels.grainRows(grain.job) == random.GetState());
            CHECK(grain.Compare(planned) == "");
        }
    }
}

TEST_CASE("grain along the columns takes the numbers column after column")
{
    const int divisor = 71;
    for (const NamedKernels& set : KernelsHere()) {
        for (const int width : widths) {
            for (const int rows : {1, 16, 17, 40}) { // Bands are 16 rows high.
                CAPTURE(set.name);
                CAPTURE(width);
                CAPTURE(rows);
                Grain grain(width, rows, divisor, 777, static_cast<std::uint64_t>(rows));
                std::vector<std::uint8_t> planned(static_cast<std::size_t>(width) * rows);
                ShadeRandom random(777);
                for (int x = 0; x < width; ++x) {
                    for (int r = 0; r < rows; ++r)
                        planned[static_cast<std::size_t>(r) * width + x] =
                            grain.Expect(r, x, random.Next(), divisor);
                }
                std::vector<std::uint32_t> states(2 * static_cast<std::size_t>(RoundUp(width)));
                set.kernels.grainColumns(grain.job, states.data());
                CHECK(grain.Compare(planned) == "");
            }
        }
    }
}

TEST_CASE("a row of crossing bumps is the sum of both slopes around the middle, within its bounds")
{
    const std::uint8_t low = 100, high = 150;
    for (const NamedKernels& set : KernelsHere()) {
        for (const int width : widths) {
            for (const int row : {-16000, -129, -1, 0, 127, 128, 16000}) {
                CAPTURE(set.name);
                CAPTURE(width);
                CAPTURE(row);
                std::vector<std::int16_t> columns(RoundUp(width));
                for (std::size_t i = 0; i < columns.size(); ++i)
                    columns[i] =
                        static_cast<std::int16_t>(static_cast<int>(i) * 517 % 32000 - 16000);
                std::vector<std::uint8_t> bits(columns.size(), untouched);
                set.kernels.crossBump({bits.data(), width, columns.data(),
                                       static_cast<std::int16_t>(row), low, high});
                int wrong = -1;
                for (int x = 0; x < width; ++x) {
                    const int plain = (columns[x] + row) / 128 + 128;
                    if (bits[x] != std::clamp<int>(plain, low, high))
                        wrong = x;
                }
                CHECK(wrong == -1);
            }
        }
    }
}
