#include <afxwin.h>
#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"
#include "testing/Input.h"
#include "testing/NextDialog.h"
#include "testing/Pump.h"

#include <stdexcept>
#include <string>

#include "tests/mfc/FailureCount.h"
#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Resources.h"
#include "tests/mfc/Throws.h"

using namespace umbra::testing;

namespace {

const UINT nestedMessage = WM_APP + 1;
const UINT failingMessage = WM_APP + 2;
const UINT countedMessage = WM_APP + 3;

class CPlain : public CWnd
{
public:
    BOOL Make(LPCTSTR className = NULL, DWORD style = WS_POPUP, CWnd* parent = NULL)
    {
        return CreateEx(0, className, _T("Plain"), style, CRect(10, 20, 210, 120), parent, 0);
    }
};

// --- The current message. ---

/// Hands messages on in odd ways.
class CCurrent : public CPlain
{
public:
    UINT current = 0;
    WPARAM currentParameter = 0;

protected:
    /// Calls the base with other arguments than the message's.
    afx_msg void OnSetText() { Default(); }
    LRESULT OnText(WPARAM, LPARAM)
    {
        SendMessage(nestedMessage, 5, 6); // Changes the current message for a while.
        current = GetCurrentMessage()->message;
        currentParameter = GetCurrentMessage()->wParam;
        return Default();
    }
    LRESULT OnNested(WPARAM, LPARAM) { return 1; }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
        CREATESTRUCT other = *lpCreateStruct;
        other.lpszName = _T("from a copy");
        return CPlain::OnNcCreate(&other);
    }
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos)
    {
        lpwndpos->flags |= SWP_NOMOVE;
        WINDOWPOS other{};
        CPlain::OnWindowPosChanging(&other);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CCurrent, CPlain)
    ON_MESSAGE(WM_SETTEXT, OnText)
    ON_MESSAGE(nestedMessage, OnNested)
    ON_WM_NCCREATE()
    ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

// --- Failing handlers. ---

class CFailing : public CPlain
{
public:
    int foreign = 0;

protected:
    LRESULT OnFailing(WPARAM wParam, LPARAM)
    {
        if (wParam == 0)
            AfxThrowUserException();
        ++foreign;
        throw std::runtime_error("foreign");
    }
    afx_msg void OnPaint() { AfxThrowUserException(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CFailing, CPlain)
    ON_MESSAGE(failingMessage, OnFailing)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class CFailingCreation : public CPlain
{
protected:
    afx_msg int OnCreate(LPCREATESTRUCT) { AfxThrowUserException(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CFailingCreation, CPlain)
    ON_WM_CREATE()
END_MESSAGE_MAP()

// --- The end of a window. ---

int deletions = 0;

class CSelfDeleting : public CPlain
{
public:
    ~CSelfDeleting() override { ++deletions; }

protected:
    LRESULT OnCounted(WPARAM, LPARAM)
    {
        DestroyWindow();
        return 4;
    }
    void PostNcDestroy() override { delete this; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CSelfDeleting, CPlain)
    ON_MESSAGE(countedMessage, OnCounted)
END_MESSAGE_MAP()

class CForgetful : public CPlain
{
protected:
    afx_msg void OnNcDestroy() {} // Does not call the base.
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CForgetful, CPlain)
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

// --- Subclassing. ---

class CCountingEdit : public CEdit
{
public:
    int counted = 0;
    HWND prepared = NULL;
    bool countsBeforePrepared = false;

    void PreSubclassWindow() override { prepared = m_hWnd; }

protected:
    LRESULT OnCounted(WPARAM, LPARAM)
    {
        ++counted;
        countsBeforePrepared = prepared == NULL;
        return 8;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CCountingEdit, CEdit)
    ON_MESSAGE(countedMessage, OnCounted)
END_MESSAGE_MAP()

HWND MakeStranger(LPCTSTR className = _T("Edit"))
{
    return ::CreateWindow(className, _T("stranger"), WS_POPUP | ES_AUTOHSCROLL, 0, 0, 50, 20, NULL,
                          NULL, NULL, NULL);
}

CString TextOf(HWND window)
{
    TCHAR text[200] = _T("");
    ::GetWindowText(window, text, _countof(text));
    return text;
}

/// Temporary objects live until the handlers have returned; a message makes a handler.
class CHolding : public CPlain
{
public:
    HWND stranger = NULL;
    bool survived = false;

protected:
    LRESULT OnCounted(WPARAM, LPARAM)
    {
        CWnd* temporary = CWnd::FromHandle(stranger);
        AfxGetThread()->OnIdle(1);
        survived = temporary->m_hWnd == stranger && CWnd::FromHandle(stranger) == temporary;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CHolding, CPlain)
    ON_MESSAGE(countedMessage, OnCounted)
END_MESSAGE_MAP()

// --- Tool tips. ---

class CTipped : public CPlain
{
public:
    CStatic tool;
    int asked = 0;
    UINT askedId = 0;

    BOOL OnNeedText(UINT id, NMHDR* header, LRESULT*)
    {
        ++asked;
        askedId = id;
        auto* wanted = reinterpret_cast<NMTTDISPINFO*>(header);
        wanted->lpszText = const_cast<LPTSTR>(_T("the tip"));
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CTipped, CPlain)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, OnNeedText)
END_MESSAGE_MAP()

HWND VisibleTip()
{
    HWND tip = NULL;
    while ((tip = ::FindWindowEx(NULL, tip, TOOLTIPS_CLASS, NULL)) != NULL) {
        if (::IsWindowVisible(tip))
            return tip;
    }
    return NULL;
}

CRect PlaceOf(const CWnd& window)
{
    CRect place;
    window.GetWindowRect(&place);
    return place;
}

} // namespace

TEST_CASE("Default processes the current message, also after a nested one")
{
    CCurrent window;
    REQUIRE(window.Make());
    window.SetWindowText(_T("new text"));
    CHECK(TextOf(window) == "new text");
    CHECK(window.current == WM_SETTEXT);
    CHECK(window.currentParameter == 0);
}

TEST_CASE("a handler of the base ignores its arguments and uses the message's own")
{
    CCurrent window;
    REQUIRE(window.Make());
    CHECK(TextOf(window) == "Plain"); // Not the name in the copy.
}

TEST_CASE("changes made through a message's pointer are seen by the default processing")
{
    CCurrent window;
    REQUIRE(window.Make());
    const CRect before = PlaceOf(window);
    window.SetWindowPos(NULL, 300, 300, 80, 60, SWP_NOZORDER | SWP_NOACTIVATE);
    CHECK(PlaceOf(window).TopLeft() == before.TopLeft());
    CHECK(PlaceOf(window).Size() == CSize(80, 60));
}

TEST_CASE("an exception does not leave the window procedure")
{
    CFailing window;
    REQUIRE(window.Make());
    CHECK(window.SendMessage(failingMessage, 0) == 0);
    {
        const FailureCount count;
        CHECK(window.SendMessage(failingMessage, 1) == 0);
        CHECK(count.failures == 1); // The thread's object is asked about a foreign exception, too.
        CHECK(count.lastMessage == failingMessage);
    }
    CHECK(window.foreign == 1);

    window.ShowWindow(SW_SHOWNA);
    window.Invalidate();
    window.UpdateWindow();
    CHECK(window.GetUpdateRect(NULL) == FALSE);

    CFailingCreation failing;
    CHECK(failing.Make() == FALSE);
    CHECK(failing.m_hWnd == NULL);
}

TEST_CASE("an exception leaves the current message and its object in order")
{
    CFailing window;
    REQUIRE(window.Make());
    window.SendMessage(failingMessage, 0);
    window.SetWindowText(_T("still alive"));
    CHECK(TextOf(window) == "still alive");
}

TEST_CASE("FromHandle gives the attached object, else a temporary one")
{
    CPlain window;
    REQUIRE(window.Make());
    CHECK(CWnd::FromHandle(window.m_hWnd) == &window);
    CHECK(CWnd::FromHandlePermanent(window.m_hWnd) == &window);
    CHECK(CWnd::FromHandle(NULL) == NULL);

    const HWND stranger = MakeStranger();
    CWnd* temporary = CWnd::FromHandle(stranger);
    REQUIRE(temporary != NULL);
    CHECK(temporary->m_hWnd == stranger);
    CHECK(CWnd::FromHandlePermanent(stranger) == NULL);
    CHECK(CWnd::FromHandle(stranger) == temporary);

    CWnd owner;
    REQUIRE(owner.Attach(stranger));
    CHECK(CWnd::FromHandle(stranger) == &owner);
    CHECK(owner.Detach() == stranger);
    CHECK(owner.m_hWnd == NULL);
    CHECK(::IsWindow(stranger));
    ::DestroyWindow(stranger);
}

TEST_CASE("functions of a window give back the object that owns it")
{
    CPlain parent;
    REQUIRE(parent.Make(NULL, WS_POPUP | WS_VISIBLE));
    CEdit edit;
    REQUIRE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(5, 5, 60, 25), &parent, 12));
    edit.SetFocus();
    CHECK(CWnd::GetFocus() == &edit);
    CHECK(parent.GetDlgItem(12) == &edit);
    CHECK(edit.GetParent() == &parent);
    CHECK(parent.GetDescendantWindow(12) == &edit);
    CHECK(parent.GetTopWindow() == &edit);
    CHECK(edit.GetTopLevelParent() == &parent);
    CHECK(parent.ChildWindowFromPoint(CPoint(10, 10)) == &edit);
    CHECK(parent.IsChild(&edit));
    edit.SetCapture();
    CHECK(CWnd::GetCapture() == &edit);
    ::ReleaseCapture();
    CHECK(*parent.GetDlgItem(12) == edit);
    CHECK(edit != parent);
}

TEST_CASE("a temporary object outlives the idle time of loops inside its handler")
{
    CHolding window;
    REQUIRE(window.Make());
    window.stranger = MakeStranger();
    window.SendMessage(countedMessage);
    CHECK(window.survived);
    AfxGetThread()->OnIdle(1);
    CHECK(::IsWindow(window.stranger));
    ::DestroyWindow(window.stranger);
}

TEST_CASE("threads that come and go take their temporary objects with them")
{
    for (int round = 0; round < 20; ++round) {
        const HANDLE thread = ::CreateThread(
            NULL, 0,
            [](LPVOID) WINAPI -> DWORD {
                const HWND stranger = MakeStranger();
                CPlain window;
                window.Make();
                const bool found = CWnd::FromHandle(stranger)->m_hWnd == stranger &&
                                   CWnd::GetDesktopWindow() != NULL;
                ::DestroyWindow(stranger);
                return found ? 7 : 0;
            },
            NULL, 0, NULL);
        REQUIRE(::WaitForSingleObject(thread, 10000) == WAIT_OBJECT_0);
        DWORD result = 0;
        ::GetExitCodeThread(thread, &result);
        CHECK(result == 7);
        ::CloseHandle(thread);
    }
}

TEST_CASE("asking for an object leaves the last error as it was")
{
    ::SetLastError(1234);
    CWnd::FromHandlePermanent(::GetDesktopWindow());
    CHECK(::GetLastError() == 1234);
}

TEST_CASE("GetSafeHwnd may be asked of no object")
{
    CWnd* volatile none = NULL;
    CHECK(none->GetSafeHwnd() == NULL);
    CWnd empty;
    CHECK(empty.GetSafeHwnd() == NULL);
    CHECK(static_cast<HWND>(empty) == NULL);
}

TEST_CASE("SubclassWindow routes messages to the object and the rest to the previous procedure")
{
    const HWND stranger = MakeStranger();
    const LONG_PTR former = ::GetWindowLongPtr(stranger, GWLP_WNDPROC);
    CCountingEdit edit;
    REQUIRE(edit.SubclassWindow(stranger));
    CHECK(edit.prepared == stranger);
    CHECK(CWnd::FromHandle(stranger) == &edit);
    CHECK(::SendMessage(stranger, countedMessage, 0, 0) == 8);
    CHECK_FALSE(edit.countsBeforePrepared);
    ::SendMessage(stranger, WM_CHAR, 'x', 0);
    CHECK(TextOf(stranger) == "xstranger");

    CHECK(edit.UnsubclassWindow() == stranger);
    CHECK(edit.m_hWnd == NULL);
    CHECK(::GetWindowLongPtr(stranger, GWLP_WNDPROC) == former);
    CHECK(::SendMessage(stranger, countedMessage, 0, 0) == 0);
    CHECK(edit.counted == 1);
    ::DestroyWindow(stranger);
}

TEST_CASE("a window that somebody else has subclassed on top keeps working without its object")
{
    static WNDPROC inFrontOf;
    const HWND stranger = MakeStranger();
    CCountingEdit edit;
    REQUIRE(edit.SubclassWindow(stranger));
    edit.SetLimitText(10);
    const WNDPROC front = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam)
                              CALLBACK -> LRESULT {
        return ::CallWindowProc(inFrontOf, window, message, wParam, lParam);
    };
    inFrontOf = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(stranger, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(front)));

    CHECK(edit.UnsubclassWindow() == stranger);
    CHECK(TextOf(stranger) == "stranger");
    ::SendMessage(stranger, WM_CHAR, 'x', 0);
    CHECK(TextOf(stranger) == "xstranger");
    CHECK(::SendMessage(stranger, EM_GETLIMITTEXT, 0, 0) == 10);
    REQUIRE(edit.SubclassWindow(stranger));
    CHECK(edit.SendMessage(countedMessage) == 8);
    edit.DestroyWindow();
}

TEST_CASE("an exception in PreSubclassWindow leaves window and object apart")
{
    struct CRefusing : CEdit
    {
        void PreSubclassWindow() override { AfxThrowResourceException(); }
    } edit;
    const HWND stranger = MakeStranger();
    CHECK(Throws<CResourceException>([&] { edit.SubclassWindow(stranger); }));
    CHECK(edit.m_hWnd == NULL);
    CHECK(CWnd::FromHandlePermanent(stranger) == NULL);
    CCountingEdit other;
    REQUIRE(other.SubclassWindow(stranger));
    ::SendMessage(stranger, WM_CHAR, 'x', 0);
    CHECK(TextOf(stranger) == "xstranger");
    other.DestroyWindow();
}

TEST_CASE("SubclassWindow fails for a window with an object, and for no window")
{
    CPlain owner;
    REQUIRE(owner.Make());
    CCountingEdit edit;
    CHECK(edit.SubclassWindow(owner.m_hWnd) == FALSE);
    CHECK(edit.m_hWnd == NULL);
    CHECK(edit.SubclassWindow(NULL) == FALSE);
    CHECK(edit.SubclassDlgItem(1234, &owner) == FALSE);
    CHECK(CWnd::FromHandle(owner.m_hWnd) == &owner);
}

TEST_CASE("a window that was only attached is forgotten when it is destroyed")
{
    const HWND window =
        ::CreateWindow(_T("Static"), _T(""), WS_POPUP, 0, 0, 10, 10, NULL, NULL, NULL, NULL);
    CWnd object;
    REQUIRE(object.Attach(window));
    CHECK(object.DestroyWindow());
    CHECK_FALSE(::IsWindow(window));
    CHECK(object.m_hWnd == nullptr);
    CHECK(CWnd::FromHandlePermanent(window) == nullptr);
}

TEST_CASE("a window that could not be entered is not the object's")
{
    const HWND stranger = MakeStranger();
    CWnd window;
    {
        const OneBlockMissing memory(1);
        CHECK_THROWS_AS(window.Attach(stranger), std::bad_alloc);
        CHECK(memory.Failed() == 1);
    }
    CHECK(window.m_hWnd == NULL);
    CHECK(CWnd::FromHandlePermanent(stranger) == NULL);
    REQUIRE(window.Attach(stranger));
    CHECK(window.DestroyWindow());
}

TEST_CASE("a subclassed window that is detached keeps working, and may be attached again")
{
    const HWND stranger = MakeStranger();
    CCountingEdit edit;
    REQUIRE(edit.SubclassWindow(stranger));
    edit.Detach();
    ::SendMessage(stranger, WM_CHAR, 'a', 0);
    CHECK(TextOf(stranger) == "astranger");
    REQUIRE(edit.SubclassWindow(stranger));
    ::SendMessage(stranger, WM_CHAR, 'b', 0);
    CHECK(TextOf(stranger).GetLength() == 10);
    CHECK(edit.SendMessage(countedMessage) == 8);
    edit.DestroyWindow();
    CHECK(edit.m_hWnd == NULL);
}

TEST_CASE("PostNcDestroy is the last call, and the object may delete itself there")
{
    deletions = 0;
    auto* window = new CSelfDeleting;
    REQUIRE(window->Make());
    const HWND handle = window->m_hWnd;
    CHECK(::SendMessage(handle, countedMessage, 0, 0) == 4);
    CHECK(deletions == 1);
    CHECK_FALSE(::IsWindow(handle));
    CHECK(CWnd::FromHandlePermanent(handle) == NULL);
}

TEST_CASE("an object does not keep a window whose end it overheard")
{
    CForgetful window;
    REQUIRE(window.Make());
    const HWND handle = window.m_hWnd;
    ::DestroyWindow(handle);
    CHECK(window.m_hWnd == NULL);
    CHECK(CWnd::FromHandlePermanent(handle) == NULL);
}

TEST_CASE("the destructor destroys a window that is still there")
{
    HWND handle = NULL;
    {
        CPlain window;
        REQUIRE(window.Make());
        handle = window.m_hWnd;
    }
    CHECK_FALSE(::IsWindow(handle));

    const HWND stranger = MakeStranger();
    {
        CWnd owner;
        owner.Attach(stranger);
    }
    CHECK_FALSE(::IsWindow(stranger));
}

TEST_CASE("text, styles and ids are set and read")
{
    CPlain window;
    REQUIRE(window.Make());
    const CString longText('x', 3000);
    window.SetWindowText(longText);
    CString text;
    window.GetWindowText(text);
    CHECK(text == longText);
    CHECK(window.GetWindowTextLength() == 3000);

    CHECK(window.ModifyStyle(0, WS_DISABLED));
    CHECK((window.GetStyle() & WS_DISABLED) != 0);
    CHECK(window.ModifyStyle(0, WS_DISABLED) == FALSE);
    CHECK(window.ModifyStyle(WS_DISABLED, 0, SWP_FRAMECHANGED));
    CHECK((window.GetStyle() & WS_DISABLED) == 0);
    CHECK(window.ModifyStyleEx(0, WS_EX_TOOLWINDOW));
    CHECK((window.GetExStyle() & WS_EX_TOOLWINDOW) != 0);

    CFont font;
    REQUIRE(font.CreatePointFont(90, _T("Tahoma")));
    CStatic label;
    REQUIRE(label.Create(_T("label"), WS_CHILD, CRect(0, 0, 50, 20), &window, 9));
    label.SetFont(&font);
    CHECK(label.GetFont() == &font);
    CHECK(label.SetDlgCtrlID(10) == 9);
    CHECK(label.GetDlgCtrlID() == 10);
}

TEST_CASE("rectangles and points change between client and screen")
{
    CPlain window;
    REQUIRE(window.Make());
    CRect client;
    window.GetClientRect(&client);
    CRect place = client;
    window.ClientToScreen(&place);
    CHECK(place == PlaceOf(window));
    window.ScreenToClient(&place);
    CHECK(place == client);
    CPoint point(3, 4);
    window.ClientToScreen(&point);
    CHECK(point == CPoint(13, 24));
}

TEST_CASE("the order of windows takes the constants and other windows")
{
    CPlain first;
    CPlain second;
    REQUIRE(first.Make());
    REQUIRE(second.Make());
    const UINT stay = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    first.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, stay);
    CHECK((first.GetExStyle() & WS_EX_TOPMOST) != 0);
    first.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, stay);
    CHECK((first.GetExStyle() & WS_EX_TOPMOST) == 0);
    CHECK(first.SetWindowPos(&second, 0, 0, 0, 0, stay));
    CHECK(second.GetNextWindow() == &first);
    CHECK(first.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, stay));
    CHECK(first.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, stay));
}

TEST_CASE("CenterWindow puts a window over its owner and inside the screen")
{
    CPlain owner;
    REQUIRE(
        owner.CreateEx(0, NULL, _T(""), WS_POPUP | WS_VISIBLE, CRect(100, 100, 500, 400), NULL, 0));
    CPlain popup;
    REQUIRE(popup.CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 100, 50), &owner, 0));
    popup.CenterWindow();
    CHECK(PlaceOf(popup) == CRect(250, 225, 350, 275));

    owner.MoveWindow(-200, -200, 300, 300);
    popup.CenterWindow();
    CHECK(PlaceOf(popup).TopLeft() == CPoint(0, 0));

    CPlain child;
    REQUIRE(child.Create(_T("Static"), _T(""), 0, CRect(0, 0, 100, 60), &owner, 3));
    child.CenterWindow();
    CRect place = PlaceOf(child);
    owner.ScreenToClient(&place);
    CHECK(place == CRect(100, 120, 200, 180));
}

TEST_CASE("messages go to all descendants, or only to those with an object")
{
    CPlain parent;
    REQUIRE(parent.Make());
    CCountingEdit edit;
    REQUIRE(edit.Create(WS_CHILD, CRect(0, 0, 5, 5), &parent, 1));
    CStatic box;
    REQUIRE(box.Create(_T(""), WS_CHILD, CRect(0, 0, 50, 50), &parent, 2));
    CCountingEdit inner;
    REQUIRE(inner.Create(WS_CHILD, CRect(0, 0, 5, 5), &box, 3));
    parent.SendMessageToDescendants(countedMessage);
    CHECK(edit.counted == 1);
    CHECK(inner.counted == 1);
    parent.SendMessageToDescendants(countedMessage, 0, 0, FALSE, TRUE);
    CHECK(edit.counted == 2);
    CHECK(inner.counted == 1);
    CHECK(parent.GetDescendantWindow(3) == &inner);
    CHECK(parent.GetDescendantWindow(4) == NULL);
}

TEST_CASE("an owner told by SetOwner replaces the parent")
{
    CPlain parent;
    CPlain other;
    REQUIRE(parent.Make());
    REQUIRE(other.Make());
    CStatic child;
    REQUIRE(child.Create(_T(""), WS_CHILD, CRect(0, 0, 5, 5), &parent, 1));
    CHECK(child.GetOwner() == &parent);
    child.SetOwner(&other);
    CHECK(child.GetOwner() == &other);
    CHECK(child.GetParentOwner() == &parent);
}

TEST_CASE("radio buttons and check boxes of a window are read by their ids")
{
    DialogTemplate page(5, 5, 100, 60);
    const DWORD radio = DialogTemplate::visibleChild | BS_AUTORADIOBUTTON;
    page.Button(1, _T("a"), 0, 0, 30, 10, radio | WS_GROUP)
        .Button(2, _T("b"), 0, 10, 30, 10, radio);
    page.Edit(3, _T("12"), 0, 20, 30, 12);
    CDialog dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    CHECK(dialog.GetCheckedRadioButton(1, 2) == 0);
    dialog.CheckRadioButton(1, 2, 2);
    CHECK(dialog.GetCheckedRadioButton(1, 2) == 2);
    CHECK(dialog.IsDlgButtonChecked(2) == BST_CHECKED);
    CHECK(dialog.GetDlgItemInt(3) == 12);
    dialog.SetDlgItemInt(3, static_cast<UINT>(-5));
    CString text;
    CHECK(dialog.GetDlgItemText(3, text) == 2);
    CHECK(text == "-5");
    CHECK(dialog.GetDlgItemText(99, text) == 0);
    CHECK(text.IsEmpty());
    dialog.DestroyWindow();
}

TEST_CASE("scroll bars of a window keep range, page and position")
{
    CPlain window;
    REQUIRE(window.Make(NULL, WS_POPUP | WS_VSCROLL));
    SCROLLINFO info{};
    info.fMask = SIF_ALL;
    info.nMax = 99;
    info.nPage = 20;
    info.nPos = 30;
    CHECK(window.SetScrollInfo(SB_VERT, &info));
    CHECK(window.GetScrollPos(SB_VERT) == 30);
    CHECK(window.GetScrollLimit(SB_VERT) == 80);
    CHECK(window.SetScrollPos(SB_VERT, 40) == 30);
    int low = -1;
    int high = -1;
    window.GetScrollRange(SB_VERT, &low, &high);
    CHECK(low == 0);
    CHECK(high == 99);
}

TEST_CASE("list and combo boxes are filled from the DLGINIT resource")
{
    CDialog dialog;
    REQUIRE(dialog.Create(IDD_FILLED));
    auto* combo = static_cast<CComboBox*>(dialog.GetDlgItem(IDC_COMBO));
    auto* list = static_cast<CListBox*>(dialog.GetDlgItem(IDC_LIST));
    CString text;
    REQUIRE(combo->GetCount() == 2);
    combo->GetLBText(1, text);
    CHECK(text == "two");
    REQUIRE(list->GetCount() == 1);
    list->GetText(0, text);
    CHECK(text == "alpha");
    CHECK(dialog.ExecuteDlgInit(MAKEINTRESOURCE(IDD_PLAIN)));
    CHECK(list->GetCount() == 1);
    dialog.DestroyWindow();
}

TEST_CASE("tool tips ask the window for the text of the child under the mouse")
{
    CTipped window;
    REQUIRE(window.CreateEx(WS_EX_TOPMOST, NULL, _T(""), WS_POPUP | WS_VISIBLE,
                            CRect(100, 100, 300, 200), NULL, 0));
    REQUIRE(window.tool.Create(_T("tool"), WS_CHILD | WS_VISIBLE | SS_NOTIFY,
                               CRect(20, 20, 120, 60), &window, 55));
    TOOLINFO info{};
    CHECK(window.OnToolHitTest(CPoint(30, 30), &info) == 55);
    CHECK(reinterpret_cast<HWND>(info.uId) == window.tool.m_hWnd);
    CHECK(window.OnToolHitTest(CPoint(5, 5), NULL) == -1);

    REQUIRE(window.EnableToolTips());
    REQUIRE(MovePointerAway());
    // Without a main window the walk of a message ends at the top, so that the parent sees it.
    MovePointer(window.tool, {10, 10});
    MovePointer(window.tool, {12, 12});
    CHECK(WaitUntil([] { return VisibleTip() != NULL; }));
    CHECK(window.asked > 0);
    CHECK(window.askedId == 0);
    CHECK(TextOf(VisibleTip()) == "the tip");

    CWnd::CancelToolTips();
    CHECK(VisibleTip() == NULL);
    window.EnableToolTips(FALSE);
}

TEST_CASE("a message box of a window is titled with the application's name unless told otherwise")
{
    CPlain window;
    REQUIRE(window.Make(NULL, WS_POPUP | WS_VISIBLE));
    CString title;
    NextDialog answer([&title](HWND box) {
        title = TextOf(box);
        ::SendMessage(box, WM_COMMAND, IDOK, 0);
    });
    CHECK(window.MessageBox(_T("text")) == IDOK);
    CHECK(answer.HasRun());
    CHECK(title == AfxGetAppName());
}
