#include "faces/ShadePixels.h"

#include "tests/faces/FacesModule.h"
#include "tests/faces/PlainShade.h"

#include "testing/CallFault.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::uint8_t untouched = 0xA5;

const std::vector<unsigned> allStyles = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1000, 0xFFFFFFFFu};

/// The engines that this processor can run.
std::vector<ShadeEngine> EnginesHere()
{
    std::vector<ShadeEngine> engines = {ShadeEngine::Sse2};
    if (HasShadeEngine(ShadeEngine::Avx2))
        engines.push_back(ShadeEngine::Avx2);
    else
        MESSAGE("this processor has no AVX2; only the SSE2 engine is tested");
    return engines;
}

// A surface within a larger block, so that every byte around the pixels can be looked at.
class TestSurface
{
public:
    TestSurface(int width, int height, int gap)
        : m_width(width), m_height(height), m_stride(width + gap),
          m_block(static_cast<std::size_t>(m_stride) * height + 2 * margin, untouched)
    {
    }

    ShadeSurface Get() { return {m_block.data() + margin, m_width, m_height, m_stride}; }
    const std::uint8_t* Row(int r) const { return m_block.data() + margin + r * m_stride; }

    bool IsUntouchedAround() const
    {
        for (std::size_t i = 0; i < m_block.size(); ++i) {
            const auto offset = static_cast<std::ptrdiff_t>(i) - margin;
            const bool inside =
                offset >= 0 && offset < m_stride * m_height && offset % m_stride < m_width;
            if (!inside && m_block[i] != untouched)
                return false;
        }
        return true;
    }

private:
    static constexpr std::ptrdiff_t margin = 64;

    int m_width;
    int m_height;
    std::ptrdiff_t m_stride;
    std::vector<std::uint8_t> m_block;
};

// Where the two versions part, or an empty text.
std::string FindDifference(int width, int height, unsigned style, int granularity,
                           std::uint32_t state, ShadeEngine engine)
{
    PlainShade plain(width, height, granularity, state);
    plain.Fill(style);

    TestSurface surface(width, height, (4 - width % 4) % 4);
    ShadeRandom random(state);
    const bool done = FillShadePixels(surface.Get(), style, static_cast<std::uint8_t>(granularity),
                                      random, engine);

    const std::string where = std::to_string(width) + " x " + std::to_string(height) + ", style " +
                              std::to_string(style) + ", granularity " +
                              std::to_string(granularity) + ", state " + std::to_string(state) +
                              (engine == ShadeEngine::Avx2 ? ", AVX2: " : ", SSE2: ");
    if (!done)
        return where + "refused";
    for (int r = 0; r < height; ++r) {
        for (int x = 0; x < width; ++x) {
            if (surface.Row(r)[x] != plain.At(r, x))
                return where + "pixel " + std::to_string(x) + " of row " + std::to_string(r) +
                       " is " + std::to_string(surface.Row(r)[x]) + " instead of " +
                       std::to_string(plain.At(r, x));
        }
    }
    if (random.GetState() != plain.GetState())
        return where + "another state afterwards";
    if (!surface.IsUntouchedAround())
        return where + "bytes written outside the pixels";
    return {};
}

/// Every style at one size, with each engine, granularity and state, against the plain version.
void CheckAllStyles(int width, int height, const std::vector<int>& granularities,
                    const std::vector<std::uint32_t>& states)
{
    for (ShadeEngine engine : EnginesHere())
        for (unsigned style : allStyles)
            for (int granularity : granularities)
                for (std::uint32_t state : states)
                    CHECK(FindDifference(width, height, style, granularity, state, engine) == "");
}

/// The pixels of a face, from the lowest row up.
std::vector<std::uint8_t> FillPixels(int width, int height, unsigned style, int granularity,
                                     std::uint32_t state)
{
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(width) * height);
    ShadeRandom random(state);
    FillShadePixels({pixels.data(), width, height, width}, style,
                    static_cast<std::uint8_t>(granularity), random);
    return pixels;
}

// A state whose next number is the largest one.
std::uint32_t StateBeforeMaximum()
{
    for (std::uint32_t state = 1;; ++state) {
        if (ShadeRandom(state).Next() == ShadeRandom::largest)
            return state;
    }
}

} // namespace

TEST_CASE("every style matches its plain version at every size up to 40 x 12")
{
    for (int width = 1; width <= 40; ++width)
        for (int height = 1; height <= 12; ++height)
            CheckAllStyles(width, height, {0, 20, 200}, {1});
}

TEST_CASE("every style matches its plain version at every granularity")
{
    for (int granularity = 0; granularity <= 255; ++granularity)
        CheckAllStyles(37, 19, {granularity}, {1, 0x9E3779B9u});
}

TEST_CASE("every style matches its plain version at odd shapes and large sizes")
{
    const std::vector<std::pair<int, int>> sizes = {
        {1, 1},   {1, 97},  {97, 1},  {5, 5},     {6, 2},     {5, 1},    {6, 1},     {7, 2},
        {2, 300}, {300, 2}, {31, 33}, {64, 16},   {65, 17},   {120, 28}, {127, 131}, {256, 64},
        {211, 7}, {7, 211}, {96, 97}, {257, 251}, {400, 300}, {333, 1},  {1, 333},   {129, 160}};
    for (const auto& [width, height] : sizes)
        CheckAllStyles(width, height, {0, 1, 63, 100, 128, 241, 255},
                       {1, 0xFFFFFFFFu, 0, 20240229u});
}

TEST_CASE("every style matches its plain version at the size of a screen")
{
    for (ShadeEngine engine : EnginesHere())
        for (unsigned style = 0; style <= 8; ++style)
            CHECK(FindDifference(1921, 1079, style, 20, 77, engine) == "");
}

TEST_CASE("sides beyond the largest number leave the scratches out")
{
    for (ShadeEngine engine : EnginesHere()) {
        CHECK(FindDifference(32767, 2, SHADE_SCRATCHED, 20, 1, engine) == "");
        CHECK(FindDifference(32768, 2, SHADE_SCRATCHED, 20, 1, engine) == "");
        CHECK(FindDifference(2, 32768, SHADE_SCRATCHED, 20, 1, engine) == "");
    }
}

TEST_CASE("the best engine is the newest one that the processor has")
{
    CHECK(HasShadeEngine(ShadeEngine::Sse2));
    CHECK(HasShadeEngine(BestShadeEngine()));
    CHECK((BestShadeEngine() == ShadeEngine::Avx2) == HasShadeEngine(ShadeEngine::Avx2));
}

TEST_CASE("a surface without pixels takes no random number")
{
    std::uint8_t pixel = untouched;
    for (unsigned style : allStyles) {
        ShadeRandom random(5);
        CHECK(FillShadePixels({&pixel, 0, 10, 0}, style, 20, random));
        CHECK(FillShadePixels({&pixel, 10, 0, 12}, style, 20, random));
        CHECK(FillShadePixels({nullptr, 1, 1, 4}, style, 20, random));
        CHECK(random.GetState() == 5);
        CHECK(pixel == untouched);
    }
}

TEST_CASE("a smooth ramp of columns runs from light at the left to dark at the right")
{
    const auto pixels = FillPixels(5, 2, SHADE_COLUMNS, 0, 1);
    CHECK(pixels == std::vector<std::uint8_t>{255, 204, 153, 102, 51, 255, 204, 153, 102, 51});
}

TEST_CASE("a smooth ramp of rows is dark at the bottom, which is stored first")
{
    CHECK(FillPixels(1, 5, SHADE_ROWS, 0, 1) == std::vector<std::uint8_t>{0, 51, 102, 153, 204});
}

TEST_CASE("without granularity only the largest random number shows")
{
    const auto pixels = FillPixels(2, 1, SHADE_NOISE, 0, StateBeforeMaximum());
    CHECK(pixels[0] == 129);
    CHECK(pixels[1] == 128);
}

TEST_CASE("grain reaches from minus the granularity to a little more than it")
{
    for (const auto& [granularity, top] : {std::pair{20, 20}, {100, 101}, {128, 130 - 256}}) {
        const auto pixels = FillPixels(400, 300, SHADE_NOISE, granularity, 1);
        CHECK(pixels.size() == 120000);
        const auto [low, high] = std::minmax_element(pixels.begin(), pixels.end());
        if (granularity < 128) {
            CHECK(*low == 128 - granularity);
            CHECK(*high == 128 + top);
        } else {
            // The range is all 256 values and wraps.
            CHECK(*low == 0);
            CHECK(*high == 255);
        }
    }
}

// Kept: the grain of a scratched face is not centred; it goes from 0 to about twice g.
TEST_CASE("the grain of a scratched face only adds, up to twice the granularity")
{
    // Too wide for scratches, and with this granularity the ramps are flat.
    const int granularity = 107;
    const auto pixels = FillPixels(40000, 3, SHADE_SCRATCHED, granularity, 1);
    const auto [low, high] = std::minmax_element(pixels.begin(), pixels.end());
    CHECK(*low == 0);
    CHECK(*high == 2 * granularity);
}

// Kept: the half starts at the mirrored column, while its bounds are tested without mirroring (x +
// i < width, y - i > 0), which scatters it to the other side. What is outside the face all the same
// is dropped: i < x, and at the start what is left of it or below it.
TEST_CASE("the second half of a scratch starts at the mirrored column")
{
    const int width = 100, height = 80, rise = (255 - 40) / 2;
    int seen = 0;
    for (std::uint32_t state = 1; state <= 50; ++state) {
        // The last scratch: none is drawn over it.
        ShadeRandom random(state);
        random.Skip(4 * 199);
        const int x = random.Next() / (ShadeRandom::largest / width);
        const int y = random.Next() / (ShadeRandom::largest / height);
        const int half = random.Next() / (ShadeRandom::largest / height) / 2;
        const int index = random.Next() / 819;
        const auto pixels = FillPixels(width, height, SHADE_SCRATCHED, 0, state);
        for (int i = 0; i < half && x + i < width && y - i > 0; ++i) {
            const int column = width - x + i;
            if (column < 0 || column >= width || y - i >= height)
                continue;
            const int row = height - 1 - (y - i); // Stored from the bottom up.
            const int ramps = rise * (width - column) / width + rise * row / height;
            CAPTURE(state);
            CAPTURE(i);
            // The largest random number adds one, even without granularity.
            const int rest = pixels[static_cast<std::size_t>(row) * width + column] - ramps - index;
            CHECK((rest == 0 || rest == 1));
            ++seen;
        }
    }
    CHECK(seen > 200);
}

TEST_CASE("a granularity above 127 turns ramps round")
{
    // From 200 toward 55: the left end, with W - x = W, would be the light one otherwise.
    PlainShade plain(300, 1, 200, 1);
    plain.Fill(SHADE_COLUMNS);
    const auto pixels = FillPixels(300, 1, SHADE_COLUMNS, 200, 1);
    CHECK(std::memcmp(pixels.data(), plain.Row(0), pixels.size()) == 0);
}

TEST_CASE("unknown styles give the noise face")
{
    const auto noise = FillPixels(50, 20, SHADE_NOISE, 30, 9);
    CHECK(FillPixels(50, 20, 9, 30, 9) == noise);
    CHECK(FillPixels(50, 20, 0x80000000u, 30, 9) == noise);
    CHECK(FillPixels(50, 20, SHADE_DIAGONAL, 30, 9) != noise);
}

TEST_CASE(
    "the rounded bump takes two random numbers a pixel, or one where its second pass is left out")
{
    for (const auto& [height, numbers] : {std::pair{2, 2 * 2 * 30}, {1, 30}}) {
        std::vector<std::uint8_t> pixels(static_cast<std::size_t>(30) * height);
        ShadeRandom random;
        FillShadePixels({pixels.data(), 30, height, 30}, SHADE_ROUNDED_BUMP, 20, random);
        ShadeRandom expected;
        for (int i = 0; i < numbers; ++i)
            expected.Next();
        CHECK(random.GetState() == expected.GetState());
    }
}

TEST_CASE("a side of 2^26 pixels or more is refused before anything is drawn")
{
    std::uint8_t pixel = untouched;
    for (const auto& [width, height] : {std::pair(1 << 26, 1), {1, 1 << 26}, {INT_MAX, INT_MAX}}) {
        ShadeRandom random(7);
        CHECK_FALSE(FillShadePixels({&pixel, width, height, 0}, SHADE_NOISE, 20, random));
        CHECK(random.GetState() == 7);
        CHECK(pixel == untouched);
    }
}

TEST_CASE("without memory to work in nothing is drawn and no random number is taken")
{
    using namespace umbra::testing;
    for (int allocation = 1; allocation <= 3; ++allocation) {
        CAPTURE(allocation);
        TestSurface surface(40, 30, 0);
        ShadeRandom random(7);
        bool filled = true;
        int failed = 0;
        {
            const FailNth memory(FacesModule(), "msvcrt", "malloc", allocation);
            filled = FillShadePixels(surface.Get(), SHADE_COLUMNS, 20, random);
            failed = memory.Failed();
        }
        CHECK(failed == 1);
        CHECK_FALSE(filled);
        CHECK(random.GetState() == 7);
        const ShadeSurface drawn = surface.Get();
        for (int i = 0; i < 40 * 30; ++i)
            REQUIRE(drawn.bits[i] == untouched);
    }
}
