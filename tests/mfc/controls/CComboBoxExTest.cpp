#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Combo
{
    ControlHost host;
    CComboBoxEx combo;

    explicit Combo(DWORD style = CBS_DROPDOWN)
    {
        REQUIRE(combo.Create(shownChild | style, CRect(10, 10, 200, 200), &host, 60));
        Insert(_T("first"), 11);
        Insert(_T("second"), 22);
    }
    void Insert(LPCTSTR text, LPARAM data, INT_PTR place = -1)
    {
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_TEXT | CBEIF_LPARAM;
        item.iItem = place;
        item.pszText = const_cast<LPTSTR>(text);
        item.lParam = data;
        REQUIRE(combo.InsertItem(&item) >= 0);
    }
    LPARAM DataOf(int index)
    {
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_LPARAM;
        item.iItem = index;
        return combo.GetItem(&item) ? item.lParam : -1;
    }
    CString TextOf(int index)
    {
        TCHAR text[40] = {};
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_TEXT;
        item.iItem = index;
        item.pszText = text;
        item.cchTextMax = _countof(text);
        return combo.GetItem(&item) ? item.pszText : _T("");
    }
};

} // namespace

TEST_CASE("items with data are inserted, changed and deleted")
{
    Combo combo;
    combo.Insert(_T("zeroth"), 33, 0);
    CHECK(combo.combo.GetCount() == 3);
    CHECK(combo.DataOf(0) == 33);
    CHECK(combo.TextOf(2) == _T("second"));
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT;
    item.iItem = 2;
    item.pszText = const_cast<LPTSTR>(_T("changed"));
    CHECK(combo.combo.SetItem(&item));
    CHECK(combo.TextOf(2) == _T("changed"));
    CHECK(combo.combo.DeleteItem(0) == 2);
    CHECK(combo.DataOf(0) == 11);
    CHECK(combo.DataOf(9) == -1);
}

TEST_CASE("an item is selected, and what is typed is told from it")
{
    Combo combo;
    combo.combo.SetCurSel(1);
    CHECK(combo.combo.GetCurSel() == 1);
    CEdit* edit = combo.combo.GetEditCtrl();
    REQUIRE(edit->GetSafeHwnd() != NULL);
    CString text;
    edit->GetWindowText(text);
    CHECK(text == _T("second"));
    CHECK_FALSE(combo.combo.HasEditChanged());
    edit->SetFocus();
    REQUIRE(TypeText(_T("x")));
    CHECK(combo.combo.HasEditChanged());
    CHECK(combo.combo.GetComboBoxCtrl()->GetSafeHwnd() != NULL);
    Combo list(CBS_DROPDOWNLIST);
    CHECK(list.combo.GetEditCtrl() == NULL);
}

TEST_CASE("a combo box of items has images and extended styles")
{
    Combo combo;
    CImageList images, others;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 2, 1));
    REQUIRE(others.Create(16, 16, ILC_COLOR, 2, 1));
    CHECK(combo.combo.SetImageList(&images) == NULL);
    CHECK(combo.combo.GetImageList()->GetSafeHandle() == images.GetSafeHandle());
    CHECK(combo.combo.SetImageList(&others)->GetSafeHandle() == images.GetSafeHandle());
    combo.combo.SetImageList(NULL);
    combo.combo.SetExtendedStyle(0, CBES_EX_NOEDITIMAGE);
    CHECK(combo.combo.GetExtendedStyle() == CBES_EX_NOEDITIMAGE);
    CHECK(combo.combo.SetExtendedStyle(CBES_EX_CASESENSITIVE, CBES_EX_CASESENSITIVE) ==
          CBES_EX_NOEDITIMAGE);
    const MessageLog log(combo.combo);
    combo.combo.SetWindowTheme(L"");
    CHECK(log.Contains(CBEM_SETWINDOWTHEME));
}

TEST_CASE("CreateEx gives a combo box of items an extended style")
{
    ControlHost host;
    CComboBoxEx combo;
    REQUIRE(combo.CreateEx(WS_EX_STATICEDGE, shownChild | CBS_DROPDOWNLIST, CRect(0, 0, 150, 90),
                           &host, 61));
    CHECK((combo.GetExStyle() & WS_EX_STATICEDGE) != 0);
}
