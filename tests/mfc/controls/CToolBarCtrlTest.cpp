#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"
#include "tests/mfc/Resources.h"

using namespace umbra::testing;

namespace {

const int open = 101, save = 102, bold = 103;

TBBUTTON ButtonOf(int id, BYTE style, int text)
{
    TBBUTTON button = {};
    button.idCommand = id;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = style;
    button.iBitmap = I_IMAGENONE;
    button.iString = text;
    return button;
}

struct Bar
{
    ControlHost host;
    CToolBarCtrl bar;

    explicit Bar(DWORD style = TBSTYLE_TOOLTIPS)
    {
        REQUIRE(bar.Create(shownChild | CCS_TOP | style, CRect(0, 0, 0, 0), &host, 50));
        REQUIRE(bar.AddStrings(_T("Open\0Save\0Bold\0")) == 0);
        TBBUTTON buttons[] = {ButtonOf(open, TBSTYLE_BUTTON, 0), ButtonOf(save, TBSTYLE_BUTTON, 1),
                              ButtonOf(0, TBSTYLE_SEP, 0), ButtonOf(bold, TBSTYLE_CHECK, 2)};
        REQUIRE(bar.AddButtons(4, buttons));
        bar.AutoSize();
        bar.UpdateWindow();
    }
    CPoint MiddleOf(int id)
    {
        CRect area;
        REQUIRE(bar.GetRect(id, area));
        return area.CenterPoint();
    }
};

} // namespace

TEST_CASE("buttons of a tool bar are added, read, moved and deleted")
{
    Bar bar;
    CHECK(bar.bar.GetButtonCount() == 4);
    CHECK(bar.bar.CommandToIndex(bold) == 3);
    TBBUTTON read = {};
    CHECK(bar.bar.GetButton(1, &read));
    CHECK(read.idCommand == save);
    CHECK(read.iString == 1);
    TBBUTTON added = ButtonOf(110, TBSTYLE_BUTTON, 0);
    CHECK(bar.bar.InsertButton(1, &added));
    CHECK(bar.bar.CommandToIndex(110) == 1);
    CHECK(bar.bar.MoveButton(1, 0));
    CHECK(bar.bar.CommandToIndex(110) == 0);
    CHECK(bar.bar.SetCmdID(0, 111));
    CHECK(bar.bar.CommandToIndex(111) == 0);
    CHECK(bar.bar.DeleteButton(0));
    CHECK(bar.bar.GetButtonCount() == 4);
    CHECK_FALSE(bar.bar.DeleteButton(44));
    CHECK((int)bar.bar.CommandToIndex(999) == -1);
}

TEST_CASE("a click on a button is a command, and a check button keeps its state")
{
    Bar bar;
    REQUIRE(Click(bar.bar.m_hWnd, bar.MiddleOf(save)));
    CHECK(bar.host.Heard(BN_CLICKED));
    CHECK_FALSE(bar.bar.IsButtonChecked(bold));
    REQUIRE(Click(bar.bar.m_hWnd, bar.MiddleOf(bold)));
    CHECK(bar.bar.IsButtonChecked(bold));
    CPoint middle = bar.MiddleOf(bold);
    CHECK(bar.bar.HitTest(&middle) == 3);
}

TEST_CASE("buttons have states")
{
    Bar bar;
    CHECK(bar.bar.IsButtonEnabled(open));
    CHECK(bar.bar.EnableButton(open, FALSE));
    CHECK_FALSE(bar.bar.IsButtonEnabled(open));
    CHECK(bar.bar.CheckButton(bold));
    CHECK(bar.bar.IsButtonChecked(bold));
    CHECK(bar.bar.PressButton(save));
    CHECK(bar.bar.IsButtonPressed(save));
    CHECK(bar.bar.HideButton(save));
    CHECK(bar.bar.IsButtonHidden(save));
    CHECK(bar.bar.Indeterminate(open));
    CHECK(bar.bar.IsButtonIndeterminate(open));
    CHECK(bar.bar.MarkButton(bold));
    CHECK(bar.bar.IsButtonHighlighted(bold));
    CHECK(bar.bar.SetState(open, TBSTATE_ENABLED));
    CHECK(bar.bar.GetState(open) == TBSTATE_ENABLED);
    CHECK(bar.bar.GetState(999) == -1);
}

TEST_CASE("buttons have texts out of a list")
{
    Bar bar;
    CHECK(bar.bar.GetButtonText(save) == _T("Save"));
    CHECK(bar.bar.GetButtonText(999) == _T(""));
    CString text;
    CHECK(bar.bar.GetString(2, text) == 4);
    CHECK(text == _T("Bold"));
    CHECK(bar.bar.GetString(20, text) == -1);
    TCHAR buffer[10] = {};
    CHECK(bar.bar.GetString(0, buffer, _countof(buffer)) == 4);
    CHECK(CString(buffer) == _T("Open"));

    CString loaded;
    REQUIRE(loaded.LoadString(IDS_PAGE));
    CHECK(bar.bar.AddString(IDS_PAGE) == 3);
    CHECK(bar.bar.GetString(3, text) == loaded.GetLength());
    CHECK(text == loaded);
    CHECK(bar.bar.AddString(64999) == -1);

    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT | TBIF_LPARAM;
    info.pszText = const_cast<LPTSTR>(_T("Keep"));
    info.lParam = 5;
    CHECK(bar.bar.SetButtonInfo(save, &info));
    CHECK(bar.bar.GetButtonText(save) == _T("Keep"));
    info.dwMask = TBIF_LPARAM;
    info.lParam = 0;
    CHECK(bar.bar.GetButtonInfo(save, &info) == 1);
    CHECK(info.lParam == 5);
}

TEST_CASE("a tool bar has images of bitmaps and of lists")
{
    Bar bar;
    CBitmap bitmap;
    REQUIRE(bitmap.CreateBitmap(32, 16, 1, 1, NULL));
    bar.bar.SetBitmapSize(CSize(16, 16));
    CHECK(bar.bar.AddBitmap(2, &bitmap) == 0);
    CHECK(bar.bar.ChangeBitmap(open, 1));
    CHECK(bar.bar.GetBitmap(open) == 1);
    CHECK(bar.bar.AddBitmap(2, 64999) == -1); // No such resource.

    Bar other;
    CImageList plain, hot, disabled;
    for (CImageList* list : {&plain, &hot, &disabled})
        REQUIRE(list->Create(16, 16, ILC_COLOR, 2, 1));
    CHECK(other.bar.SetImageList(&plain) == NULL);
    CHECK(other.bar.SetHotImageList(&hot) == NULL);
    CHECK(other.bar.SetDisabledImageList(&disabled) == NULL);
    CHECK(other.bar.GetImageList()->GetSafeHandle() == plain.GetSafeHandle());
    CHECK(other.bar.GetHotImageList()->GetSafeHandle() == hot.GetSafeHandle());
    CHECK(other.bar.GetDisabledImageList()->GetSafeHandle() == disabled.GetSafeHandle());
    const MessageLog log(other.bar);
    other.bar.SetPressedImageList(0, &hot);
    CheckSent(log, WM_USER + 104, 0, (LPARAM)hot.GetSafeHandle());
    other.bar.GetPressedImageList();
    CheckSent(log, WM_USER + 105, 0, 0);
    other.bar.LoadImages(IDB_STD_SMALL_COLOR, HINST_COMMCTRL);
    CheckSent(log, TB_LOADIMAGES, IDB_STD_SMALL_COLOR, (LPARAM)HINST_COMMCTRL);
    for (CImageList* (CToolBarCtrl::*set)(CImageList*) :
         {&CToolBarCtrl::SetImageList, &CToolBarCtrl::SetHotImageList,
          &CToolBarCtrl::SetDisabledImageList})
        (other.bar.*set)(NULL);
}

TEST_CASE("a tool bar has sizes and rows")
{
    Bar bar;
    CHECK(bar.bar.SetButtonSize(CSize(60, 40)));
    CHECK(HIWORD(bar.bar.GetButtonSize()) == 40);
    CHECK(bar.bar.SetButtonWidth(70, 90));
    SIZE most = {};
    CHECK(bar.bar.GetMaxSize(&most));
    CHECK(most.cx > 140);
    CHECK(bar.bar.GetRows() == 1);
    CRect area;
    bar.bar.SetRows(2, TRUE, area);
    CHECK(area.Height() > 0);
    CHECK(bar.bar.SetIndent(12));
    CHECK(bar.bar.SetMaxTextRows(2));
    CHECK(bar.bar.GetMaxTextRows() == 2);
    const MessageLog log(bar.bar);
    bar.bar.SetPadding(9, 8);
    CheckSent(log, TB_SETPADDING, 0, MAKELPARAM(9, 8));
    int horizontal = 0, vertical = 0;
    CHECK(bar.bar.GetPadding(&horizontal, &vertical));
    CHECK(MAKELONG(horizontal, vertical) == log.Last(TB_GETPADDING)->result);
    TBMETRICS metrics = {};
    metrics.cbSize = sizeof(metrics);
    metrics.dwMask = TBMF_PAD;
    bar.bar.GetMetrics(&metrics);
    CheckSent(log, TB_GETMETRICS, 0, (LPARAM)&metrics);
    bar.bar.SetMetrics(&metrics);
    CheckSent(log, TB_SETMETRICS, 0, (LPARAM)&metrics);
    CRect first;
    CHECK(bar.bar.GetItemRect(0, first));
    CHECK(first.left >= 12);
}

TEST_CASE("a tool bar has styles and looks")
{
    Bar bar;
    bar.bar.SetStyle(bar.bar.GetStyle() | TBSTYLE_FLAT);
    CHECK((bar.bar.GetStyle() & TBSTYLE_FLAT) != 0);
    bar.bar.SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS);
    CHECK(bar.bar.GetExtendedStyle() == TBSTYLE_EX_DRAWDDARROWS);
    bar.bar.SetAnchorHighlight();
    CHECK(bar.bar.GetAnchorHighlight());
    bar.bar.SetHotItem(1);
    CHECK(bar.bar.GetHotItem() == 1);
    CHECK(bar.bar.SetHotItem(-1) == 1);
    COLORSCHEME scheme = {sizeof(scheme), RGB(1, 1, 1), RGB(2, 2, 2)};
    bar.bar.SetColorScheme(&scheme);
    COLORSCHEME read = {sizeof(read), 0, 0};
    CHECK(bar.bar.GetColorScheme(&read));
    CHECK(read.clrBtnShadow == RGB(2, 2, 2));
    bar.bar.SetInsertMarkColor(RGB(9, 9, 9));
    CHECK(bar.bar.GetInsertMarkColor() == RGB(9, 9, 9));
    TBINSERTMARK mark = {1, 0}, readMark = {};
    bar.bar.SetInsertMark(&mark);
    bar.bar.GetInsertMark(&readMark);
    CHECK(readMark.iButton == 1);
    const MessageLog log(bar.bar);
    CPoint point(5, 5);
    bar.bar.InsertMarkHitTest(&point, &mark);
    CheckSent(log, TB_INSERTMARKHITTEST, (WPARAM)&point, (LPARAM)&mark);
    bar.bar.SetDrawTextFlags(DT_RIGHT, DT_RIGHT);
    CheckSent(log, TB_SETDRAWTEXTFLAGS, DT_RIGHT, DT_RIGHT);
    bar.bar.SetWindowTheme(L"");
    CHECK(log.Contains(TB_SETWINDOWTHEME));
    CHECK((bar.bar.GetBitmapFlags() & ~TBBF_LARGE) == 0);
}

TEST_CASE("a tool bar has an owner, tool tips and accelerators")
{
    Bar bar;
    REQUIRE(bar.bar.GetToolTips() != NULL);
    CToolTipCtrl tip;
    REQUIRE(tip.Create(&bar.host));
    bar.bar.SetToolTips(&tip);
    CHECK(bar.bar.GetToolTips() == &tip);
    bar.bar.SetToolTips(NULL);

    ControlHost other;
    other.ShowWindow(SW_HIDE);
    bar.bar.SetOwner(&other);
    bar.host.codes.clear();
    REQUIRE(Click(bar.bar.m_hWnd, bar.MiddleOf(save)));
    CHECK(other.Heard(BN_CLICKED));
    CHECK_FALSE(bar.host.Heard(BN_CLICKED));

    const MessageLog log(bar.bar);
    UINT id = 0;
    bar.bar.MapAccelerator('s', &id);
    CheckSent(log, TB_MAPACCELERATOR, 's', (LPARAM)&id);
    TBREPLACEBITMAP replacement = {};
    bar.bar.ReplaceBitmap(&replacement);
    CheckSent(log, TB_REPLACEBITMAP, 0, (LPARAM)&replacement);
    IDropTarget* target = NULL;
    bar.bar.GetDropTarget(&target);
    CHECK(log.Last(TB_GETOBJECT)->lParam == (LPARAM)&target);
}

TEST_CASE("a tool bar keeps its state in the registry")
{
    Bar bar(CCS_ADJUSTABLE);
    const MessageLog log(bar.bar);
    bar.bar.SaveState(HKEY_CURRENT_USER, _T("Software\\Umbra Test"), _T("Bar"));
    CHECK(log.Last(TB_SAVERESTORE)->wParam == TRUE);
    bar.bar.RestoreState(HKEY_CURRENT_USER, _T("Software\\Umbra Test"), _T("Bar"));
    CHECK(log.Last(TB_SAVERESTORE)->wParam == FALSE);
    ::SHDeleteKey(HKEY_CURRENT_USER, _T("Software\\Umbra Test"));
}
