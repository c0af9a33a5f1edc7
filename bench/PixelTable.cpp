#include "bench/PlainPixels.h"
#include "bench/Race.h"
#include "bench/Sizes.h"
#include "bench/Tables.h"

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

void PrintLine(const FaceSize& size, unsigned style)
{
    const std::ptrdiff_t stride = (size.width + 3) / 4 * 4;
    std::vector<std::uint8_t> pixels(stride * size.height);
    const std::vector<std::uint8_t> source(pixels.size(), 1);
    const ShadeSurface surface = {pixels.data(), size.width, size.height, stride};
    ShadeRandom random;
    const bool hasAvx2 = HasShadeEngine(ShadeEngine::Avx2);

    Race race;
    race.Add("memcpy", [&] { std::memcpy(pixels.data(), source.data(), pixels.size()); });
    race.Add("plain", [&] { FillPlainPixels(surface, style, granularity); });
    race.Add("SSE2",
             [&] { FillShadePixels(surface, style, granularity, random, ShadeEngine::Sse2); });
    if (hasAvx2) {
        race.Add("AVX2",
                 [&] { FillShadePixels(surface, style, granularity, random, ShadeEngine::Avx2); });
    }
    race.Run();

    const double pixelCount = double(size.width) * size.height;
    const char* const note = race.IsSteady() ? "" : " disturbed |";
    const double plain = race.NanosecondsOf("plain");
    const double sse2 = race.NanosecondsOf("SSE2");
    std::printf("| %d × %d | %u %s | %.3f | %.2f | %.3f | %.1f |", size.width, size.height, style,
                styleNames[style], race.NanosecondsOf("memcpy") / pixelCount, plain / pixelCount,
                sse2 / pixelCount, plain / sse2);
    if (hasAvx2) {
        const double avx2 = race.NanosecondsOf("AVX2");
        std::printf(" %.3f | %.1f |%s\n", avx2 / pixelCount, plain / avx2, note);
    } else {
        std::printf(" none | none |%s\n", note);
    }
}

} // namespace

void PrintPixelTable()
{
    std::printf("Nanoseconds a pixel, granularity %d; the gain is against the plain loops.\n\n"
                "| Size | Style | memcpy | plain | SSE2 | gain | AVX2 | gain |\n"
                "|---|---|--:|--:|--:|--:|--:|--:|\n",
                granularity);
    for (const FaceSize& size : faceSizes) {
        for (unsigned style = SHADE_NOISE; style <= SHADE_SCRATCHED; ++style)
            PrintLine(size, style);
    }
}
