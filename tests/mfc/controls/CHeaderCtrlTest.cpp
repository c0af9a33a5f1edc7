#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Header
{
    ControlHost host;
    CHeaderCtrl header;

    Header()
    {
        REQUIRE(
            header.Create(shownChild | HDS_HORZ | HDS_BUTTONS, CRect(10, 10, 310, 35), &host, 99));
        Insert(_T("first"), 100);
        Insert(_T("second"), 80);
    }
    void Insert(LPCTSTR text, int width, int format = HDF_LEFT | HDF_STRING)
    {
        HDITEM item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.pszText = const_cast<LPTSTR>(text);
        item.cxy = width;
        item.fmt = format;
        REQUIRE(header.InsertItem(header.GetItemCount(), &item) >= 0);
    }
};

class CPaintedHeader : public CHeaderCtrl
{
public:
    int draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
};

} // namespace

TEST_CASE("a header has items with texts and widths")
{
    Header header;
    CHECK(header.header.GetItemCount() == 2);
    TCHAR text[20] = {};
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = _countof(text);
    CHECK(header.header.GetItem(1, &item));
    CHECK(CString(text) == _T("second"));
    CHECK(item.cxy == 80);
    item.mask = HDI_WIDTH;
    item.cxy = 44;
    CHECK(header.header.SetItem(1, &item));
    CRect place;
    CHECK(header.header.GetItemRect(1, place));
    CHECK(place.Width() == 44);
    CHECK(header.header.DeleteItem(0));
    CHECK(header.header.GetItemCount() == 1);
}

TEST_CASE("the items of a header have an order")
{
    Header header;
    int order[] = {1, 0};
    CHECK(header.header.SetOrderArray(2, order));
    int real[2] = {};
    CHECK(header.header.GetOrderArray(real, 2));
    CHECK(real[0] == 1);
    CHECK(header.header.OrderToIndex(0) == 1);
}

TEST_CASE("a click on a header reaches the parent")
{
    Header header;
    CRect place;
    header.header.GetItemRect(1, place);
    HDHITTESTINFO hit = {place.CenterPoint(), 0, 0};
    CHECK(header.header.HitTest(&hit) == 1);
    REQUIRE(Click(header.header.m_hWnd, place.CenterPoint()));
    const UINT narrow = (UINT)HDN_ITEMCLICKA, wide = (UINT)HDN_ITEMCLICKW;
    CHECK((header.host.Heard(narrow) || header.host.Heard(wide)));
}

TEST_CASE("a header finds its place in a rectangle")
{
    Header header;
    RECT room = {0, 0, 400, 300};
    WINDOWPOS place = {};
    HDLAYOUT layout = {&room, &place};
    CHECK(header.header.Layout(&layout));
    CHECK(place.cx == 400);
    CHECK(place.cy > 5);
    CHECK(room.top == place.cy);
}

TEST_CASE("a header keeps an image list")
{
    Header header;
    CImageList images;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 2, 1));
    CHECK(header.header.SetImageList(&images) == NULL);
    CHECK(header.header.GetImageList() == &images);
    header.header.SetImageList(NULL);
}

TEST_CASE("an owner-drawn item of a header is drawn through the virtual DrawItem")
{
    ControlHost host;
    CPaintedHeader header;
    REQUIRE(header.Create(shownChild | HDS_HORZ, CRect(10, 10, 210, 35), &host, 99));
    HDITEM item = {};
    item.mask = HDI_WIDTH | HDI_FORMAT;
    item.cxy = 80;
    item.fmt = HDF_OWNERDRAW;
    REQUIRE(header.InsertItem(0, &item) == 0);
    header.UpdateWindow();
    CHECK(header.draws > 0);
}
