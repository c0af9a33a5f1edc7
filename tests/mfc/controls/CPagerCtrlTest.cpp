#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

class CPagerHost : public ControlHost
{
protected:
    afx_msg void OnCalcSize(NMHDR* pNMHDR, LRESULT*) { ((NMPGCALCSIZE*)pNMHDR)->iWidth = 600; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CPagerHost, ControlHost)
    ON_NOTIFY(PGN_CALCSIZE, 60, &CPagerHost::OnCalcSize)
END_MESSAGE_MAP()

struct Pager
{
    CPagerHost host;
    CPagerCtrl pager;
    CStatic inside;

    Pager()
    {
        REQUIRE(pager.Create(shownChild | PGS_HORZ, CRect(10, 10, 210, 50), &host, 60));
        REQUIRE(inside.Create(_T("wide"), shownChild, CRect(0, 0, 600, 40), &pager));
        pager.SetChild(inside);
        pager.RecalcSize();
    }
};

} // namespace

TEST_CASE("a pager scrolls a window that is larger")
{
    Pager pager;
    CHECK(pager.pager.GetScrollPos() == 0);
    CHECK_FALSE(pager.pager.IsButtonInvisible(PGB_BOTTOMORRIGHT));
    CHECK(pager.pager.IsButtonNormal(PGB_BOTTOMORRIGHT));
    pager.pager.SetScrollPos(100);
    CHECK(pager.pager.GetScrollPos() == 100);
    CRect inside;
    pager.inside.GetWindowRect(inside);
    pager.pager.ScreenToClient(inside);
    CHECK(inside.left < 0);
    pager.pager.SetScrollPos(100000);
    CHECK(pager.pager.GetScrollPos() < 600);
    CHECK(pager.pager.GetButtonState(PGB_TOPORLEFT) == PGF_NORMAL);
    CHECK_FALSE(pager.pager.IsButtonDepressed(PGB_TOPORLEFT));
    CHECK_FALSE(pager.pager.IsButtonHot(PGB_TOPORLEFT));
    CHECK_FALSE(pager.pager.IsButtonGrayed(PGB_TOPORLEFT));
}

TEST_CASE("a pager has sizes and a colour")
{
    Pager pager;
    pager.pager.SetBorder(3);
    CHECK(pager.pager.SetBorder(5) == 3);
    CHECK(pager.pager.GetBorder() == 5);
    pager.pager.SetButtonSize(20);
    CHECK(pager.pager.SetButtonSize(25) == 20);
    CHECK(pager.pager.GetButtonSize() == 25);
    pager.pager.SetBkColor(RGB(1, 2, 3));
    CHECK(pager.pager.SetBkColor(RGB(3, 3, 3)) == RGB(1, 2, 3));
    CHECK(pager.pager.GetBkColor() == RGB(3, 3, 3));
    const MessageLog log(pager.pager);
    pager.pager.ForwardMouse(TRUE);
    CHECK(log.Last(PGM_FORWARDMOUSE)->wParam == TRUE);
    if (IDropTarget* target = pager.pager.GetDropTarget())
        target->Release();
    CHECK(log.Contains(PGM_GETDROPTARGET));
}

TEST_CASE("CreateEx gives a pager an extended style")
{
    ControlHost host;
    CPagerCtrl pager;
    REQUIRE(pager.CreateEx(WS_EX_STATICEDGE, shownChild, CRect(0, 0, 150, 24), &host, 61));
    CHECK((pager.GetExStyle() & WS_EX_STATICEDGE) != 0);
}
