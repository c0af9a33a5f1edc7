#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

const LPCTSTR markup = _T("See <a href=\"http://one.test/\" id=\"first\">one</a> and <a>two</a>.");

struct Link
{
    ControlHost host;
    CLinkCtrl link;

    Link()
    {
        REQUIRE(link.Create(markup, shownChild | WS_TABSTOP, CRect(10, 10, 310, 40), &host, 60));
        link.UpdateWindow();
    }
};

} // namespace

TEST_CASE("links have addresses, identifiers and states")
{
    Link link;
    CString text;
    CHECK(link.link.GetItemUrl(0, text));
    CHECK(text == _T("http://one.test/"));
    CHECK(link.link.GetItemID(0, text));
    CHECK(text == _T("first"));
    WCHAR wide[100] = {};
    CHECK(link.link.GetItemUrl(0, wide, _countof(wide)));
    CHECK(CString(wide) == _T("http://one.test/"));
    CHECK(link.link.GetItemID(0, wide, 4)); // Cut to the room.
    CHECK(CString(wide) == _T("fir"));
    CHECK_FALSE(link.link.GetItemUrl(7, text));
    CHECK_FALSE(link.link.GetItemID(7, text));

    CHECK(link.link.SetItemUrl(1, L"http://two.test/"));
    CHECK(link.link.GetItemUrl(1, text));
    CHECK(text == _T("http://two.test/"));
    CHECK(link.link.SetItemID(1, L"second"));
    CHECK(link.link.GetItemID(1, text));
    CHECK(text == _T("second"));
    CHECK(link.link.SetItemState(1, LIS_VISITED, LIS_VISITED));
    UINT state = 0;
    CHECK(link.link.GetItemState(1, &state, LIS_VISITED));
    CHECK(state == LIS_VISITED);
    CHECK_FALSE(link.link.GetItemState(9, &state));
    LITEM item = {};
    item.mask = LIF_ITEMINDEX | LIF_STATE;
    item.iLink = 1;
    item.stateMask = LIS_VISITED;
    CHECK(link.link.SetItem(&item));
    CHECK(link.link.GetItem(&item));
    CHECK((item.state & LIS_VISITED) == 0);
}

TEST_CASE("a link is hit and clicked, and the parent hears of it")
{
    Link link;
    LHITTESTINFO hit = {};
    hit.pt.y = 6;
    for (hit.pt.x = 0; hit.pt.x < 200 && !link.link.HitTest(&hit); ++hit.pt.x)
        continue;
    REQUIRE(hit.pt.x < 200);
    CHECK(hit.item.iLink == 0);
    REQUIRE(Click(link.link.m_hWnd, CPoint(hit.pt.x + 3, 6)));
    CHECK(link.host.Heard((UINT)NM_CLICK));
}

TEST_CASE("a link control tells the size that it needs")
{
    Link link;
    CHECK(link.link.GetIdealHeight() > 5);
    const MessageLog log(link.link);
    SIZE size = {};
    link.link.GetIdealSize(90, &size);
    CHECK(log.Last(LM_GETIDEALHEIGHT)->wParam == 90);
    CHECK(log.Last(LM_GETIDEALHEIGHT)->lParam == (LPARAM)&size);
}

TEST_CASE("a link control without a text, and with an extended style")
{
    ControlHost host;
    CLinkCtrl link, other;
    REQUIRE(link.Create(shownChild, CRect(0, 0, 150, 24), &host, 61));
    CString text;
    CHECK_FALSE(link.GetItemUrl(0, text));
    REQUIRE(other.CreateEx(WS_EX_STATICEDGE, shownChild, CRect(0, 30, 150, 54), &host, 62));
    CHECK((other.GetExStyle() & WS_EX_STATICEDGE) != 0);
}
