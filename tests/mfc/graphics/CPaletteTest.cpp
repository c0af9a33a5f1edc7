#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Canvas.h"
#include "testing/GdiObjects.h"

using namespace umbra::testing;

namespace {

struct ThreeColors
{
    WORD version = 0x300;
    WORD count = 3;
    PALETTEENTRY entries[3] = {{0, 0, 0, 0}, {255, 0, 0, 0}, {0, 0, 255, 0}};

    LOGPALETTE* AsPalette() { return reinterpret_cast<LOGPALETTE*>(this); }
};

} // namespace

TEST_CASE("a palette keeps, changes and finds its colours")
{
    BalancedGdi balance;
    {
        ThreeColors colors;
        CPalette palette;
        REQUIRE(palette.CreatePalette(colors.AsPalette()));
        CHECK(palette.GetEntryCount() == 3);
        CHECK(palette.GetNearestPaletteIndex(RGB(250, 5, 5)) == 1);

        PALETTEENTRY green = {0, 255, 0, 0};
        CHECK(palette.SetPaletteEntries(1, 1, &green) == 1);
        PALETTEENTRY read[3] = {};
        CHECK(palette.GetPaletteEntries(0, 3, read) == 3);
        CHECK(read[1].peGreen == 255);
        CHECK(read[2].peBlue == 255);

        CHECK(palette.ResizePalette(5));
        CHECK(palette.GetEntryCount() == 5);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a context gives its former palette back")
{
    BalancedGdi balance;
    {
        Canvas canvas(4, 4);
        CDC* dc = CDC::FromHandle(canvas.Dc());
        ThreeColors colors;
        CPalette palette;
        REQUIRE(palette.CreatePalette(colors.AsPalette()));
        CPalette* former = dc->SelectPalette(&palette, FALSE);
        REQUIRE(former != nullptr);
        CHECK(former->m_hObject == ::GetStockObject(DEFAULT_PALETTE));
        CHECK(dc->GetCurrentPalette() == &palette);
        CHECK(dc->SelectPalette(former, FALSE) == &palette);
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a halftone palette has colours")
{
    Canvas canvas(4, 4);
    CPalette palette;
    REQUIRE(palette.CreateHalftonePalette(CDC::FromHandle(canvas.Dc())));
    CHECK(palette.GetEntryCount() > 16);
}
