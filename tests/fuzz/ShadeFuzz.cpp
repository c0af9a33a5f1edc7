// The faces of buttons: every engine makes the pixels of the plain formulas and writes nowhere
// else. Built from faces/Shade*.cpp and faces/PaletteDib.cpp.
#include "tests/fuzz/Input.h"

#include "faces/ShadeGenerator.h"
#include "faces/ShadePixels.h"
#include "tests/faces/PlainShade.h"

#include <vector>

namespace {

volatile unsigned drawnBytes;

/// Faces large enough for every loop, small enough for many runs.
int MakeSide(Input& input)
{
    return input.Byte() < 250 ? static_cast<int>(input.Byte()) % 70 : input.Between(1, 700);
}

void ComparePixels(Input& input)
{
    const int width = MakeSide(input) + 1;
    const int height = MakeSide(input) + 1;
    const unsigned style = input.Byte() % 11;
    const auto granularity = static_cast<std::uint8_t>(input.Byte());
    const std::uint32_t seed = input.Number();
    const int stride = width + static_cast<int>(input.Byte() % 9);

    PlainShade plain(width, height, granularity, seed);
    plain.Fill(style);
    for (const ShadeEngine engine : {ShadeEngine::Sse2, ShadeEngine::Avx2}) {
        if (!HasShadeEngine(engine))
            continue;
        // The block ends with the last row, so that nothing may be written behind it.
        const std::size_t size = static_cast<std::size_t>(stride) * (height - 1) + width;
        const std::unique_ptr<std::uint8_t[]> bits(new std::uint8_t[size]);
        std::memset(bits.get(), 0xA5, size);
        ShadeRandom random(seed);
        REQUIRE(FillShadePixels({bits.get(), width, height, stride}, style, granularity, random,
                                engine));
        for (int row = 0; row < height; ++row) {
            for (int x = 0; x < width; ++x)
                REQUIRE(bits[static_cast<std::size_t>(row) * stride + x] == plain.At(row, x));
            for (int x = width; x < stride && row < height - 1; ++x)
                REQUIRE(bits[static_cast<std::size_t>(row) * stride + x] == 0xA5);
        }
        REQUIRE(random.GetState() == plain.GetState());
    }
}

void MakeFaces(Input& input)
{
    PaletteDib normal, down, disabled, over, focusH, focusV;
    const ShadeLook look = {input.Byte(), static_cast<BYTE>(input.Byte()),
                            static_cast<BYTE>(input.Byte()), static_cast<BYTE>(input.Byte()),
                            input.Number()};
    const ShadeColors colors = {input.Number(), input.Number(), input.Number()};
    ShadeRandom random(input.Number());
    for (int times = 0; times < 2; ++times) {
        const int border =
            input.Byte() < 200 ? input.Between(-20, 100) : input.Between(-1000000, INT_MAX - 1);
        FillShadeFaces({normal, down, disabled, over, focusH, focusV}, MakeSide(input),
                       MakeSide(input), border, look, colors, random);
        for (const PaletteDib* dib : {&normal, &down, &disabled, &over, &focusH, &focusV})
            dib->Draw(reinterpret_cast<HDC>(&normal), 0, 0);
        REQUIRE(focusH.GetHeight() == 1 || !focusH.IsValid());
    }
}

} // namespace

COLORREF GetSysColor(int index)
{
    return static_cast<COLORREF>(index) * 0x30201;
}

int SetStretchBltMode(HDC, int)
{
    return 0;
}

/// Reads all that the real one may read.
int SetDIBitsToDevice(HDC, int, int, DWORD width, DWORD height, int, int, UINT, UINT rows,
                      const void* bits, const BITMAPINFO* info, UINT)
{
    const BITMAPINFOHEADER& header = info->bmiHeader;
    REQUIRE(rows == height && static_cast<LONG>(width) == header.biWidth);
    const auto* bytes = static_cast<const BYTE*>(bits);
    unsigned sum = 0;
    for (DWORD i = 0; i < header.biSizeImage; ++i)
        sum += bytes[i];
    const int colors = header.biBitCount <= 8 ? 1 << header.biBitCount : 0;
    for (int i = 0; i < colors; ++i)
        sum += info->bmiColors[i].rgbRed;
    drawnBytes = sum;
    return static_cast<int>(rows);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    if (input.Byte() % 4 != 0)
        ComparePixels(input);
    else
        MakeFaces(input);
    return 0;
}
