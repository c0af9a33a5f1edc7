#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Tabs
{
    ControlHost host;
    CTabCtrl tabs;

    explicit Tabs(DWORD style = 0)
    {
        REQUIRE(tabs.Create(shownChild | style, CRect(10, 10, 310, 210), &host, 97));
        tabs.InsertItem(0, _T("first"));
        tabs.InsertItem(1, _T("second"));
        tabs.InsertItem(2, _T("third"));
    }
};

class CPaintedTabs : public CTabCtrl
{
public:
    int draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
};

} // namespace

TEST_CASE("tabs are inserted, read, changed and deleted")
{
    Tabs tabs;
    CHECK(tabs.tabs.GetItemCount() == 3);
    TCHAR text[20] = {};
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = _countof(text);
    CHECK(tabs.tabs.GetItem(1, &item));
    CHECK(CString(item.pszText) == _T("second"));
    CHECK(tabs.tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 0, _T("zero"), -1, 77) == 0);
    item.mask = TCIF_PARAM;
    CHECK(tabs.tabs.GetItem(0, &item));
    CHECK(item.lParam == 77);
    CHECK(tabs.tabs.DeleteItem(0));
    CHECK(tabs.tabs.DeleteAllItems());
    CHECK(tabs.tabs.GetItemCount() == 0);
}

TEST_CASE("a click selects a tab, and the parent hears of it")
{
    Tabs tabs;
    CHECK(tabs.tabs.GetCurSel() == 0);
    CRect item;
    REQUIRE(tabs.tabs.GetItemRect(2, item));
    TCHITTESTINFO hit = {item.CenterPoint(), 0};
    CHECK(tabs.tabs.HitTest(&hit) == 2);
    REQUIRE(Click(tabs.tabs.m_hWnd, item.CenterPoint()));
    CHECK(tabs.tabs.GetCurSel() == 2);
    CHECK(tabs.host.Heard((UINT)TCN_SELCHANGE));
    CHECK(tabs.tabs.SetCurSel(1) == 2);
    CHECK(tabs.tabs.GetCurSel() == 1);
}

TEST_CASE("a tab control tells the room of its pages")
{
    Tabs tabs;
    CRect page;
    tabs.tabs.GetClientRect(page);
    const CRect whole = page;
    tabs.tabs.AdjustRect(FALSE, page);
    CHECK(page.top > whole.top + 10);
    tabs.tabs.AdjustRect(TRUE, page);
    CHECK(page == whole);
    CHECK(tabs.tabs.GetRowCount() == 1);
}

TEST_CASE("tabs have states, sizes and images")
{
    Tabs tabs(TCS_FIXEDWIDTH);
    CHECK(tabs.tabs.HighlightItem(1));
    CHECK(tabs.tabs.GetItemState(1, TCIS_HIGHLIGHTED) == TCIS_HIGHLIGHTED);
    CHECK(tabs.tabs.SetItemState(1, TCIS_HIGHLIGHTED, 0));
    CHECK(tabs.tabs.GetItemState(1, TCIS_HIGHLIGHTED) == 0);
    tabs.tabs.SetItemSize(CSize(55, 33));
    CRect item;
    CHECK(tabs.tabs.GetItemRect(1, item));
    CHECK(item.Width() == 55);
    CHECK(tabs.tabs.SetItemSize(CSize(60, 30)) == CSize(55, 33));

    CImageList images;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 2, 1));
    CHECK(tabs.tabs.SetImageList(&images) == NULL);
    CHECK(tabs.tabs.GetImageList() == &images);
    tabs.tabs.SetImageList(NULL);
}

TEST_CASE("owner-drawn tabs are drawn through the virtual DrawItem")
{
    ControlHost host;
    CPaintedTabs tabs;
    const DWORD style = TCS_OWNERDRAWFIXED;
    REQUIRE(tabs.Create(shownChild | style, CRect(10, 10, 210, 110), &host, 98));
    tabs.InsertItem(0, _T("one"));
    tabs.UpdateWindow();
    CHECK(tabs.draws > 0);
}
