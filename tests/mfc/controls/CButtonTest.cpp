#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

constexpr UINT buttonId = 101;
const CRect place(10, 10, 110, 40);
const COLORREF ownColor = RGB(12, 200, 34);

class CPaintedButton : public CButton
{
public:
    int draws = 0;
    UINT lastState = 0;
    UINT lastId = 0;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override
    {
        ++draws;
        lastState = lpDrawItemStruct->itemState;
        lastId = lpDrawItemStruct->CtlID;
        CDC::FromHandle(lpDrawItemStruct->hDC)->FillSolidRect(&lpDrawItemStruct->rcItem, ownColor);
    }
};

/// A host whose own handler draws its buttons.
class CDrawingHost : public ControlHost
{
public:
    bool callsBase = false;
    int draws = 0;

protected:
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
    {
        ++draws;
        if (callsBase)
            CWnd::OnDrawItem(nIDCtl, lpDrawItemStruct);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CDrawingHost, ControlHost)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

class CCountedButton : public CButton
{
public:
    int clicks = 0;

protected:
    afx_msg void OnClicked() { ++clicks; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CCountedButton, CButton)
    ON_CONTROL_REFLECT(BN_CLICKED, &CCountedButton::OnClicked)
END_MESSAGE_MAP()

} // namespace

TEST_CASE("a button is made with its text, place, style and id")
{
    ControlHost host;
    CButton button;
    REQUIRE(button.Create(_T("&Go"), shownChild | BS_PUSHBUTTON, place, &host, buttonId));
    CString text;
    button.GetWindowText(text);
    CHECK(text == "&Go");
    CHECK(button.GetDlgCtrlID() == buttonId);
    CHECK(host.GetDlgItem(buttonId) == &button);
    CHECK(button.GetButtonStyle() == BS_PUSHBUTTON);
    CHECK(button.IsKindOf(RUNTIME_CLASS(CButton)));
    CHECK(button.IsKindOf(RUNTIME_CLASS(CWnd)));
    CRect real;
    button.GetWindowRect(real);
    host.ScreenToClient(real);
    CHECK(real == place);
}

TEST_CASE("a click reaches the parent as BN_CLICKED")
{
    ControlHost host;
    CButton button;
    REQUIRE(button.Create(_T("Go"), shownChild | BS_PUSHBUTTON, place, &host, buttonId));
    REQUIRE(Click(button.m_hWnd));
    CHECK(host.Heard(BN_CLICKED));
}

TEST_CASE("a button gets its own click back when the parent does not handle it")
{
    ControlHost host;
    CCountedButton button;
    REQUIRE(button.Create(_T("Go"), shownChild | BS_PUSHBUTTON, place, &host, buttonId));
    REQUIRE(Click(button.m_hWnd));
    CHECK(button.clicks == 1);
}

TEST_CASE("a check box is checked, unchecked and, with three states, undecided")
{
    ControlHost host;
    CButton button;
    REQUIRE(button.Create(_T("Box"), shownChild | BS_AUTO3STATE, place, &host, buttonId));
    CHECK(button.GetCheck() == BST_UNCHECKED);
    button.SetCheck(BST_CHECKED);
    CHECK(button.GetCheck() == BST_CHECKED);
    CHECK((button.GetState() & 3) == BST_CHECKED);
    button.SetCheck(BST_INDETERMINATE);
    CHECK(button.GetCheck() == BST_INDETERMINATE);
    REQUIRE(Click(button.m_hWnd));
    CHECK(button.GetCheck() == BST_UNCHECKED);
}

TEST_CASE("SetState presses a button without a click")
{
    ControlHost host;
    CButton button;
    REQUIRE(button.Create(_T("Go"), shownChild | BS_PUSHBUTTON, place, &host, buttonId));
    button.SetState(TRUE);
    CHECK((button.GetState() & BST_PUSHED) != 0);
    button.SetState(FALSE);
    CHECK((button.GetState() & BST_PUSHED) == 0);
    CHECK_FALSE(host.Heard(BN_CLICKED));
}

TEST_CASE("SetButtonStyle makes a button the default one")
{
    ControlHost host;
    CButton button;
    REQUIRE(button.Create(_T("Go"), shownChild | BS_PUSHBUTTON, place, &host, buttonId));
    button.SetButtonStyle(BS_DEFPUSHBUTTON);
    CHECK((button.GetButtonStyle() & BS_TYPEMASK) == BS_DEFPUSHBUTTON);
}

TEST_CASE("a button keeps icon, bitmap and cursor, and gives the former one back")
{
    ControlHost host;
    CButton iconButton, bitmapButton;
    REQUIRE(iconButton.Create(_T(""), shownChild | BS_ICON, place, &host, buttonId));
    REQUIRE(bitmapButton.Create(_T(""), shownChild | BS_BITMAP, place, &host, buttonId + 1));

    const HICON icon = ::LoadIcon(NULL, IDI_INFORMATION);
    CHECK(iconButton.GetIcon() == NULL);
    CHECK(iconButton.SetIcon(icon) == NULL);
    CHECK(iconButton.GetIcon() == icon);

    CBitmap first, second;
    REQUIRE(first.CreateBitmap(8, 8, 1, 1, NULL));
    REQUIRE(second.CreateBitmap(8, 8, 1, 1, NULL));
    CHECK(bitmapButton.SetBitmap(first) == NULL);
    CHECK(bitmapButton.GetBitmap() == (HBITMAP)first);
    CHECK(bitmapButton.SetBitmap(second) == (HBITMAP)first);
}

TEST_CASE("a cursor goes to the button as its image")
{
    ControlHost host;
    CButton button;
    REQUIRE(button.Create(_T(""), shownChild | BS_ICON, place, &host, buttonId));
    const HCURSOR cursor = ::LoadCursor(NULL, IDC_CROSS);
    MessageLog log(button.m_hWnd);
    button.SetCursor(cursor);
    REQUIRE(log.Contains(BM_SETIMAGE));
    CHECK(log.Last(BM_SETIMAGE)->wParam == IMAGE_CURSOR);
    CHECK(log.Last(BM_SETIMAGE)->lParam == (LPARAM)cursor);
    const HCURSOR kept = button.GetCursor();
    REQUIRE(log.Contains(BM_GETIMAGE));
    CHECK(log.Last(BM_GETIMAGE)->wParam == IMAGE_CURSOR);
    CHECK(log.Last(BM_GETIMAGE)->result == (LRESULT)kept);
}

TEST_CASE("an owner-drawn button draws itself through its virtual DrawItem")
{
    ControlHost host;
    CPaintedButton button;
    REQUIRE(button.Create(_T(""), shownChild | BS_OWNERDRAW, place, &host, buttonId));
    button.UpdateWindow();
    CHECK(button.draws > 0);
    CHECK(button.lastId == buttonId);
    const Picture picture = Picture::OfWindow(button.m_hWnd);
    CHECK(picture.CountOf(ownColor) == picture.Width() * picture.Height());

    button.EnableWindow(FALSE);
    button.UpdateWindow();
    CHECK((button.lastState & ODS_DISABLED) != 0);
}

TEST_CASE("a parent that handles WM_DRAWITEM decides whether the button draws itself")
{
    CDrawingHost host;
    CPaintedButton button;
    REQUIRE(button.Create(_T(""), shownChild | BS_OWNERDRAW, place, &host, buttonId));
    button.UpdateWindow();
    CHECK(host.draws > 0);
    CHECK(button.draws == 0);

    host.callsBase = true;
    button.Invalidate();
    button.UpdateWindow();
    CHECK(button.draws == 1);
}
