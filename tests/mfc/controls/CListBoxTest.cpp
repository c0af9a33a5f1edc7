#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

#include <vector>

using namespace umbra::testing;

namespace {

const CRect place(10, 10, 160, 140);
const COLORREF ownColor = RGB(120, 10, 220);

struct List
{
    ControlHost host;
    CListBox list;

    explicit List(DWORD style = LBS_NOTIFY | LBS_HASSTRINGS)
    {
        REQUIRE(list.Create(shownChild | style, place, &host, 30));
        for (LPCTSTR item : {_T("delta"), _T("alpha"), _T("charlie"), _T("bravo")})
            list.AddString(item);
    }
    CString Text(int index)
    {
        CString text;
        list.GetText(index, text);
        return text;
    }
};

/// A list of numbers that draws, measures, sorts and counts them by itself.
class CNumberList : public CListBox
{
public:
    int draws = 0, deletions = 0, comparisons = 0;
    std::vector<UINT> keys;
    UINT itemHeight = 23;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        ++draws;
        CDC::FromHandle(lpDrawItemStruct->hDC)->FillSolidRect(&lpDrawItemStruct->rcItem, ownColor);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override
    {
        lpMeasureItemStruct->itemHeight = itemHeight;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) override
    {
        ++comparisons;
        const auto first = (INT_PTR)lpCompareItemStruct->itemData1;
        const auto second = (INT_PTR)lpCompareItemStruct->itemData2;
        return first < second ? -1 : first > second ? 1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deletions; }
    int VKeyToItem(UINT nKey, UINT) override
    {
        keys.push_back(nKey);
        return nKey == VK_END ? 0 : -1;
    }
    int CharToItem(UINT nKey, UINT) override
    {
        keys.push_back(nKey);
        return nKey == 'z' ? 1 : -1;
    }
};

} // namespace

TEST_CASE("items are added, inserted, deleted and read")
{
    List list;
    CHECK(list.list.GetCount() == 4);
    CHECK(list.Text(1) == "alpha");
    CHECK(list.list.InsertString(1, _T("new")) == 1);
    CHECK(list.Text(1) == "new");
    CHECK(list.list.GetTextLen(1) == 3);
    TCHAR text[10];
    CHECK(list.list.GetText(1, text) == 3);
    CHECK(CString(text) == "new");
    CHECK(list.list.DeleteString(1) == 4);
    CHECK(list.list.DeleteString(99) == LB_ERR);
    CString unchanged = "former";
    list.list.GetText(99, unchanged);
    CHECK(unchanged == "");
    list.list.ResetContent();
    CHECK(list.list.GetCount() == 0);
}

TEST_CASE("a sorted list puts each item at its place")
{
    List list(LBS_SORT);
    CHECK(list.Text(0) == "alpha");
    CHECK(list.Text(3) == "delta");
}

TEST_CASE("items are found and selected by their text")
{
    List list;
    CHECK(list.list.FindString(-1, _T("ch")) == 2);
    CHECK(list.list.FindStringExact(-1, _T("ch")) == LB_ERR);
    CHECK(list.list.FindStringExact(-1, _T("bravo")) == 3);
    CHECK(list.list.GetCurSel() == LB_ERR);
    CHECK(list.list.SelectString(-1, _T("cha")) == 2);
    CHECK(list.list.GetCurSel() == 2);
    CHECK(list.list.SetCurSel(0) != LB_ERR);
    CHECK(list.list.GetCurSel() == 0);
    CHECK(list.list.SetCurSel(50) == LB_ERR);
}

TEST_CASE("a click selects, and the parent hears of it")
{
    List list;
    CRect item;
    REQUIRE(list.list.GetItemRect(2, item) != LB_ERR);
    REQUIRE(Click(list.list.m_hWnd, item.CenterPoint()));
    CHECK(list.list.GetCurSel() == 2);
    CHECK(list.host.Heard(LBN_SELCHANGE));
    BOOL outside = TRUE;
    CHECK(list.list.ItemFromPoint(item.CenterPoint(), outside) == 2);
    CHECK_FALSE(outside);
}

TEST_CASE("each item carries data")
{
    List list;
    int target = 0;
    CHECK(list.list.SetItemData(1, wideItemData) != LB_ERR);
    CHECK(list.list.GetItemData(1) == wideItemData);
    CHECK(list.list.SetItemDataPtr(2, &target) != LB_ERR);
    CHECK(list.list.GetItemDataPtr(2) == &target);
}

TEST_CASE("a list with several selections selects items one by one and in ranges")
{
    List list(LBS_MULTIPLESEL);
    CHECK(list.list.SetSel(1) != LB_ERR);
    CHECK(list.list.SetSel(3) != LB_ERR);
    CHECK(list.list.GetSelCount() == 2);
    CHECK(list.list.GetSel(1) > 0);
    CHECK(list.list.GetSel(0) == 0);
    int chosen[4] = {};
    CHECK(list.list.GetSelItems(4, chosen) == 2);
    CHECK(chosen[0] == 1);
    CHECK(chosen[1] == 3);

    list.list.SelItemRange(TRUE, 0, 3);
    CHECK(list.list.GetSelCount() == 4);
    list.list.SelItemRange(FALSE, 1, 2);
    CHECK(list.list.GetSelCount() == 2);
    list.list.SelItemRange(FALSE, 3, 3);
    CHECK(list.list.GetSelCount() == 1);
    list.list.SelItemRange(TRUE, 2, 2);
    CHECK(list.list.GetSelCount() == 2);

    list.list.SetAnchorIndex(2);
    CHECK(list.list.GetAnchorIndex() == 2);
    list.list.SetCaretIndex(3);
    CHECK(list.list.GetCaretIndex() == 3);
}

TEST_CASE("a list scrolls, and its items have heights and columns")
{
    List list(WS_VSCROLL | WS_HSCROLL);
    for (int i = 0; i < 50; ++i)
        list.list.AddString(_T("more"));
    CHECK(list.list.SetTopIndex(20) != LB_ERR);
    CHECK(list.list.GetTopIndex() == 20);
    CHECK(list.list.SetItemHeight(0, 25) != LB_ERR);
    CHECK(list.list.GetItemHeight(0) == 25);
    list.list.SetHorizontalExtent(700);
    CHECK(list.list.GetHorizontalExtent() == 700);
    CHECK(list.list.InitStorage(100, 1000) != LB_ERRSPACE);
    CHECK(list.list.GetListBoxInfo() > 0);
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    CHECK(list.list.SetLocale(german) != (LCID)LB_ERR);
    CHECK(list.list.GetLocale() == german);
}

TEST_CASE("tab stops are taken by a list that uses them, and by no other")
{
    List tabbed(LBS_USETABSTOPS), plain;
    int stops[] = {30, 60};
    CHECK(tabbed.list.SetTabStops(2, stops));
    CHECK(tabbed.list.SetTabStops(25));
    tabbed.list.SetTabStops();
    CHECK_FALSE(plain.list.SetTabStops(25));
}

TEST_CASE("Dir lists files")
{
    ControlHost host;
    CListBox list;
    REQUIRE(list.Create(shownChild, place, &host, 30));
    CHECK(list.Dir(DDL_READWRITE, _T("C:\\windows\\*.*")) != LB_ERR);
    CHECK(list.GetCount() > 0);
}

TEST_CASE("an owner-drawn list asks its virtuals to measure, draw, sort and delete")
{
    ControlHost host;
    CNumberList list;
    REQUIRE(list.Create(shownChild | LBS_OWNERDRAWFIXED | LBS_SORT, place, &host, 30));
    CHECK(list.GetItemHeight(0) == 23);
    for (INT_PTR number : {30, 10, 20})
        list.AddString((LPCTSTR)number);
    CHECK(list.comparisons > 0);
    CHECK(list.GetItemData(0) == 10);
    CHECK(list.GetItemData(1) == 20);
    CHECK(list.GetItemData(2) == 30);

    list.UpdateWindow();
    CHECK(list.draws >= 3);
    CRect item;
    list.GetItemRect(1, item);
    CHECK(Picture::OfWindow(list.m_hWnd).At(item.left + 3, item.top + 3) == ownColor);

    list.DeleteString(0);
    CHECK(list.deletions == 1);
    list.ResetContent();
    CHECK(list.deletions == 3);
}

TEST_CASE("a list that wants keys asks its virtuals what they select")
{
    ControlHost host;
    CNumberList list;
    const DWORD style = LBS_OWNERDRAWFIXED | LBS_WANTKEYBOARDINPUT;
    REQUIRE(list.Create(shownChild | style, place, &host, 30));
    for (INT_PTR number : {1, 2, 3})
        list.AddString((LPCTSTR)number);
    list.SetFocus();
    list.SetCurSel(1);
    list.SendMessage(WM_KEYDOWN, VK_END, 1);
    CHECK(list.GetCurSel() == 0);
    list.SendMessage(WM_CHAR, 'z', 1);
    CHECK(list.GetCurSel() == 1);
    list.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    CHECK(list.GetCurSel() == 2);
    CHECK(list.keys == std::vector<UINT>{VK_END, 'z', VK_DOWN});
}
