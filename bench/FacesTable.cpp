#include "bench/PlainFaces.h"
#include "bench/Race.h"
#include "bench/Sizes.h"
#include "bench/Tables.h"

#include <cstdio>

namespace {

constexpr int border = 4;

struct Faces
{
    PaletteDib normal, down, disabled, over, focusH, focusV;

    ShadeFaces Get() { return {normal, down, disabled, over, focusH, focusV}; }
};

void PrintLine(const FaceSize& size, unsigned style)
{
    const ShadeLook look = {style, granularity, 20, 30, RGB(180, 200, 230)};
    PlainFaces plainFaces;
    Faces sse2Faces;
    Faces avx2Faces;
    ShadeRandom random;
    const bool hasAvx2 = HasShadeEngine(ShadeEngine::Avx2);

    Race race;
    race.Add("plain", [&] {
        plainFaces.Fill(size.width, size.height, border, look, ShadeColors::OfSystem());
    });
    race.Add("SSE2", [&] {
        FillShadeFaces(sse2Faces.Get(), size.width, size.height, border, look,
                       ShadeColors::OfSystem(), random, ShadeEngine::Sse2);
    });
    if (hasAvx2) {
        race.Add("AVX2", [&] {
            FillShadeFaces(avx2Faces.Get(), size.width, size.height, border, look,
                           ShadeColors::OfSystem(), random, ShadeEngine::Avx2);
        });
    }
    race.Run();

    const char* const note = race.IsSteady() ? "" : " disturbed |";
    const double plain = race.NanosecondsOf("plain");
    const double sse2 = race.NanosecondsOf("SSE2");
    std::printf("| %d × %d | %u %s | %.1f | %.1f | %.1f |", size.width, size.height, style,
                styleNames[style], plain / 1000, sse2 / 1000, plain / sse2);
    if (hasAvx2) {
        const double avx2 = race.NanosecondsOf("AVX2");
        std::printf(" %.1f | %.1f |%s\n", avx2 / 1000, plain / avx2, note);
    } else {
        std::printf(" none | none |%s\n", note);
    }
}

} // namespace

void PrintFacesTable()
{
    std::printf("Microseconds for the six bitmaps of a button, made again at the same size.\n\n"
                "| Size | Style | plain | SSE2 | gain | AVX2 | gain |\n"
                "|---|---|--:|--:|--:|--:|--:|\n");
    for (const FaceSize& size : faceSizes) {
        for (unsigned style = SHADE_NOISE; style <= SHADE_SCRATCHED; ++style)
            PrintLine(size, style);
    }
}
