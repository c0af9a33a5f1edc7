#include "controls/ScopedSelect.h"

#include "testing/Canvas.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// The font that is selected.
HGDIOBJ FontIn(CDC& dc)
{
    return ::GetCurrentObject(dc.GetSafeHdc(), OBJ_FONT);
}

} // namespace

TEST_CASE("an object is selected for the length of a scope, and the former one afterwards")
{
    const Canvas canvas(10, 10);
    CDC& dc = *CDC::FromHandle(canvas.Dc());
    const HGDIOBJ former = FontIn(dc);
    const HGDIOBJ font = ::GetStockObject(ANSI_FIXED_FONT);
    REQUIRE(former != font);
    {
        const ScopedSelect selected(dc, font);
        CHECK(FontIn(dc) == font);
        {
            const ScopedSelect inner(dc, ::GetStockObject(ANSI_VAR_FONT));
            CHECK(FontIn(dc) == ::GetStockObject(ANSI_VAR_FONT));
        }
        CHECK(FontIn(dc) == font);
    }
    CHECK(FontIn(dc) == former);
}

TEST_CASE("a bitmap that was selected for a scope can be deleted behind it")
{
    CDC memory;
    REQUIRE(memory.CreateCompatibleDC(nullptr));
    const HBITMAP bitmap = ::CreateBitmap(4, 4, 1, 1, nullptr);
    {
        const ScopedSelect selected(memory, bitmap);
        CHECK(::GetCurrentObject(memory.GetSafeHdc(), OBJ_BITMAP) == bitmap);
    }
    CHECK(::GetCurrentObject(memory.GetSafeHdc(), OBJ_BITMAP) != bitmap);
    CHECK(::DeleteObject(bitmap));
}

TEST_CASE("selecting nothing changes nothing")
{
    const Canvas canvas(10, 10);
    CDC& dc = *CDC::FromHandle(canvas.Dc());
    const HGDIOBJ former = FontIn(dc);
    {
        const ScopedSelect selected(dc, nullptr);
        CHECK(FontIn(dc) == former);
    }
    CHECK(FontIn(dc) == former);
}

TEST_CASE("an object that cannot be selected leaves the former one there, then and afterwards")
{
    const Canvas canvas(10, 10);
    CDC& dc = *CDC::FromHandle(canvas.Dc());
    const HGDIOBJ former = FontIn(dc);
    const HFONT gone = ::CreateFont(-20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, _T("Arial"));
    ::DeleteObject(gone);
    {
        const ScopedSelect selected(dc, gone);
        CHECK(FontIn(dc) == former);
    }
    CHECK(FontIn(dc) == former);
}

TEST_CASE("a device context that could not be made is passed over")
{
    CDC none;
    const ScopedSelect selected(none, ::GetStockObject(ANSI_FIXED_FONT));
    CHECK(none.GetSafeHdc() == nullptr);
}
