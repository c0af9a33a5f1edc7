#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Report
{
    ControlHost host;
    CListCtrl list;

    explicit Report(DWORD style = LVS_REPORT)
    {
        REQUIRE(list.Create(shownChild | style, CRect(10, 10, 310, 210), &host, 90));
        list.InsertColumn(0, _T("Name"), LVCFMT_LEFT, 120);
        list.InsertColumn(1, _T("Size"), LVCFMT_RIGHT, 80, 1);
        for (LPCTSTR item : {_T("delta"), _T("alpha"), _T("charlie")})
            list.InsertItem(list.GetItemCount(), item);
    }
};

int CALLBACK CompareData(LPARAM first, LPARAM second, LPARAM direction)
{
    return static_cast<int>((first - second) * direction);
}

class CPaintedList : public CListCtrl
{
public:
    int draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
};

} // namespace

TEST_CASE("a list control has items with texts in columns")
{
    Report report;
    CHECK(report.list.GetItemCount() == 3);
    CHECK(report.list.GetItemText(1, 0) == "alpha");
    CHECK(report.list.SetItemText(1, 1, _T("12 bytes")));
    CHECK(report.list.GetItemText(1, 1) == "12 bytes");
    const CString longText('x', 400);
    CHECK(report.list.SetItemText(0, 1, longText));
    CHECK(report.list.GetItemText(0, 1).GetLength() >= 259);
    TCHAR text[10];
    CHECK(report.list.GetItemText(1, 1, text, _countof(text)) == 8);
    CHECK(report.list.DeleteItem(1));
    CHECK(report.list.GetItemText(1, 0) == "charlie");
    CHECK(report.list.DeleteAllItems());
    CHECK(report.list.GetItemCount() == 0);
}

TEST_CASE("a list control has columns with a width and an order")
{
    Report report;
    CHECK(report.list.GetColumnWidth(0) == 120);
    CHECK(report.list.SetColumnWidth(0, 99));
    CHECK(report.list.GetColumnWidth(0) == 99);
    TCHAR text[20];
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = _countof(text);
    CHECK(report.list.GetColumn(1, &column));
    CHECK(CString(text) == "Size");
    CHECK((column.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT);
    int order[] = {1, 0};
    CHECK(report.list.SetColumnOrderArray(2, order));
    int real[2] = {};
    CHECK(report.list.GetColumnOrderArray(real));
    CHECK(real[0] == 1);
    REQUIRE(report.list.GetHeaderCtrl() != NULL);
    CHECK(report.list.GetHeaderCtrl()->GetItemCount() == 2);
    CHECK(report.list.DeleteColumn(1));
    CHECK(report.list.GetHeaderCtrl()->GetItemCount() == 1);
}

TEST_CASE("the selected items of a list control are met one after the other")
{
    Report report;
    CHECK(report.list.GetFirstSelectedItemPosition() == NULL);
    report.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    report.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    CHECK(report.list.GetSelectedCount() == 2);
    POSITION place = report.list.GetFirstSelectedItemPosition();
    REQUIRE(place != NULL);
    CHECK(report.list.GetNextSelectedItem(place) == 0);
    REQUIRE(place != NULL);
    CHECK(report.list.GetNextSelectedItem(place) == 2);
    CHECK(place == NULL);
    CHECK(report.list.GetNextItem(-1, LVNI_SELECTED) == 0);
    CHECK(report.list.GetItemState(2, LVIS_SELECTED) == LVIS_SELECTED);
}

TEST_CASE("the items of a list control carry data and are sorted by it")
{
    Report report;
    for (int i = 0; i < 3; ++i)
        CHECK(report.list.SetItemData(i, (i * 2 + 1) % 3));
    CHECK(report.list.GetItemData(0) == 1);
    CHECK(report.list.SortItems(CompareData, 1));
    CHECK(report.list.GetItemData(0) == 0);
    CHECK(report.list.GetItemText(0, 0) == "alpha");
    CHECK(report.list.SortItems(CompareData, (DWORD_PTR)-1));
    CHECK(report.list.GetItemData(0) == 2);

    LVFINDINFO sought = {};
    sought.flags = LVFI_STRING;
    sought.psz = _T("delta");
    CHECK(report.list.FindItem(&sought) == 1);
}

TEST_CASE("a click on an item selects it, and the parent hears of it")
{
    Report report;
    CRect item;
    REQUIRE(report.list.GetItemRect(1, item, LVIR_LABEL));
    const CPoint middle(item.left + 15, item.CenterPoint().y);
    UINT flags = 0;
    CHECK(report.list.HitTest(middle, &flags) == 1);
    CHECK((flags & LVHT_ONITEM) != 0);
    ClickWaitingControl(report.list.m_hWnd, middle);
    CHECK(report.list.GetItemState(1, LVIS_SELECTED) == LVIS_SELECTED);
    CHECK(report.host.Heard((UINT)LVN_ITEMCHANGED));
    CRect cell;
    CHECK(report.list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    CHECK(cell.Width() == 80);
}

TEST_CASE("check boxes of a list control")
{
    Report report;
    report.list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    CHECK((report.list.GetExtendedStyle() & LVS_EX_CHECKBOXES) != 0);
    CHECK_FALSE(report.list.GetCheck(1));
    CHECK(report.list.SetCheck(1));
    CHECK(report.list.GetCheck(1));
    CHECK(report.list.SetCheck(1, FALSE));
    CHECK_FALSE(report.list.GetCheck(1));
}

TEST_CASE("a list control keeps its colours and image lists")
{
    Report report;
    CHECK(report.list.SetBkColor(RGB(1, 2, 3)));
    CHECK(report.list.GetBkColor() == RGB(1, 2, 3));
    CHECK(report.list.SetTextColor(RGB(4, 5, 6)));
    CHECK(report.list.GetTextColor() == RGB(4, 5, 6));
    CHECK(report.list.SetTextBkColor(RGB(7, 8, 9)));
    CHECK(report.list.GetTextBkColor() == RGB(7, 8, 9));

    CImageList images;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 2, 1));
    report.list.ModifyStyle(0, LVS_SHAREIMAGELISTS);
    CHECK(report.list.SetImageList(&images, LVSIL_SMALL) == NULL);
    CHECK(report.list.GetImageList(LVSIL_SMALL) == &images);
    CHECK(report.list.SetImageList(NULL, LVSIL_SMALL) == &images);
}

TEST_CASE("icons of a list control are moved, arranged and scrolled")
{
    Report report(LVS_ICON);
    CHECK(report.list.SetItemPosition(2, CPoint(150, 90)));
    CPoint place;
    CHECK(report.list.GetItemPosition(2, &place));
    CHECK(place.x == 150);
    CHECK(place.y == 90);
    const CSize former = report.list.SetIconSpacing(70, 60);
    CHECK(former.cx > 0);
    CHECK(report.list.SetIconSpacing(CSize(80, 60)) == CSize(70, 60));
    int across = 0, down = 0;
    CHECK(report.list.GetItemSpacing(FALSE, &across, &down));
    CHECK(across == 80);
    CHECK(report.list.Arrange(LVA_DEFAULT));
    CPoint origin;
    CHECK(report.list.GetOrigin(&origin));
    CRect view;
    CHECK(report.list.GetViewRect(view));
    CHECK_FALSE(view.IsRectEmpty());
}

TEST_CASE("a label of a list control is edited in place")
{
    Report report(LVS_REPORT | LVS_EDITLABELS);
    report.list.SetFocus();
    CEdit* field = report.list.EditLabel(0);
    REQUIRE(field != NULL);
    CString text;
    field->GetWindowText(text);
    CHECK(text == "delta");
    CHECK(report.list.GetEditControl() == field);
    report.list.CancelEditLabel();
    CHECK(report.list.GetEditControl() == NULL);
}

TEST_CASE("a list control measures")
{
    Report report;
    CHECK(report.list.GetStringWidth(_T("a long text")) > report.list.GetStringWidth(_T("a")));
    CHECK(report.list.GetCountPerPage() > 3);
    CHECK(report.list.GetTopIndex() == 0);
    CHECK(report.list.ApproximateViewRect().cx >= 200);
    for (int i = 0; i < 100; ++i)
        report.list.InsertItem(i, _T("more"));
    CHECK(report.list.EnsureVisible(90, FALSE));
    CHECK(report.list.GetTopIndex() > 50);
    CHECK(report.list.Scroll(CSize(0, -10000)));
    CHECK(report.list.GetTopIndex() == 0);
}

TEST_CASE("an owner-drawn list control draws through its virtual DrawItem")
{
    ControlHost host;
    CPaintedList list;
    const DWORD style = LVS_REPORT | LVS_OWNERDRAWFIXED;
    REQUIRE(list.Create(shownChild | style, CRect(10, 10, 210, 110), &host, 91));
    list.InsertColumn(0, _T("Name"), LVCFMT_LEFT, 100);
    list.InsertItem(0, _T("one"));
    list.UpdateWindow();
    CHECK(list.draws > 0);
}
