#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Slider
{
    ControlHost host;
    CSliderCtrl slider;

    explicit Slider(DWORD style = TBS_HORZ | TBS_AUTOTICKS)
    {
        REQUIRE(slider.Create(shownChild | style, CRect(10, 10, 260, 50), &host, 60));
    }
};

} // namespace

TEST_CASE("a slider keeps range and position, also beyond 16 bits")
{
    Slider slider;
    slider.slider.SetRange(-50, 100000);
    int low = 0, high = 0;
    slider.slider.GetRange(low, high);
    CHECK(low == -50);
    CHECK(high == 100000);
    slider.slider.SetPos(70000);
    CHECK(slider.slider.GetPos() == 70000);
    slider.slider.SetPos(200000);
    CHECK(slider.slider.GetPos() == 100000);
    slider.slider.SetRangeMin(10);
    slider.slider.SetRangeMax(20, TRUE);
    CHECK(slider.slider.GetRangeMin() == 10);
    CHECK(slider.slider.GetRangeMax() == 20);
}

TEST_CASE("keys move a slider by line and page, and the parent hears of it")
{
    Slider slider;
    slider.slider.SetRange(0, 100);
    slider.slider.SetPageSize(20);
    CHECK(slider.slider.GetPageSize() == 20);
    CHECK(slider.slider.SetPageSize(10) == 20);
    slider.slider.SetLineSize(3);
    CHECK(slider.slider.GetLineSize() == 3);
    CHECK(slider.slider.SetLineSize(4) == 3);
    slider.slider.SetFocus();
    REQUIRE(PressKey(VK_RIGHT));
    CHECK(slider.slider.GetPos() == 4);
    CHECK(slider.host.Scrolled(TB_LINEDOWN));
    REQUIRE(PressKey(VK_NEXT));
    CHECK(slider.slider.GetPos() == 14);
}

TEST_CASE("a slider has ticks")
{
    Slider slider(TBS_HORZ);
    slider.slider.SetRange(0, 10, TRUE);
    CHECK(slider.slider.GetNumTics() == 2);
    CHECK(slider.slider.SetTic(4));
    CHECK(slider.slider.SetTic(7));
    CHECK(slider.slider.GetNumTics() == 4);
    CHECK(slider.slider.GetTic(0) == 4);
    CHECK(slider.slider.GetTic(1) == 7);
    CHECK(slider.slider.GetTicPos(1) > slider.slider.GetTicPos(0));
    const DWORD* ticks = slider.slider.GetTicArray();
    REQUIRE(ticks != NULL);
    CHECK(ticks[1] == 7);
    slider.slider.ClearTics(TRUE);
    CHECK(slider.slider.GetNumTics() == 2);

    Slider regular;
    regular.slider.SetRange(0, 100);
    regular.slider.SetTicFreq(25);
    CHECK(regular.slider.GetNumTics() == 5);
}

TEST_CASE("a slider with a selection shows a part of its range")
{
    Slider slider(TBS_HORZ | TBS_ENABLESELRANGE);
    slider.slider.SetRange(0, 100);
    slider.slider.SetSelection(30, 60);
    int low = 0, high = 0;
    slider.slider.GetSelection(low, high);
    CHECK(low == 30);
    CHECK(high == 60);
    slider.slider.SetSelection(70, 90);
    slider.slider.GetSelection(low, high);
    CHECK(low == 70);
    CHECK(high == 90);
    slider.slider.ClearSel(TRUE);
    slider.slider.GetSelection(low, high);
    CHECK(low == high);
}

TEST_CASE("the thumb of a slider lies in its channel and has a length")
{
    Slider slider(TBS_HORZ | TBS_FIXEDLENGTH);
    slider.slider.SetRange(0, 100);
    CRect channel, atStart, atEnd;
    slider.slider.GetChannelRect(channel);
    slider.slider.GetThumbRect(atStart);
    slider.slider.SetPos(100);
    slider.slider.GetThumbRect(atEnd);
    CHECK(channel.Width() > 150);
    CHECK(atEnd.left > atStart.left + 150);
    slider.slider.SetThumbLength(25);
    CHECK(slider.slider.GetThumbLength() == 25);
}

TEST_CASE("a slider has companions at its ends, and tool tips")
{
    Slider slider(TBS_HORZ | TBS_TOOLTIPS);
    CStatic left, right;
    REQUIRE(left.Create(_T("0"), shownChild, CRect(0, 0, 20, 20), &slider.host));
    REQUIRE(right.Create(_T("9"), shownChild, CRect(0, 0, 20, 20), &slider.host));
    CHECK(slider.slider.SetBuddy(&left) == NULL);
    CHECK(slider.slider.SetBuddy(&right, FALSE) == NULL);
    CHECK(slider.slider.GetBuddy() == &left);
    CHECK(slider.slider.GetBuddy(FALSE) == &right);
    CHECK(slider.slider.SetBuddy(NULL) == &left);
    CHECK(slider.slider.GetBuddy() == NULL);

    REQUIRE(slider.slider.GetToolTips() != NULL);
    slider.slider.SetTipSide(TBTS_BOTTOM);
    CHECK(slider.slider.SetTipSide(TBTS_TOP) == TBTS_BOTTOM);
    CToolTipCtrl tip;
    REQUIRE(tip.Create(&slider.host));
    slider.slider.SetToolTips(&tip);
    CHECK(slider.slider.GetToolTips() == &tip);
}

TEST_CASE("CreateEx gives a slider an extended style")
{
    ControlHost host;
    CSliderCtrl slider;
    REQUIRE(slider.CreateEx(WS_EX_CLIENTEDGE, shownChild, CRect(0, 0, 100, 30), &host, 61));
    CHECK((slider.GetExStyle() & WS_EX_CLIENTEDGE) != 0);
    CHECK(slider.GetDlgCtrlID() == 61);
}
