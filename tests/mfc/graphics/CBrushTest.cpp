#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

TEST_CASE("a brush tells what it was made of")
{
    BalancedGdi balance;
    {
        CBrush solid(RGB(10, 20, 30));
        LOGBRUSH data{};
        CHECK(solid.GetLogBrush(&data) == sizeof(data));
        CHECK(data.lbStyle == BS_SOLID);
        CHECK(data.lbColor == RGB(10, 20, 30));

        CBrush hatched(HS_CROSS, RGB(1, 2, 3));
        CHECK(hatched.GetLogBrush(&data) == sizeof(data));
        CHECK(data.lbStyle == BS_HATCHED);
        CHECK(data.lbHatch == HS_CROSS);

        CBrush copy;
        CHECK(copy.CreateBrushIndirect(&data));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a pattern brush repeats its bitmap")
{
    const WORD rows[8] = {0xF0, 0xF0, 0xF0, 0xF0, 0x0F, 0x0F, 0x0F, 0x0F};
    CBitmap bitmap;
    REQUIRE(bitmap.CreateBitmap(8, 8, 1, 1, rows));
    CBrush brush(&bitmap);
    Canvas canvas(16, 16);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    dc->SetTextColor(RGB(0, 0, 0));
    dc->SetBkColor(RGB(255, 255, 255));
    const CRect all(0, 0, 16, 16);
    dc->FillRect(&all, &brush);
    CHECK(dc->GetPixel(0, 0) == RGB(255, 255, 255));
    CHECK(dc->GetPixel(4, 0) == RGB(0, 0, 0));
    CHECK(dc->GetPixel(0, 4) == RGB(0, 0, 0));
    CHECK(dc->GetPixel(8, 8) == RGB(255, 255, 255));
    CHECK(canvas.ToPicture().CountOf(RGB(0, 0, 0)) == 128);
}

TEST_CASE("a packed bitmap makes a brush, by pointer and by handle")
{
    struct
    {
        BITMAPINFOHEADER header;
        DWORD pixels[64];
    } packed{};
    packed.header = {sizeof(BITMAPINFOHEADER), 8, 8, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    for (DWORD& pixel : packed.pixels)
        pixel = 0x00FF8000;
    Canvas canvas(8, 8);
    CDC* dc = CDC::FromHandle(canvas.Dc());
    const CRect all(0, 0, 8, 8);

    CBrush byPointer;
    REQUIRE(byPointer.CreateDIBPatternBrush(&packed, DIB_RGB_COLORS));
    dc->FillRect(&all, &byPointer);
    CHECK(dc->GetPixel(3, 3) == RGB(0xFF, 0x80, 0x00));

    canvas.Fill(RGB(0, 0, 0));
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof(packed));
    memcpy(::GlobalLock(memory), &packed, sizeof(packed));
    ::GlobalUnlock(memory);
    CBrush byHandle;
    CHECK(byHandle.CreateDIBPatternBrush(memory, DIB_RGB_COLORS));
    ::GlobalFree(memory);
    dc->FillRect(&all, &byHandle);
    CHECK(dc->GetPixel(3, 3) == RGB(0xFF, 0x80, 0x00));
}

TEST_CASE("a brush of a system colour can be thrown away like any other")
{
    for (int round = 0; round < 2; ++round) {
        CBrush brush;
        CHECK(brush.CreateSysColorBrush(COLOR_BTNFACE));
        LOGBRUSH data{};
        brush.GetLogBrush(&data);
        CHECK(data.lbColor == ::GetSysColor(COLOR_BTNFACE));
    }
}

TEST_CASE("a brush that cannot be made throws a resource exception")
{
    CBitmap empty;
    CBrush brush;
    CHECK_FALSE(brush.CreatePatternBrush(&empty));
    CHECK(Throws<CResourceException>([&] { CBrush pattern(&empty); }));
    CHECK_FALSE(brush.CreateDIBPatternBrush(static_cast<HGLOBAL>(nullptr), DIB_RGB_COLORS));
}
