// A palette bitmap under any sequence of calls. Built from faces/PaletteDib.cpp.
#include "tests/fuzz/Input.h"

#include "faces/PaletteDib.h"

namespace {

volatile unsigned sink;

/// Sizes that fit, and now and then any at all.
int MakeSize(Input& input)
{
    const unsigned form = input.Byte();
    return form < 250 ? static_cast<int>(form) : static_cast<int>(input.Number());
}

/// Whether a bitmap of this size may be made here without taking all memory.
bool IsModest(int width, int height)
{
    return width < 0 || height < 0 || static_cast<long long>(width) * height < 1000000 ||
           static_cast<long long>(width) * height > 0x7FFFFFFFLL * 8;
}

} // namespace

int SetStretchBltMode(HDC, int)
{
    return 0;
}

int SetDIBitsToDevice(HDC, int, int, DWORD, DWORD, int, int, UINT, UINT, const void* bits,
                      const BITMAPINFO* info, UINT)
{
    const auto* bytes = static_cast<const BYTE*>(bits);
    unsigned sum = 0;
    for (DWORD i = 0; i < info->bmiHeader.biSizeImage; ++i)
        sum += bytes[i];
    sink = sum;
    return 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    PaletteDib dibs[2];
    while (!input.IsEmpty()) {
        PaletteDib& dib = dibs[input.Byte() % 2];
        switch (input.Byte() % 8) {
        case 0: {
            const int width = MakeSize(input);
            const int height = MakeSize(input);
            const int bits = static_cast<int>(input.Byte()) - 2;
            if (!IsModest(width, height))
                break;
            if (dib.Create(width, height, bits) != nullptr) {
                std::memset(dib.GetBits() - dib.GetPaletteCount() * sizeof(RGBQUAD), 0,
                            dib.GetPaletteCount() * sizeof(RGBQUAD));
                dib.Clear(0);
                REQUIRE(dib.GetWidth() == width && dib.GetHeight() == height);
                REQUIRE(dib.GetStride() % 4 == 0);
            } else {
                REQUIRE(!dib.IsValid() && dib.GetBits() == nullptr);
            }
            break;
        }
        case 1:
            dib.Clone(dibs[input.Byte() % 2]);
            break;
        case 2:
            dib.SetPaletteIndex(input.Number() % 300, static_cast<BYTE>(input.Byte()),
                                static_cast<BYTE>(input.Byte()), static_cast<BYTE>(input.Byte()));
            break;
        case 3:
            dib.SetPixelIndex(MakeSize(input), MakeSize(input), static_cast<BYTE>(input.Byte()));
            break;
        case 4:
            dib.BlendPalette(input.Number(), input.Byte());
            break;
        case 5:
            dib.Clear(static_cast<BYTE>(input.Byte()));
            break;
        case 6:
            dib.Draw(reinterpret_cast<HDC>(&dib), 0, 0);
            break;
        case 7:
            if (input.Byte() % 8 == 0)
                dib.Destroy();
            break;
        }
        REQUIRE(dib.IsValid() == (dib.GetBits() != nullptr));
    }
    return 0;
}
