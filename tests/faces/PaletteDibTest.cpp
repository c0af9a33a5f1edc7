#include "faces/PaletteDib.h"

#include "tests/faces/FacesModule.h"

#include <doctest/doctest.h>

#include "testing/CallFault.h"
#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

#include <climits>
#include <cstring>

using namespace umbra::testing;

namespace {

const BITMAPINFOHEADER& HeaderOf(const BYTE* block)
{
    return *reinterpret_cast<const BITMAPINFOHEADER*>(block);
}

/// The entry of a colour table has these three channels.
void CheckColor(const RGBQUAD& entry, int red, int green, int blue)
{
    CHECK(int{entry.rgbRed} == red);
    CHECK(int{entry.rgbGreen} == green);
    CHECK(int{entry.rgbBlue} == blue);
}

// Four pixels in two rows: 1 2 above, 3 4 below; red, green, blue, white.
void MakeFourColors(PaletteDib& dib)
{
    dib.Create(2, 2, 8);
    dib.SetPaletteIndex(1, 255, 0, 0);
    dib.SetPaletteIndex(2, 0, 255, 0);
    dib.SetPaletteIndex(3, 0, 0, 255);
    dib.SetPaletteIndex(4, 255, 255, 255);
    dib.SetPixelIndex(0, 0, 1);
    dib.SetPixelIndex(1, 0, 2);
    dib.SetPixelIndex(0, 1, 3);
    dib.SetPixelIndex(1, 1, 4);
}

void CheckEmpty(const PaletteDib& dib)
{
    CHECK_FALSE(dib.IsValid());
    CHECK(dib.GetBits() == nullptr);
    CHECK(dib.GetWidth() == 0);
    CHECK(dib.GetHeight() == 0);
    CHECK(dib.GetStride() == 0);
    CHECK(dib.GetPalette() == nullptr);
    CHECK(dib.GetPaletteCount() == 0);
}

} // namespace

TEST_CASE("a destroyed bitmap is empty as a new one is")
{
    PaletteDib dib;
    MakeFourColors(dib);
    dib.Destroy();
    CheckEmpty(dib);
}

TEST_CASE("a new bitmap is empty, and nothing can be done to it")
{
    PaletteDib dib;
    CheckEmpty(dib);

    dib.SetPaletteIndex(0, 1, 2, 3);
    dib.SetPixelIndex(0, 0, 1);
    dib.BlendPalette(RGB(1, 2, 3), 50);
    dib.Clear(7);
    Canvas canvas(4, 4);
    CHECK(dib.Draw(canvas.Dc(), 0, 0) == 0);
    CHECK_FALSE(dib.IsValid());
}

TEST_CASE("the bit count is rounded up to one that exists")
{
    const int expected[][3] = {{-1, 1, 2},  {0, 1, 2},   {1, 1, 2},       {2, 4, 16}, {3, 4, 16},
                               {4, 4, 16},  {5, 8, 256}, {8, 8, 256},     {9, 24, 0}, {16, 24, 0},
                               {24, 24, 0}, {32, 24, 0}, {INT_MAX, 24, 0}};
    for (const auto& [asked, bits, entries] : expected) {
        CAPTURE(asked);
        PaletteDib dib;
        const BYTE* block = dib.Create(3, 2, asked);
        REQUIRE(block != nullptr);
        CHECK(HeaderOf(block).biBitCount == bits);
        CHECK(dib.GetPaletteCount() == entries);
    }
}

TEST_CASE("the block holds header, colour table and rows of whole double words")
{
    const int expected[][4] = {// width, bits, stride, entries
                               {1, 1, 4, 2},  {32, 1, 4, 2},  {33, 1, 8, 2},  {7, 4, 4, 16},
                               {9, 4, 8, 16}, {1, 8, 4, 256}, {4, 8, 4, 256}, {5, 8, 8, 256},
                               {1, 24, 4, 0}, {4, 24, 12, 0}, {5, 24, 16, 0}};
    for (const auto& [width, bits, stride, entries] : expected) {
        CAPTURE(width);
        CAPTURE(bits);
        PaletteDib dib;
        const BYTE* block = dib.Create(width, 3, bits);
        REQUIRE(block != nullptr);
        const BITMAPINFOHEADER& header = HeaderOf(block);
        CHECK(header.biSize == 40);
        CHECK(header.biWidth == width);
        CHECK(header.biHeight == 3);
        CHECK(header.biPlanes == 1);
        CHECK(header.biCompression == BI_RGB);
        CHECK(header.biSizeImage == static_cast<DWORD>(stride * 3));
        CHECK(header.biXPelsPerMeter == 0);
        CHECK(header.biYPelsPerMeter == 0);
        CHECK(header.biClrUsed == 0);
        CHECK(header.biClrImportant == 0);
        CHECK(dib.GetStride() == stride);
        CHECK(dib.GetBits() == block + 40 + entries * 4);
        CHECK(dib.GetSize() == static_cast<DWORD>(40 + entries * 4 + stride * 3));
    }
}

TEST_CASE("sizes that are negative or beyond 31 bits leave the bitmap empty")
{
    const int sizes[][3] = {{-1, 1, 8},
                            {1, -1, 8},
                            {INT_MIN, INT_MIN, 8},
                            {INT_MAX, 1, 24},
                            {INT_MAX, INT_MAX, 1},
                            {65536, 65536, 8},
                            {46341, 46341, 8},
                            {INT_MAX, 1, 8},
                            {1, INT_MAX, 8}};
    for (const auto& [width, height, bits] : sizes) {
        CAPTURE(width);
        CAPTURE(height);
        PaletteDib dib;
        REQUIRE(dib.Create(2, 2, 8) != nullptr);
        CHECK(dib.Create(width, height, bits) == nullptr);
        CHECK_FALSE(dib.IsValid());
        CHECK(dib.GetBits() == nullptr);
    }
}

TEST_CASE("a side of zero gives a bitmap without pixels")
{
    PaletteDib dib;
    REQUIRE(dib.Create(0, 5, 8) != nullptr);
    CHECK(dib.GetSize() == 40 + 1024);
    REQUIRE(dib.Create(5, 0, 8) != nullptr);
    CHECK(dib.GetSize() == 40 + 1024);
    dib.Clear(1);
    dib.SetPixelIndex(0, 0, 1);
}

TEST_CASE("a bitmap made again at its size keeps its block")
{
    PaletteDib dib;
    const BYTE* block = dib.Create(300, 200, 8);
    dib.Clear(9);
    CHECK(dib.Create(300, 200, 8) == block);
    CHECK(dib.Create(300, 200, 5) == block);

    CountCalls frees(FacesModule(), "msvcrt", "free");
    REQUIRE(frees.IsInstalled());
    dib.Create(300, 200, 8);
    CHECK(frees.Calls() == 0);
    dib.Create(200, 300, 8);
    CHECK(frees.Calls() == 1);
    CHECK(dib.GetWidth() == 200);
    CHECK(dib.GetHeight() == 300);
    dib.Create(200, 300, 4);
    CHECK(frees.Calls() == 2);
    CHECK(dib.GetPaletteCount() == 16);
}

TEST_CASE("without memory the bitmap is empty")
{
    PaletteDib dib;
    dib.Create(10, 10, 8);
    PaletteDib copy;
    FailAlways noMemory(FacesModule(), "msvcrt", "malloc");
    REQUIRE(noMemory.IsInstalled());
    copy.Clone(dib);
    CHECK_FALSE(copy.IsValid());
    CHECK(dib.Create(11, 10, 8) == nullptr);
    CHECK_FALSE(dib.IsValid());
    CHECK(noMemory.Failed() == 2);
}

TEST_CASE("colours are stored blue first, within the table only")
{
    PaletteDib dib;
    dib.Create(1, 1, 4);
    dib.Clear(0x5A);
    std::memset(dib.GetPalette(), 0xEE, 16 * sizeof(RGBQUAD));
    dib.SetPaletteIndex(15, 1, 2, 3);
    dib.SetPaletteIndex(16, 1, 2, 3);
    dib.SetPaletteIndex(UINT_MAX, 1, 2, 3);
    const BYTE expected[] = {3, 2, 1, 0};
    CHECK(std::memcmp(dib.GetPalette() + 15, expected, sizeof(expected)) == 0);
    CHECK(int{dib.GetPalette()[14].rgbBlue} == 0xEE);
    CHECK(int{dib.GetBits()[0]} == 0x5A);
}

TEST_CASE("pixels are set from the top, and those outside are ignored")
{
    PaletteDib dib;
    dib.Create(3, 2, 8);
    dib.Clear(0);
    dib.SetPixelIndex(0, 0, 1);
    dib.SetPixelIndex(2, 1, 2);
    for (const auto& [x, y] :
         {std::pair{-1, 0}, {0, -1}, {3, 0}, {0, 2}, {INT_MAX, 0}, {INT_MIN, INT_MIN}})
        dib.SetPixelIndex(x, y, 99);
    const BYTE expected[] = {0, 0, 2, 0, 1, 0, 0, 0};
    CHECK(std::memcmp(dib.GetBits(), expected, sizeof(expected)) == 0);
}

TEST_CASE("pixels of packed bitmaps cannot be set")
{
    for (int bits : {1, 4, 24}) {
        PaletteDib dib;
        dib.Create(8, 1, bits);
        dib.Clear(0x11);
        dib.SetPixelIndex(0, 0, 0xFF);
        CHECK(int{dib.GetBits()[0]} == 0x11);
    }
}

TEST_CASE("clearing sets every byte of the rows and nothing before them")
{
    PaletteDib dib;
    dib.Create(5, 2, 8);
    dib.SetPaletteIndex(255, 1, 2, 3);
    dib.Clear(0xC3);
    for (int i = 0; i < 16; ++i)
        CHECK(int{dib.GetBits()[i]} == 0xC3);
    CheckColor(dib.GetPalette()[255], 1, 2, 3);
}

TEST_CASE("blending rounds every channel down")
{
    const COLORREF target = RGB(10, 200, 255);
    PaletteDib dib;
    dib.Create(1, 1, 8);
    for (UINT percent : {0u, 1u, 33u, 50u, 99u, 100u, 101u, 255u, UINT_MAX}) {
        CAPTURE(percent);
        const int p = percent > 100 ? 100 : static_cast<int>(percent);
        for (int i = 0; i < 256; ++i)
            dib.SetPaletteIndex(i, static_cast<BYTE>(i), static_cast<BYTE>(255 - i), 77);
        dib.BlendPalette(target, percent);
        for (int i = 0; i < 256; ++i) {
            CheckColor(dib.GetPalette()[i], (i * (100 - p) + 10 * p) / 100,
                       ((255 - i) * (100 - p) + 200 * p) / 100, (77 * (100 - p) + 255 * p) / 100);
            CHECK(int{dib.GetPalette()[i].rgbReserved} == 0);
        }
    }
}

TEST_CASE("short colour tables are blended to their end and no further")
{
    for (int bits : {1, 4}) {
        PaletteDib dib;
        dib.Create(1, 1, bits);
        dib.Clear(0x11);
        for (UINT i = 0; i < dib.GetPaletteCount(); ++i)
            dib.SetPaletteIndex(i, 100, 100, 100);
        dib.BlendPalette(RGB(200, 0, 100), 50);
        for (int i = 0; i < dib.GetPaletteCount(); ++i)
            CheckColor(dib.GetPalette()[i], 150, 50, 100);
        CHECK(int{dib.GetBits()[0]} == 0x11);
    }
}

TEST_CASE("a bitmap of true colours has no colour table")
{
    PaletteDib dib;
    REQUIRE(dib.Create(2, 2, 24) != nullptr);
    CHECK(dib.GetPaletteCount() == 0);
    CHECK(dib.GetPalette() == nullptr);
    dib.Clear(0x11);
    dib.SetPaletteIndex(0, 1, 2, 3);
    dib.BlendPalette(RGB(200, 0, 100), 50);
    CHECK(int{dib.GetBits()[0]} == 0x11);
}

TEST_CASE("a clone is equal and stands alone")
{
    PaletteDib source;
    MakeFourColors(source);
    PaletteDib copy;
    copy.Create(100, 1, 24);
    copy.Clone(source);
    REQUIRE(copy.GetSize() == source.GetSize());
    CHECK(std::memcmp(copy.GetBits() - 1064, source.GetBits() - 1064, source.GetSize()) == 0);

    copy.SetPixelIndex(0, 0, 9);
    CHECK(int{source.GetBits()[4]} == 1);
    CHECK(int{copy.GetBits()[4]} == 9);
}

TEST_CASE("the clone of an empty bitmap is empty, and of itself unchanged")
{
    PaletteDib dib;
    MakeFourColors(dib);
    dib.Clone(dib);
    CHECK(dib.IsValid());
    CHECK(int{dib.GetBits()[4]} == 1);
    dib.Clone(PaletteDib());
    CHECK_FALSE(dib.IsValid());
}

TEST_CASE("drawing puts the top left pixel where it is told")
{
    PaletteDib dib;
    MakeFourColors(dib);
    BalancedGdi gdi;
    {
        Canvas canvas(6, 5, RGB(9, 9, 9));
        CHECK(dib.Draw(canvas.Dc(), 3, 2) == 1);
        CHECK(::GetStretchBltMode(canvas.Dc()) == COLORONCOLOR);
        CHECK(::GetPixel(canvas.Dc(), 3, 2) == RGB(255, 0, 0));
        CHECK(::GetPixel(canvas.Dc(), 4, 2) == RGB(0, 255, 0));
        CHECK(::GetPixel(canvas.Dc(), 3, 3) == RGB(0, 0, 255));
        CHECK(::GetPixel(canvas.Dc(), 4, 3) == RGB(255, 255, 255));
        CHECK(::GetPixel(canvas.Dc(), 2, 2) == RGB(9, 9, 9));
        CHECK(::GetPixel(canvas.Dc(), 5, 4) == RGB(9, 9, 9));
    }
    CHECK(gdi.Describe() == "balanced");
}

TEST_CASE("drawing beyond the target's edges keeps to what is visible")
{
    PaletteDib dib;
    MakeFourColors(dib);
    Canvas canvas(2, 2, RGB(9, 9, 9));
    CHECK(dib.Draw(canvas.Dc(), -1, -1) == 1);
    CHECK(::GetPixel(canvas.Dc(), 0, 0) == RGB(255, 255, 255));
    CHECK(::GetPixel(canvas.Dc(), 1, 0) == RGB(9, 9, 9));
}

TEST_CASE("drawing without a device context does nothing and says so")
{
    PaletteDib dib;
    MakeFourColors(dib);
    CHECK(dib.Draw(nullptr, 0, 0) == 0);
}
