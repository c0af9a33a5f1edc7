#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Bar
{
    ControlHost host;
    CScrollBar bar;

    Bar() { REQUIRE(bar.Create(shownChild | SBS_HORZ, CRect(10, 10, 210, 28), &host, 50)); }
};

} // namespace

TEST_CASE("a scroll bar keeps its range and position")
{
    Bar bar;
    bar.bar.SetScrollRange(5, 95);
    int low = 0, high = 0;
    bar.bar.GetScrollRange(&low, &high);
    CHECK(low == 5);
    CHECK(high == 95);
    bar.bar.SetScrollPos(40);
    CHECK(bar.bar.GetScrollPos() == 40);
    CHECK(bar.bar.SetScrollPos(500) == 40);
    CHECK(bar.bar.GetScrollPos() == 95);
}

TEST_CASE("the page shortens the way of the thumb")
{
    Bar bar;
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMin = 0;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 30;
    CHECK(bar.bar.SetScrollInfo(&info));
    CHECK(bar.bar.GetScrollLimit() == 90);
    bar.bar.SetScrollPos(99);
    CHECK(bar.bar.GetScrollPos() == 90);

    SCROLLINFO real = {};
    CHECK(bar.bar.GetScrollInfo(&real));
    CHECK(real.nMax == 99);
    CHECK(real.nPage == 10);
    CHECK(real.nPos == 90);
    SCROLLINFO place = {};
    CHECK(bar.bar.GetScrollInfo(&place, SIF_POS));
    CHECK(place.nPos == 90);
    CHECK(place.nMax == 0);
}

TEST_CASE("a key that scrolls reaches the parent")
{
    Bar bar;
    bar.bar.SetScrollRange(0, 100);
    bar.bar.SetFocus();
    REQUIRE(PressKey(VK_RIGHT));
    CHECK(bar.host.Scrolled(SB_LINERIGHT));
}

TEST_CASE("a scroll bar is hidden, shown and disabled")
{
    Bar bar;
    bar.bar.ShowScrollBar(FALSE);
    CHECK_FALSE(bar.bar.IsWindowVisible());
    bar.bar.ShowScrollBar();
    CHECK(bar.bar.IsWindowVisible());
    CHECK(bar.bar.EnableScrollBar(ESB_DISABLE_BOTH));
    CHECK_FALSE(bar.bar.IsWindowEnabled());
    CHECK(bar.bar.EnableScrollBar());
    CHECK(bar.bar.IsWindowEnabled());
}

TEST_CASE("a scroll bar tells its parts")
{
    Bar bar;
    bar.bar.SetScrollRange(0, 100);
    SCROLLBARINFO info = {};
    CHECK(bar.bar.GetScrollBarInfo(&info));
    CHECK(info.rcScrollBar.right - info.rcScrollBar.left == 200);
    CHECK(info.dxyLineButton > 0);
}
