#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Picture.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

template <class Bar = CStatusBarCtrl>
struct Status
{
    ControlHost host;
    Bar bar;

    Status()
    {
        REQUIRE(bar.Create(shownChild | CCS_BOTTOM | SBT_TOOLTIPS, CRect(0, 0, 0, 0), &host, 50));
        int edges[] = {100, 220, -1};
        REQUIRE(bar.SetParts(3, edges));
    }
};

class CPaintedBar : public CStatusBarCtrl
{
public:
    ULONG_PTR drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        drawn = lpDrawItemStruct->itemData;
        CDC::FromHandle(lpDrawItemStruct->hDC)
            ->FillSolidRect(&lpDrawItemStruct->rcItem, RGB(120, 10, 220));
    }
};

} // namespace

TEST_CASE("a status bar has panes at the edge of its window")
{
    Status<> status;
    int edges[5] = {};
    CHECK(status.bar.GetParts(5, edges) == 3);
    CHECK(edges[1] == 220);
    CRect pane, bar, client;
    CHECK(status.bar.GetRect(1, pane));
    CHECK(pane.left >= 100);
    CHECK(pane.right == 220);
    status.bar.GetWindowRect(bar);
    status.host.GetClientRect(client);
    status.host.ClientToScreen(client);
    CHECK(bar.bottom == client.bottom);
    int border[3] = {}, horizontal = -1, vertical = -1, between = -1;
    CHECK(status.bar.GetBorders(border));
    CHECK(status.bar.GetBorders(horizontal, vertical, between));
    CHECK(horizontal == border[0]);
    CHECK(vertical == border[1]);
    CHECK(between == border[2]);
    status.bar.SetMinHeight(50);
    status.bar.SendMessage(WM_SIZE);
    status.bar.GetWindowRect(bar);
    CHECK(bar.Height() >= 50);
}

TEST_CASE("panes have texts and ways to draw them")
{
    Status<> status;
    CHECK(status.bar.SetText(_T("Ready"), 0, 0));
    CHECK(status.bar.SetText(_T("Line 12"), 1, SBT_POPOUT));
    int type = -1;
    CHECK(status.bar.GetText(1, &type) == _T("Line 12"));
    CHECK(type == SBT_POPOUT);
    CHECK(status.bar.GetTextLength(1) == 7);
    TCHAR buffer[20] = {};
    CHECK(status.bar.GetText(buffer, 0, &type) == 5);
    CHECK(CString(buffer) == _T("Ready"));
    CHECK(type == 0);
    CHECK(status.bar.GetText(2) == _T(""));
}

TEST_CASE("a status bar in simple mode shows one text")
{
    Status<> status;
    CHECK_FALSE(status.bar.IsSimple());
    status.bar.SetSimple();
    CHECK(status.bar.IsSimple());
    status.bar.SetSimple(FALSE);
    CHECK_FALSE(status.bar.IsSimple());
}

TEST_CASE("panes have icons, tips and a colour")
{
    Status<> status;
    const HICON icon = ::LoadIcon(NULL, IDI_APPLICATION);
    CHECK(status.bar.SetIcon(1, icon));
    CHECK(status.bar.GetIcon(1) == icon);
    CHECK(status.bar.SetIcon(1, NULL));
    CHECK(status.bar.GetIcon(1) == NULL);
    status.bar.SetTipText(0, _T("What it says"));
    CHECK(status.bar.GetTipText(0) == _T("What it says"));
    status.bar.SetBkColor(RGB(3, 2, 1));
    CHECK(status.bar.SetBkColor(CLR_DEFAULT) == RGB(3, 2, 1));
}

TEST_CASE("a pane that the program draws asks the virtual")
{
    Status<CPaintedBar> status;
    const LPCTSTR item = (LPCTSTR)(INT_PTR)77;
    CHECK(status.bar.SetText(item, 1, SBT_OWNERDRAW | SBT_NOBORDERS));
    status.bar.UpdateWindow();
    CHECK(status.bar.drawn == 77);
    CRect pane;
    REQUIRE(status.bar.GetRect(1, pane));
    const CPoint middle = pane.CenterPoint();
    CHECK(Picture::OfWindow(status.bar).At(middle.x, middle.y) == RGB(120, 10, 220));
}

TEST_CASE("CreateEx gives a status bar an extended style")
{
    ControlHost host;
    CStatusBarCtrl bar;
    REQUIRE(bar.CreateEx(WS_EX_STATICEDGE, shownChild, CRect(0, 0, 0, 0), &host, 51));
    CHECK((bar.GetExStyle() & WS_EX_STATICEDGE) != 0);
    CHECK(bar.GetDlgCtrlID() == 51);
}
