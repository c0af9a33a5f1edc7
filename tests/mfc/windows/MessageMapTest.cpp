#include <afxwin.h>
#include <afxcmn.h>

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace {

const UINT plainMessage = WM_APP + 1;
const UINT otherMessage = WM_APP + 2;
UINT laterRegistered = 0; // Set when the test runs, long after the maps were written.

/// A child window without looks.
class CTarget : public CWnd
{
public:
    BOOL Make(CWnd* parent = NULL)
    {
        return CreateEx(0, NULL, _T("Target"), WS_POPUP, CRect(10, 10, 210, 110), parent, 0);
    }
};

// --- Three spellings, private handlers, overloads, inheritance. ---

class CSpellings : public CTarget
{
public:
    std::string calls;

protected:
    void OnInherited() { calls += "inherited "; }

private:
    void OnBare() { calls += "bare "; }
    void OnAddress() { calls += "address "; }
    void OnQualified() { calls += "qualified "; }
    void OnOverloaded() { calls += "overload() "; }
    BOOL OnOverloaded(UINT id)
    {
        calls += "overload(" + std::to_string(id) + ") ";
        return TRUE;
    }
    LRESULT OnPlain(WPARAM wParam, LPARAM lParam)
    {
        calls += "message ";
        return static_cast<LRESULT>(wParam) * 100 + lParam;
    }
    void OnLButtonDown(UINT, CPoint point) { at = point; }
    void OnLButtonDown(CPoint) { calls += "wrong overload "; }

    DECLARE_MESSAGE_MAP()

public:
    CPoint at;
};
BEGIN_MESSAGE_MAP(CSpellings, CTarget)
    ON_COMMAND(1, OnBare)
    ON_COMMAND(2, &OnAddress)
    ON_COMMAND(3, &CSpellings::OnQualified)
    ON_COMMAND(4, OnOverloaded)
    ON_COMMAND_EX(5, &CSpellings::OnOverloaded)
    ON_MESSAGE(plainMessage, OnPlain)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

class CHeir : public CSpellings
{
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CHeir, CSpellings)
    ON_COMMAND(6, OnInherited)
    ON_COMMAND(7, &CHeir::OnInherited)
END_MESSAGE_MAP()

// --- Derivation. ---

class CBase : public CTarget
{
public:
    std::string calls;

protected:
    virtual void OnVirtual() { calls += "base "; }
    void OnShadowed() { calls += "base-shadowed "; }
    void OnOnlyBase() { calls += "base-only "; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CBase, CTarget)
    ON_COMMAND(1, OnVirtual)
    ON_COMMAND(2, OnShadowed)
    ON_COMMAND(3, OnOnlyBase)
END_MESSAGE_MAP()

class CDerived : public CBase
{
protected:
    void OnVirtual() override { calls += "derived "; }
    void OnOwn() { calls += "derived-own "; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CDerived, CBase)
    ON_COMMAND(2, OnOwn)
    ON_COMMAND(2, OnVirtual) // Never reached: the first match wins.
END_MESSAGE_MAP()

template <typename Number>
class CTemplated : public CTarget
{
public:
    Number seen{};

protected:
    LRESULT OnNumber(WPARAM wParam, LPARAM)
    {
        seen = static_cast<Number>(wParam);
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_TEMPLATE_MESSAGE_MAP(CTemplated, Number, CTarget)
    ON_MESSAGE(plainMessage, &CTemplated<Number>::OnNumber)
END_MESSAGE_MAP()

// --- Ranges, notifications, registered messages. ---

class CRanges : public CTarget
{
public:
    std::string calls;
    BOOL taken = TRUE;

protected:
    void Note(const char* what, UINT id) { calls += what + std::to_string(id) + " "; }
    void OnRange(UINT id) { Note("range", id); }
    BOOL OnRangeEx(UINT id)
    {
        Note("rangeEx", id);
        return taken;
    }
    void OnControlRange(UINT id) { Note("control", id); }
    void OnNotifyOne(NMHDR* header, LRESULT* pResult)
    {
        Note("notify", static_cast<UINT>(header->idFrom));
        *pResult = 11;
    }
    void OnNotifyMany(UINT id, NMHDR*, LRESULT* pResult)
    {
        Note("notifyRange", id);
        *pResult = 22;
    }
    BOOL OnNotifyExtended(UINT id, NMHDR*, LRESULT* pResult)
    {
        Note("notifyEx", id);
        *pResult = 33;
        return taken;
    }
    LRESULT OnRegistered(WPARAM wParam, LPARAM lParam)
    {
        return static_cast<LRESULT>(wParam) - lParam;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CRanges, CTarget)
    ON_COMMAND_RANGE(10, 12, OnRange)
    ON_COMMAND_EX_RANGE(20, 22, OnRangeEx)
    ON_CONTROL_RANGE(EN_CHANGE, 30, 32, OnControlRange)
    ON_NOTIFY(NM_CLICK, 40, OnNotifyOne)
    ON_NOTIFY_RANGE(NM_CLICK, 50, 52, OnNotifyMany)
    ON_NOTIFY_EX(NM_RCLICK, 40, OnNotifyExtended)
    ON_NOTIFY_EX_RANGE(NM_RCLICK, 50, 52, OnNotifyExtended)
    ON_REGISTERED_MESSAGE(laterRegistered, OnRegistered)
END_MESSAGE_MAP()

LRESULT Command(CWnd& window, UINT id)
{
    return window.SendMessage(WM_COMMAND, id, 0);
}

/// Sends a notification as a child with that id would.
LRESULT Notify(CWnd& window, UINT id, UINT code)
{
    CWnd child;
    child.Create(_T("Static"), _T(""), WS_CHILD, CRect(0, 0, 5, 5), &window, id);
    NMHDR header{child.m_hWnd, id, code};
    return window.SendMessage(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
}

// --- Overrides that hide the map. ---

class CHiding : public CRanges
{
public:
    bool callsBase = false;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        return callsBase ? CRanges::OnCommand(wParam, lParam) : TRUE;
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        return callsBase ? CRanges::OnNotify(wParam, lParam, pResult) : TRUE;
    }
};

// --- What the handlers are given. ---

class CArguments : public CTarget
{
public:
    std::string seen;
    CWnd* window = NULL;
    CWnd* second = NULL;
    CDC* context = NULL;
    CMenu* menu = NULL;

protected:
    void Note(int a, int b, int c = 0)
    {
        seen = std::to_string(a) + "," + std::to_string(b) + "," + std::to_string(c);
    }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { Note(nFlags, point.x, point.y); }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
    {
        Note(nFlags, zDelta, pt.y);
        return TRUE;
    }
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point)
    {
        Note(nFlags, nButton, point.x);
    }
    afx_msg void OnSize(UINT nType, int cx, int cy) { Note(nType, cx, cy); }
    afx_msg void OnMove(int x, int y) { Note(x, y); }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) { Note(nChar, nRepCnt, nFlags); }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
    {
        window = pWndOther;
        Note(nState, bMinimized);
    }
    afx_msg void OnSetFocus(CWnd* pOldWnd) { window = pOldWnd; }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC)
    {
        context = pDC;
        return 77;
    }
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
    {
        menu = pPopupMenu;
        Note(nIndex, bSysMenu);
    }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        window = pScrollBar;
        Note(nSBCode, nPos);
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { timer = nIDEvent; }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        Note(point.x, point.y);
        return HTCAPTION;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        context = pDC;
        window = pWnd;
        Note(nCtlColor, 0);
        return static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam)
    {
        Note(message, static_cast<int>(lParam));
    }
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) { Note(nID, static_cast<int>(lParam)); }
    DECLARE_MESSAGE_MAP()

public:
    UINT_PTR timer = 0;
};
BEGIN_MESSAGE_MAP(CArguments, CTarget)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_XBUTTONDOWN()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_KEYDOWN()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_INITMENUPOPUP()
    ON_WM_HSCROLL()
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
    ON_WM_CTLCOLOR()
    ON_WM_PARENTNOTIFY()
    ON_WM_SYSCOMMAND()
END_MESSAGE_MAP()

LPARAM Point(int x, int y)
{
    return MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y));
}

} // namespace

TEST_CASE("a handler may be named in three spellings, be private, or one of several overloads")
{
    CSpellings window;
    REQUIRE(window.Make());
    for (UINT id = 1; id <= 5; ++id)
        CHECK(Command(window, id) == TRUE);
    CHECK(window.calls == "bare address qualified overload() overload(5) ");
    CHECK(window.SendMessage(plainMessage, 3, 4) == 304);

    window.SendMessage(WM_LBUTTONDOWN, 0, Point(5, 6));
    CHECK(window.at == CPoint(5, 6));
}

TEST_CASE("a handler may be inherited from the base class")
{
    CHeir window;
    REQUIRE(window.Make());
    Command(window, 6);
    Command(window, 7);
    Command(window, 1);
    CHECK(window.calls == "inherited inherited bare ");
}

TEST_CASE("the map of the class comes first, then those of its bases, and the first match wins")
{
    CDerived window;
    REQUIRE(window.Make());
    Command(window, 2);
    Command(window, 3);
    CHECK(window.calls == "derived-own base-only ");
    CHECK(Command(window, 99) == 0);
}

TEST_CASE("a virtual handler named in the base's map runs as overridden")
{
    CDerived derived;
    REQUIRE(derived.Make());
    Command(derived, 1);
    CHECK(derived.calls == "derived ");

    CBase base;
    REQUIRE(base.Make());
    Command(base, 1);
    CHECK(base.calls == "base ");
}

TEST_CASE("a class template has a map of its own")
{
    CTemplated<short> window;
    REQUIRE(window.Make());
    CHECK(window.SendMessage(plainMessage, 0x12345) == 1);
    CHECK(window.seen == 0x2345);
}

TEST_CASE("a message without a handler gets the default processing")
{
    CSpellings window;
    REQUIRE(window.Make());
    CHECK(window.SendMessage(otherMessage, 1, 1) == 0);
    window.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(_T("renamed")));
    CString text;
    window.GetWindowText(text);
    CHECK(text == "renamed");
}

TEST_CASE("the number of a registered message is read from its variable when it comes")
{
    CRanges window;
    REQUIRE(window.Make());
    laterRegistered = 0;
    const UINT number = ::RegisterWindowMessage(_T("Umbra test: registered late"));
    CHECK(window.SendMessage(number, 9, 4) == 0);
    laterRegistered = number;
    CHECK(window.SendMessage(number, 9, 4) == 5);
}

TEST_CASE("a range of commands or controls passes the id, and only the range")
{
    CRanges window;
    REQUIRE(window.Make());
    for (UINT id : {9u, 10u, 12u, 13u, 20u, 22u, 23u})
        Command(window, id);
    CHECK(window.calls == "range10 range12 rangeEx20 rangeEx22 ");

    window.calls.clear();
    CWnd child;
    REQUIRE(child.Create(_T("Static"), _T(""), WS_CHILD, CRect(0, 0, 5, 5), &window, 31));
    const auto handle = reinterpret_cast<LPARAM>(child.m_hWnd);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(31, EN_CHANGE), handle);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(31, EN_UPDATE), handle);
    window.SendMessage(WM_COMMAND, MAKEWPARAM(33, EN_CHANGE), handle);
    CHECK(window.calls == "control31 ");
}

TEST_CASE("a notification gives its result to the sender")
{
    CRanges window;
    REQUIRE(window.Make());
    CHECK(Notify(window, 40, NM_CLICK) == 11);
    CHECK(Notify(window, 51, NM_CLICK) == 22);
    CHECK(Notify(window, 40, NM_RCLICK) == 33);
    CHECK(Notify(window, 52, NM_RCLICK) == 33);
    CHECK(Notify(window, 53, NM_RCLICK) == 0);
    CHECK(Notify(window, 40, NM_DBLCLK) == 0);
    CHECK(window.calls == "notify40 notifyRange51 notifyEx40 notifyEx52 ");
}

TEST_CASE("a command handler that declines leaves the command undone")
{
    CRanges window;
    REQUIRE(window.Make());
    window.taken = FALSE;
    CHECK(window.OnCmdMsg(20, CN_COMMAND, NULL, NULL) == FALSE);
    window.taken = TRUE;
    CHECK(window.OnCmdMsg(20, CN_COMMAND, NULL, NULL) == TRUE);
}

TEST_CASE("an override of OnCommand or OnNotify hides the map unless it calls the base")
{
    CHiding window;
    REQUIRE(window.Make());
    Command(window, 10);
    Notify(window, 40, NM_CLICK);
    CHECK(window.calls.empty());
    window.callsBase = true;
    Command(window, 10);
    CHECK(Notify(window, 40, NM_CLICK) == 11);
    CHECK(window.calls == "range10 notify40 ");
}

TEST_CASE("points arrive signed, and words and flags in their places")
{
    CArguments window;
    REQUIRE(window.Make());
    window.SendMessage(WM_MOUSEMOVE, MK_SHIFT, Point(-3, -4));
    CHECK(window.seen == "4,-3,-4");
    CHECK(window.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), Point(1, -2)) == TRUE);
    CHECK(window.seen == "8,-120,-2");
    window.SendMessage(WM_XBUTTONDOWN, MAKEWPARAM(MK_XBUTTON1, XBUTTON2), Point(-9, 0));
    CHECK(window.seen == "32,2,-9");
    window.SendMessage(WM_SIZE, SIZE_MAXIMIZED, Point(640, 480));
    CHECK(window.seen == "2,640,480");
    window.SendMessage(WM_MOVE, 0, Point(-5, 7));
    CHECK(window.seen == "-5,7,0");
    window.SendMessage(WM_KEYDOWN, VK_RETURN, MAKELPARAM(3, 0x1C));
    CHECK(window.seen == "13,3,28");
    window.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, 'x');
    CHECK(window.seen == "61696,120,0");
    window.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, 12), 34);
    CHECK(window.seen == "513,34,0");
    CHECK(window.SendMessage(WM_NCHITTEST, 0, Point(-1, -2)) == HTCAPTION);
    CHECK(window.seen == "-1,-2,0");
}

TEST_CASE("a timer's id has the size of a pointer")
{
    CArguments window;
    REQUIRE(window.Make());
    const auto id = static_cast<UINT_PTR>(0x123456789AULL);
    window.SendMessage(WM_TIMER, id);
    CHECK(window.timer == id);
}

TEST_CASE("handles arrive as objects, the very ones that own them")
{
    CArguments window;
    REQUIRE(window.Make());
    CScrollBar bar;
    REQUIRE(bar.Create(SBS_HORZ | WS_CHILD, CRect(0, 0, 50, 10), &window, 1));
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());

    window.SendMessage(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1),
                       reinterpret_cast<LPARAM>(bar.m_hWnd));
    CHECK(window.seen == "2,1,0");
    CHECK(window.window == &bar);
    window.SendMessage(WM_SETFOCUS, 0, 0);
    CHECK(window.window == NULL);
    window.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 40),
                       reinterpret_cast<LPARAM>(bar.m_hWnd));
    CHECK(window.seen == "5,40,0");
    CHECK(window.window == &bar);
    window.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu),
                       MAKELPARAM(2, TRUE));
    CHECK(window.menu == &menu);
    CHECK(window.seen == "2,1,0");
}

TEST_CASE("the seven colour requests are one message, and the brush is the sender's result")
{
    CArguments window;
    REQUIRE(window.Make());
    CWnd child;
    REQUIRE(child.Create(_T("Static"), _T(""), WS_CHILD, CRect(0, 0, 5, 5), &window, 1));
    CClientDC dc(&child);
    const auto black = reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH));
    for (UINT kind = CTLCOLOR_MSGBOX; kind <= CTLCOLOR_STATIC; ++kind) {
        CAPTURE(kind);
        CHECK(window.SendMessage(WM_CTLCOLORMSGBOX + kind, reinterpret_cast<WPARAM>(dc.m_hDC),
                                 reinterpret_cast<LPARAM>(child.m_hWnd)) == black);
        CHECK(window.seen == std::to_string(kind) + ",0,0");
        CHECK(window.context == &dc);
        CHECK(window.window == &child);
    }
    CHECK(window.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)) == 77);
}
