#include "controls/ToolTipRelay.h"

#include "tests/controls/LabelHost.h"
#include "tests/controls/RelayLog.h"

#include <doctest/doctest.h>

namespace {

/// A plain control with a tool tip.
struct Tool
{
    Tool()
    {
        REQUIRE(control.SubclassWindow(host.AddStatic(CRect(10, 10, 60, 60), _T("Text"))));
        REQUIRE(toolTip.Create(&control));
    }

    LabelHost host;
    CWnd control;
    CToolTipCtrl toolTip;
};

} // namespace

TEST_CASE("a relayed message carries the control, its numbers and no time")
{
    Tool tool;
    const RelayLog relays(tool.toolTip.m_hWnd);
    CHECK(RelayToToolTip(tool.toolTip, tool.control, WM_LBUTTONDOWN, MK_SHIFT, MAKELPARAM(7, 8)));
    REQUIRE(relays.Relayed().size() == 1);
    const MSG& relayed = relays.Relayed()[0];
    CHECK(relayed.hwnd == tool.control.m_hWnd);
    CHECK(relayed.message == WM_LBUTTONDOWN);
    CHECK(relayed.wParam == MK_SHIFT);
    CHECK(relayed.lParam == MAKELPARAM(7, 8));
    CHECK(relayed.time == 0);
    CHECK(relayed.pt.x == 7);
    CHECK(relayed.pt.y == 8);
    CHECK(relays.Parameter() == 0);
}

TEST_CASE("coordinates left of and above the control are relayed as unsigned numbers")
{
    Tool tool;
    const RelayLog relays(tool.toolTip.m_hWnd);
    RelayToToolTip(tool.toolTip, tool.control, WM_MOUSEMOVE, 0, MAKELPARAM(-3, -8));
    REQUIRE(relays.Relayed().size() == 1);
    CHECK(relays.Relayed()[0].pt.x == 65533);
    CHECK(relays.Relayed()[0].pt.y == 65528);
    CHECK(relays.Relayed()[0].lParam == MAKELPARAM(-3, -8));
}

TEST_CASE("a relay tells whether the control is still there")
{
    Tool tool;
    const RelayLog relays(tool.toolTip.m_hWnd, [&tool] { tool.control.DestroyWindow(); });
    CHECK_FALSE(RelayToToolTip(tool.toolTip, tool.control, WM_MOUSEMOVE, 0, MAKELPARAM(1, 1)));
    CHECK(relays.Relayed().size() == 1);
}
