#include "testing/GdiObjects.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

TEST_CASE("each kind of object is counted while it lives")
{
    WarmUpGdi();
    const GdiCount before = CountGdiObjects();
    HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    HBITMAP bitmap = ::CreateBitmap(4, 4, 1, 1, nullptr);
    HRGN region = ::CreateRectRgn(0, 0, 5, 5);
    HFONT font = ::CreateFontA(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    LOGPALETTE onlyColor{};
    onlyColor.palVersion = 0x300;
    onlyColor.palNumEntries = 1;
    HPALETTE palette = ::CreatePalette(&onlyColor);
    HDC memory = ::CreateCompatibleDC(nullptr);

    const GdiCount during = CountGdiObjects();
    CHECK(during.total >= before.total + 7);
    if (during.dcs + during.bitmaps + during.fonts > 0) { // The system tells the kinds.
        CHECK(during.pens == before.pens + 1);
        CHECK(during.brushes == before.brushes + 1);
        CHECK(during.bitmaps == before.bitmaps + 1);
        CHECK(during.regions >= before.regions + 1);
        CHECK(during.fonts == before.fonts + 1);
        CHECK(during.palettes == before.palettes + 1);
        CHECK(during.dcs == before.dcs + 1);
    }

    for (HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(brush), HGDIOBJ(bitmap), HGDIOBJ(region),
                           HGDIOBJ(font), HGDIOBJ(palette)})
        CHECK(::DeleteObject(object));
    ::DeleteDC(memory);
    CHECK(CountGdiObjects() == before);
}

TEST_CASE("a balance tells what was left behind, and that it is gone")
{
    const BalancedGdi balance;
    CHECK(balance.IsBalanced());
    CHECK(balance.Describe() == "balanced");
    HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    CHECK_FALSE(balance.IsBalanced());
    CHECK(balance.Growth() == 1);
    const std::string description = balance.Describe();
    CHECK((description == "brushes +1" || description == "objects +1"));
    ::DeleteObject(brush);
    CHECK(balance.IsBalanced());
}

TEST_CASE("a hundred objects that are not freed are all seen")
{
    const BalancedGdi balance;
    HRGN regions[100];
    for (HRGN& region : regions)
        region = ::CreateRectRgn(0, 0, 5, 5);
    CHECK(balance.Growth() == 100);
    for (HRGN region : regions)
        ::DeleteObject(region);
    CHECK(balance.Growth() == 0);
}

TEST_CASE("windows that come and go leave nothing after the warming up")
{
    const BalancedGdi balance;
    for (int i = 0; i < 3; ++i) {
        HWND window = ::CreateWindowA("Button", "a", WS_POPUP | WS_VISIBLE, 0, 0, 30, 30, nullptr,
                                      nullptr, nullptr, nullptr);
        ::UpdateWindow(window);
        ::DestroyWindow(window);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}
