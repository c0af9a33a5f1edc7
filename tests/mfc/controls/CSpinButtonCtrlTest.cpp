#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Spin
{
    ControlHost host;
    CEdit field;
    CSpinButtonCtrl spin;

    explicit Spin(DWORD style = UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_NOTHOUSANDS)
    {
        REQUIRE(field.Create(shownChild | WS_BORDER, CRect(10, 10, 110, 34), &host, 80));
        REQUIRE(spin.Create(shownChild | style, CRect(0, 0, 20, 24), &host, 81));
        spin.SetBuddy(&field);
    }
    CString Text()
    {
        CString text;
        field.GetWindowText(text);
        return text;
    }
};

} // namespace

TEST_CASE("a spin button writes its position into its companion")
{
    Spin spin;
    CHECK(spin.spin.GetBuddy() == &spin.field);
    spin.spin.SetRange(0, 50);
    spin.spin.SetPos(17);
    CHECK(spin.Text() == "17");
    CHECK(spin.spin.SetPos(18) == 17);
    CHECK(LOWORD(spin.spin.GetPos()) == 18);
    CHECK(HIWORD(spin.spin.GetPos()) == 0);
    spin.field.SetWindowText(_T("23"));
    CHECK(LOWORD(spin.spin.GetPos()) == 23);
    spin.field.SetWindowText(_T("no number"));
    CHECK(HIWORD(spin.spin.GetPos()) != 0);
}

TEST_CASE("a click on an arrow changes the number, and the parent hears of it")
{
    Spin spin;
    spin.spin.SetRange(0, 50);
    spin.spin.SetPos(7);
    CRect arrows;
    spin.spin.GetClientRect(arrows);
    REQUIRE(Click(spin.spin.m_hWnd, CPoint(arrows.Width() / 2, arrows.Height() / 4)));
    CHECK(spin.Text() == "8");
    CHECK(spin.host.Heard(UDN_DELTAPOS));
    CHECK(spin.host.Scrolled(SB_THUMBPOSITION));
}

TEST_CASE("a spin button keeps its range in 16 and in 32 bits")
{
    Spin spin;
    spin.spin.SetRange(3, 44);
    CHECK(spin.spin.GetRange() == MAKELONG(44, 3));
    int low = 0, high = 0;
    spin.spin.GetRange(low, high);
    CHECK(low == 3);
    CHECK(high == 44);
    spin.spin.SetRange32(-70000, 70000);
    spin.spin.GetRange32(low, high);
    CHECK(low == -70000);
    CHECK(high == 70000);
}

TEST_CASE("a spin button counts in tens or sixteens")
{
    Spin spin;
    spin.spin.SetRange(0, 255);
    CHECK(spin.spin.GetBase() == 10);
    CHECK(spin.spin.SetBase(16) == 10);
    CHECK(spin.spin.GetBase() == 16);
    spin.spin.SetPos(255);
    CHECK(spin.Text().Right(2).CompareNoCase(_T("FF")) == 0);
}

TEST_CASE("a spin button keeps what it accelerates by")
{
    Spin spin;
    UDACCEL wanted[] = {{0, 2}, {3, 10}};
    CHECK(spin.spin.SetAccel(2, wanted));
    UDACCEL real[4] = {};
    CHECK(spin.spin.GetAccel(4, real) == 2);
    CHECK(real[1].nSec == 3);
    CHECK(real[1].nInc == 10);
}

TEST_CASE("CreateEx gives a spin button an extended style")
{
    ControlHost host;
    CSpinButtonCtrl spin;
    REQUIRE(spin.CreateEx(WS_EX_STATICEDGE, shownChild, CRect(0, 0, 20, 30), &host, 82));
    CHECK((spin.GetExStyle() & WS_EX_STATICEDGE) != 0);
}
