#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"
#include "testing/GdiObjects.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

const CRect place(10, 10, 170, 150);
const DWORD strings = LBS_NOTIFY | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED;

template <class List>
void AddGreek(List& list)
{
    for (LPCTSTR item : {_T("alpha"), _T("beta"), _T("gamma"), _T("delta")})
        list.AddString(item);
}

struct CheckList
{
    ControlHost host;
    CCheckListBox list;

    explicit CheckList(DWORD style = strings)
    {
        REQUIRE(list.Create(shownChild | WS_TABSTOP | style, place, &host, 30));
        AddGreek(list);
        list.UpdateWindow();
    }
    CPoint BoxOf(int index)
    {
        CRect item;
        REQUIRE(list.GetItemRect(index, item) != LB_ERR);
        return CPoint(item.left + 7, item.CenterPoint().y);
    }
    CPoint TextOf(int index) { return BoxOf(index) + CSize(40, 0); }
    bool ClickBox(int index) { return Click(list.m_hWnd, BoxOf(index)); }
    int Changes() const
    {
        return static_cast<int>(std::count(host.codes.begin(), host.codes.end(), CLBN_CHKCHANGE));
    }
};

/// Draws its texts by itself, and has its boxes at the right.
class CRightCheckList : public CCheckListBox
{
public:
    CRect drawn;
    UINT height = 0;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        drawn = lpDrawItemStruct->rcItem;
        CDC::FromHandle(lpDrawItemStruct->hDC)
            ->FillSolidRect(&lpDrawItemStruct->rcItem, RGB(120, 10, 220));
    }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override
    {
        lpMeasureItemStruct->itemHeight = height;
    }
    CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox) override
    {
        rectCheckBox.MoveToX(rectItem.right - rectCheckBox.Width() - 1);
        return rectCheckBox;
    }
};

/// A dialog whose list comes from its template.
class CListDialog : public CDialog
{
public:
    CCheckListBox list;
    int changes = 0;

    explicit CListDialog(DWORD style = strings)
    {
        DialogTemplate page(0, 0, 120, 100, DialogTemplate::popup | WS_VISIBLE);
        page.ListBox(30, 5, 5, 100, 60, DialogTemplate::tabStop | style);
        REQUIRE(CreateIndirect(page.Get()));
    }
    ~CListDialog() override { DestroyWindow(); }

protected:
    BOOL OnInitDialog() override
    {
        // As the data of a resource script does, before there is an object.
        SendDlgItemMessage(30, LB_ADDSTRING, 0, (LPARAM) _T("early"));
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, 30, list);
    }
    afx_msg void OnCheckChange() { ++changes; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CListDialog, CDialog)
    ON_CLBN_CHKCHANGE(30, &CListDialog::OnCheckChange)
END_MESSAGE_MAP()

} // namespace

TEST_CASE("a click on a box checks its item and tells the parent; one on a text only selects")
{
    CheckList list;
    CHECK(list.list.GetCheck(1) == 0);
    REQUIRE(list.ClickBox(1));
    CHECK(list.list.GetCheck(1) == 1);
    CHECK(list.list.GetCurSel() == 1);
    CHECK(list.Changes() == 1);
    REQUIRE(Click(list.list.m_hWnd, list.TextOf(2)));
    CHECK(list.list.GetCheck(2) == 0);
    CHECK(list.list.GetCurSel() == 2);
    CHECK(list.Changes() == 1);
    REQUIRE(list.ClickBox(1));
    CHECK(list.list.GetCheck(1) == 0);
    CHECK(list.Changes() == 2);
}

TEST_CASE("both clicks of a double click on a box count")
{
    CheckList list;
    REQUIRE(DoubleClick(list.list.m_hWnd, list.BoxOf(0)));
    CHECK(list.list.GetCheck(0) == 0);
    CHECK(list.Changes() == 2);
    REQUIRE(DoubleClick(list.list.m_hWnd, list.TextOf(0)));
    CHECK(list.host.Heard(LBN_DBLCLK));
    CHECK(list.Changes() == 2);
}

TEST_CASE("the space key changes the item that has the focus")
{
    CheckList list;
    list.list.SetFocus();
    list.list.SetCurSel(0);
    REQUIRE(PressKey(VK_DOWN));
    REQUIRE(PressKey(VK_SPACE));
    CHECK(list.list.GetCheck(1) == 1);
    CHECK(list.list.GetCheck(0) == 0);
    CHECK(list.Changes() == 1);
}

TEST_CASE("a list of three states goes round, and an own style leaves the change to the parent")
{
    CheckList list;
    CHECK(list.list.GetCheckStyle() == BS_AUTOCHECKBOX);
    list.list.SetCheckStyle(BS_AUTO3STATE);
    for (int expected : {1, 2, 0}) {
        REQUIRE(list.ClickBox(0));
        CHECK(list.list.GetCheck(0) == expected);
    }
    list.list.SetCheckStyle(BS_3STATE);
    REQUIRE(list.ClickBox(0));
    CHECK(list.list.GetCheck(0) == 0);
    CHECK(list.Changes() == 4);
}

TEST_CASE("a program sets checks without a notification, and a wrong index does nothing")
{
    CheckList list;
    list.list.SetCheck(3, 2);
    CHECK(list.list.GetCheck(3) == 2);
    list.list.SetCheck(3, 1);
    CHECK(list.list.GetCheck(3) == 1);
    list.list.SetCheck(99, 1);
    list.list.SetCheck(-1, 1);
    list.list.Enable(99);
    CHECK(list.list.GetCheck(99) == LB_ERR);
    CHECK_FALSE(list.list.IsEnabled(99));
    CHECK(list.Changes() == 0);
}

TEST_CASE("the user cannot change a disabled item")
{
    CheckList list;
    list.list.SetCheck(1, 1);
    list.list.Enable(1, FALSE);
    CHECK_FALSE(list.list.IsEnabled(1));
    CHECK(list.list.IsEnabled(0));
    REQUIRE(list.ClickBox(1));
    list.list.SetFocus();
    REQUIRE(PressKey(VK_SPACE));
    CHECK(list.list.GetCheck(1) == 1);
    CHECK(list.Changes() == 0);
    list.list.Enable(1);
    REQUIRE(list.ClickBox(1));
    CHECK(list.list.GetCheck(1) == 0);
}

TEST_CASE("checks stay with their items when items come and go")
{
    CheckList list;
    list.list.SetCheck(1, 1);
    list.list.SetCheck(3, 2);
    list.list.SetItemData(1, 77);
    list.list.InsertString(0, _T("first"));
    CHECK(list.list.GetCheck(0) == 0);
    CHECK(list.list.GetCheck(2) == 1);
    CHECK(list.list.GetCheck(4) == 2);
    CHECK(list.list.GetItemData(2) == 77);
    list.list.DeleteString(0);
    list.list.DeleteString(0);
    CHECK(list.list.GetCheck(0) == 1);
    CHECK(list.list.GetCheck(2) == 2);
    list.list.ResetContent();
    list.list.AddString(_T("again"));
    CHECK(list.list.GetCheck(0) == 0);

    CheckList sorted(strings | LBS_SORT); // alpha beta delta gamma
    sorted.list.SetCheck(1, 1);
    sorted.list.AddString(_T("amber"));
    CHECK(sorted.list.GetCheck(1) == 0);
    CHECK(sorted.list.GetCheck(2) == 1);
}

TEST_CASE("checks stay with their items when files come between them")
{
    CheckList list(strings | LBS_SORT);
    list.list.ResetContent();
    list.list.AddString(_T("."));
    const int last = list.list.AddString(_T("zzz"));
    list.list.SetCheck(last, 1);
    list.list.SetItemData(last, 5);
    REQUIRE(list.list.Dir(DDL_READWRITE, _T("C:\\windows\\*.*")) != LB_ERR);
    const int moved = list.list.FindStringExact(-1, _T("zzz"));
    REQUIRE(moved > last);
    CHECK(list.list.GetCheck(moved) == 1);
    CHECK(list.list.GetItemData(moved) == 5);
    CHECK(list.list.GetCheck(last) == 0);
    CHECK(list.list.GetItemData(0) == 0);
}

TEST_CASE("of several selected items all change, and stay selected")
{
    CheckList list(strings | LBS_EXTENDEDSEL);
    list.list.SetSel(0);
    list.list.SetSel(2);
    REQUIRE(list.ClickBox(2));
    CHECK(list.list.GetCheck(0) == 1);
    CHECK(list.list.GetCheck(1) == 0);
    CHECK(list.list.GetCheck(2) == 1);
    CHECK(list.list.GetSelCount() == 2);
    CHECK(list.Changes() == 1);
    REQUIRE(list.ClickBox(1)); // Not one of them.
    CHECK(list.list.GetCheck(1) == 1);
    CHECK(list.list.GetCheck(0) == 1);
}

TEST_CASE("boxes and texts are drawn")
{
    CheckList list;
    const GdiCount before = CountGdiObjects();
    const auto show = [&](int index) {
        CRect item;
        list.list.GetItemRect(index, item);
        list.list.UpdateWindow();
        return Picture::OfWindow(list.list.m_hWnd).Crop(item);
    };
    const Picture unchecked = show(1);
    CHECK(unchecked.Contains(::GetSysColor(COLOR_WINDOW)));
    CHECK(unchecked.Contains(::GetSysColor(COLOR_WINDOWTEXT)));
    list.list.SetCheck(1, 1);
    const Picture checked = show(1);
    CHECK(checked != unchecked);
    list.list.SetCheck(1, 2);
    CHECK(show(1) != checked);
    list.list.SetCheck(1, 0);
    CHECK(show(1) == unchecked);
    list.list.Enable(1, FALSE);
    CHECK(show(1).Contains(::GetSysColor(COLOR_GRAYTEXT)));
    list.list.Enable(1);
    list.list.SetCurSel(1);
    CHECK(show(1).Contains(::GetSysColor(COLOR_HIGHLIGHT)));
    CHECK(CountGdiObjects().total == before.total);
}

TEST_CASE("a derived list draws, measures and places its boxes by itself")
{
    ControlHost host;
    CRightCheckList list;
    list.height = 40;
    REQUIRE(list.Create(shownChild | strings, place, &host, 30));
    AddGreek(list);
    list.UpdateWindow();
    CHECK(list.GetItemHeight(0) == 40);
    CRect item;
    list.GetItemRect(0, item);
    CHECK(list.drawn.left == item.left);
    CHECK(list.drawn.right <= item.right - ::GetSystemMetrics(SM_CXMENUCHECK));
    CHECK(Picture::OfWindow(list.m_hWnd).At(item.left + 3, 20) == RGB(120, 10, 220));
    REQUIRE(Click(list.m_hWnd, CPoint(item.right - 5, 20)));
    CHECK(list.GetCheck(0) == 1);
    REQUIRE(Click(list.m_hWnd, CPoint(item.left + 5, 20)));
    CHECK(list.GetCheck(0) == 1);
}

TEST_CASE("items are as high as their text and their box need, also after another font")
{
    CheckList list;
    const int former = list.list.GetItemHeight(0);
    CHECK(former >= ::GetSystemMetrics(SM_CYMENUCHECK));
    CFont large, tiny;
    REQUIRE(large.CreatePointFont(300, _T("Tahoma")));
    REQUIRE(tiny.CreatePointFont(30, _T("Tahoma")));
    list.list.SetFont(&large);
    CHECK(list.list.GetItemHeight(0) >= 40);
    list.list.SetFont(&tiny);
    CHECK(list.list.GetItemHeight(0) >= ::GetSystemMetrics(SM_CYMENUCHECK));
    list.list.SetFont(NULL);

    CRightCheckList flat; // Its own measure is too small for a box.
    REQUIRE(flat.Create(shownChild | strings, place, &list.host, 31));
    CHECK(flat.GetItemHeight(0) >= ::GetSystemMetrics(SM_CYMENUCHECK));
}

TEST_CASE("a check list of a template works with what it held before its object came")
{
    CListDialog dialog;
    CHECK(dialog.list.GetItemHeight(0) >= ::GetSystemMetrics(SM_CYMENUCHECK));
    CHECK(dialog.list.GetCount() == 1);
    dialog.list.SetCheck(0, 1);
    CHECK(dialog.list.GetCheck(0) == 1);
    dialog.list.AddString(_T("late"));
    CHECK(dialog.list.GetCheck(1) == 0);
    CRect item;
    dialog.list.GetItemRect(1, item);
    REQUIRE(Click(dialog.list.m_hWnd, CPoint(7, item.CenterPoint().y)));
    CHECK(dialog.list.GetCheck(1) == 1);
    CHECK(dialog.changes == 1);

    CListDialog variable(LBS_NOTIFY | LBS_HASSTRINGS | LBS_OWNERDRAWVARIABLE);
    CHECK(variable.list.GetItemHeight(0) >= ::GetSystemMetrics(SM_CYMENUCHECK));
}

TEST_CASE("an empty check list shows where the focus is without an item")
{
    CheckList list;
    list.list.ResetContent();
    list.list.SetFocus();
    list.list.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
    REQUIRE(PressKey(VK_SPACE));
    CHECK(list.Changes() == 0);
    CHECK(list.list.GetCount() == 0);
}
