#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

#include <string>

using namespace umbra::testing;

namespace {

const CRect place(10, 10, 160, 210);

struct Combo
{
    ControlHost host;
    CComboBox box;

    explicit Combo(DWORD style = CBS_DROPDOWN)
    {
        REQUIRE(box.Create(shownChild | WS_VSCROLL | style, place, &host, 40));
        for (LPCTSTR item : {_T("delta"), _T("alpha"), _T("charlie"), _T("bravo")})
            box.AddString(item);
    }
    CString Text(int index)
    {
        CString text;
        box.GetLBText(index, text);
        return text;
    }
};

class CNumberCombo : public CComboBox
{
public:
    int draws = 0, deletions = 0, measures = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override
    {
        ++measures;
        lpMeasureItemStruct->itemHeight = 27;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) override
    {
        const auto first = (INT_PTR)lpCompareItemStruct->itemData1;
        const auto second = (INT_PTR)lpCompareItemStruct->itemData2;
        return first < second ? -1 : first > second ? 1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deletions; }
};

/// Answers as the combo box of a newer system, which not every system has.
class CNewCombo : public CComboBox
{
public:
    std::wstring cue;
    bool knows = true;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == CBM_FIRST + 3 && knows) {
            cue = (LPCWSTR)lParam;
            return TRUE;
        }
        if (message == CBM_FIRST + 4) {
            lstrcpynW((LPWSTR)wParam, cue.c_str(), (int)lParam);
            return knows;
        }
        return CComboBox::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_CASE("the items of a combo box are added, inserted, deleted and read")
{
    Combo combo;
    CHECK(combo.box.GetCount() == 4);
    CHECK(combo.box.InsertString(2, _T("new")) == 2);
    CHECK(combo.Text(2) == "new");
    CHECK(combo.box.GetLBTextLen(2) == 3);
    TCHAR text[10];
    CHECK(combo.box.GetLBText(2, text) == 3);
    CHECK(combo.box.DeleteString(2) == 4);
    CString unchanged = "former";
    combo.box.GetLBText(99, unchanged);
    CHECK(unchanged == "");
    combo.box.ResetContent();
    CHECK(combo.box.GetCount() == 0);
}

TEST_CASE("the items of a combo box are found and selected by their text")
{
    Combo combo;
    CHECK(combo.box.GetCurSel() == CB_ERR);
    CHECK(combo.box.FindString(-1, _T("ch")) == 2);
    CHECK(combo.box.FindStringExact(-1, _T("ch")) == CB_ERR);
    CHECK(combo.box.SelectString(-1, _T("br")) == 3);
    CHECK(combo.box.GetCurSel() == 3);
    CHECK(combo.box.SetCurSel(1) == 1);
    CString shown;
    combo.box.GetWindowText(shown);
    CHECK(shown == "alpha");
}

TEST_CASE("the items of a combo box carry data")
{
    Combo combo;
    int target = 0;
    CHECK(combo.box.SetItemData(0, wideItemData) != CB_ERR);
    CHECK(combo.box.GetItemData(0) == wideItemData);
    CHECK(combo.box.SetItemDataPtr(1, &target) != CB_ERR);
    CHECK(combo.box.GetItemDataPtr(1) == &target);
}

TEST_CASE("a combo box drops down and closes")
{
    Combo combo;
    CHECK_FALSE(combo.box.GetDroppedState());
    combo.box.ShowDropDown();
    CHECK(combo.box.GetDroppedState());
    CHECK(combo.host.Heard(CBN_DROPDOWN));
    CRect dropped;
    combo.box.GetDroppedControlRect(dropped);
    CHECK(dropped.Height() > 100);
    combo.box.ShowDropDown(FALSE);
    CHECK_FALSE(combo.box.GetDroppedState());
    CHECK(combo.box.SetDroppedWidth(300) != CB_ERR);
    CHECK(combo.box.GetDroppedWidth() == 300);
    CHECK(combo.box.SetExtendedUI() != CB_ERR);
    CHECK(combo.box.GetExtendedUI());
}

TEST_CASE("a key in a combo box selects, and the parent hears of it")
{
    Combo combo(CBS_DROPDOWNLIST);
    combo.box.SetCurSel(0);
    combo.box.SetFocus();
    REQUIRE(PressKey(VK_DOWN));
    CHECK(combo.box.GetCurSel() == 1);
    CHECK(combo.host.Heard(CBN_SELCHANGE));
}

TEST_CASE("the field of a combo box is edited, limited and goes through the clipboard")
{
    Combo combo;
    combo.box.SetWindowText(_T("one two"));
    CHECK(combo.box.SetEditSel(0, 3));
    CHECK(combo.box.GetEditSel() == MAKELONG(0, 3));
    combo.box.Cut();
    CString text;
    combo.box.GetWindowText(text);
    CHECK(text == " two");
    combo.box.SetEditSel(4, 4);
    combo.box.Paste();
    combo.box.GetWindowText(text);
    CHECK(text == " twoone");
    combo.box.SetEditSel(0, 1);
    combo.box.Copy();
    combo.box.Clear();
    combo.box.GetWindowText(text);
    CHECK(text == "twoone");

    combo.box.LimitText(2);
    combo.box.SetWindowText(_T(""));
    combo.box.SetFocus();
    TypeText(_T("abcd"));
    combo.box.GetWindowText(text);
    CHECK(text == "ab");
}

TEST_CASE("a combo box has heights, a top item, a width to scroll and a locale")
{
    Combo combo(CBS_SIMPLE);
    for (int i = 0; i < 100; ++i)
        combo.box.AddString(_T("more"));
    const int height = combo.box.GetItemHeight(-1); // The system adds room of its own.
    CHECK(combo.box.SetItemHeight(-1, height + 10) != CB_ERR);
    CHECK(combo.box.GetItemHeight(-1) > height);
    combo.box.SetHorizontalExtent(500);
    CHECK(combo.box.GetHorizontalExtent() == 500);
    CHECK(combo.box.InitStorage(10, 100) != CB_ERRSPACE);
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    CHECK(combo.box.SetLocale(german) != (LCID)CB_ERR);
    CHECK(combo.box.GetLocale() == german);

    COMBOBOXINFO info = {};
    CHECK(combo.box.GetComboBoxInfo(&info));
    CHECK(info.hwndCombo == combo.box.m_hWnd);
    REQUIRE(info.hwndList != NULL);

    ::SendMessage(info.hwndList, LB_SETTOPINDEX, 30, 0);
    CHECK(combo.box.GetTopIndex() == 30);
    MessageLog log(combo.box.m_hWnd); // Wine's control takes the request, and does not scroll.
    CHECK(combo.box.SetTopIndex(20) != CB_ERR);
    REQUIRE(log.Contains(CB_SETTOPINDEX));
    CHECK(log.Last(CB_SETTOPINDEX)->wParam == 20);
}

TEST_CASE("Dir lists files in a combo box")
{
    ControlHost host;
    CComboBox box;
    REQUIRE(box.Create(shownChild | CBS_DROPDOWNLIST, place, &host, 40));
    CHECK(box.Dir(DDL_READWRITE, _T("C:\\windows\\*.*")) != CB_ERR);
    CHECK(box.GetCount() > 0);
}

TEST_CASE("an owner-drawn combo box asks its virtuals to measure, draw, sort and delete")
{
    ControlHost host;
    CNumberCombo box;
    const DWORD style = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT;
    REQUIRE(box.Create(shownChild | style, place, &host, 40));
    CHECK(box.measures > 0);
    CHECK(box.GetItemHeight(0) == 27);
    for (INT_PTR number : {30, 10, 20})
        box.AddString((LPCTSTR)number);
    CHECK(box.GetItemData(0) == 10);
    CHECK(box.GetItemData(2) == 30);
    box.SetCurSel(0);
    box.UpdateWindow();
    CHECK(box.draws > 0);
    box.DeleteString(0);
    CHECK(box.deletions == 1);
}

TEST_CASE("a combo box has a cue in its empty field")
{
    ControlHost host;
    CNewCombo combo;
    REQUIRE(combo.Create(shownChild | CBS_DROPDOWN, CRect(10, 10, 160, 140), &host, 40));
    CHECK(combo.SetCueBanner(_T("Search")));
    CHECK(combo.cue == L"Search");
    CHECK(combo.GetCueBanner() == _T("Search"));
    TCHAR text[5] = {};
    CHECK(combo.GetCueBanner(text, _countof(text))); // Cut to the room.
    CHECK(CString(text) == _T("Sear"));
    combo.knows = false;
    CHECK_FALSE(combo.GetCueBanner(text, _countof(text)));
    CHECK(combo.GetCueBanner() == _T(""));
}
