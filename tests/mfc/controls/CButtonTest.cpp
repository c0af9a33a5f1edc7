#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

#include <string>

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

// Messages and a structure that the headers leave out for older systems.
constexpr UINT setDropDown = BCM_FIRST + 6, setSplit = BCM_FIRST + 7, getSplit = BCM_FIRST + 8,
               setNote = BCM_FIRST + 9, getNote = BCM_FIRST + 10, noteLength = BCM_FIRST + 11,
               setShield = BCM_FIRST + 12;
struct SplitInfo
{
    UINT mask;
    HIMAGELIST glyph;
    UINT style;
    SIZE size;
};

/// Answers as the button of a newer system, which not every system has.
class CNewButton : public CButton
{
public:
    SplitInfo split = {};
    std::wstring note;
    bool hasNote = true;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message) {
        case setSplit:
            return Take(*(const SplitInfo*)lParam);
        case getSplit:
            return Give(*(SplitInfo*)lParam);
        case setNote:
            note = (LPCWSTR)lParam;
            return TRUE;
        case noteLength:
            return note.size();
        case getNote:
            if (!hasNote || *(DWORD*)wParam <= note.size())
                return FALSE;
            lstrcpyW((LPWSTR)lParam, note.c_str());
            return TRUE;
        case setShield:
            return hasNote ? 1 : ERROR_NOT_SUPPORTED;
        default:
            return CButton::WindowProc(message, wParam, lParam);
        }
    }

private:
    BOOL Take(const SplitInfo& from) { return Copy(from, split, from.mask); }
    BOOL Give(SplitInfo& to) { return Copy(split, to, to.mask); }
    static BOOL Copy(const SplitInfo& from, SplitInfo& to, UINT mask)
    {
        if ((mask & 3) != 0) // The glyph is a character or an image list.
            to.glyph = from.glyph;
        if ((mask & 4) != 0)
            to.style = from.style;
        if ((mask & 8) != 0)
            to.size = from.size;
        return TRUE;
    }
};

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

TEST_CASE("a split button has an arrow, a style and a size")
{
    ControlHost host;
    CNewButton button;
    REQUIRE(button.Create(_T("Split"), shownChild, place, &host, buttonId));
    CHECK(button.SetSplitGlyph(_T('v')));
    CHECK(button.GetSplitGlyph() == _T('v'));
    CHECK(button.SetSplitStyle(2));
    CHECK(button.GetSplitStyle() == 2);
    SIZE size = {11, 12}, read = {};
    CHECK(button.SetSplitSize(&size));
    CHECK(button.GetSplitSize(&read));
    CHECK(read.cx == 11);
    CHECK(read.cy == 12);
    CHECK(button.GetSplitGlyph() == _T('v')); // Each changes its own part alone.
    CImageList images;
    REQUIRE(images.Create(16, 16, ILC_COLOR, 1, 1));
    CHECK(button.SetSplitImageList(&images));
    CHECK(button.GetSplitImageList()->GetSafeHandle() == images.GetSafeHandle());
    SplitInfo whole = {4 | 8, NULL, 0, {}};
    CHECK(button.GetSplitInfo((tagBUTTON_SPLITINFO*)&whole));
    CHECK(whole.style == 2);
    CHECK(whole.size.cx == 11);
    whole.style = 4;
    CHECK(button.SetSplitInfo((tagBUTTON_SPLITINFO*)&whole));
    CHECK(button.GetSplitStyle() == 4);
    const MessageLog log(button);
    button.SetDropDownState(TRUE);
    CheckSent(log, setDropDown, TRUE, 0);
}

TEST_CASE("a command link has a note and a shield")
{
    ControlHost host;
    CNewButton button;
    REQUIRE(button.Create(_T("Link"), shownChild, place, &host, buttonId));
    CHECK(button.SetNote(_T("What it does")));
    CHECK(button.note == L"What it does");
    CHECK(button.GetNoteLength() == 12);
    CHECK(button.GetNote() == _T("What it does"));
    TCHAR buffer[20] = {};
    UINT room = _countof(buffer);
    CHECK(button.GetNote(buffer, &room));
    CHECK(room == 13);
    CHECK(CString(buffer) == _T("What it does"));
    room = 12;
    CHECK_FALSE(button.GetNote(buffer, &room)); // Its terminator would not fit.
    CHECK(room == 13);
    CHECK(button.SetElevationRequired(TRUE));

    button.hasNote = false; // An older system.
    CHECK(button.GetNote() == _T(""));
    CHECK_FALSE(button.GetNote(buffer, &room));
    CHECK_FALSE(button.SetElevationRequired(TRUE));
}
