#include <afxwin.h>
#include <afxcmn.h>

#include <doctest/doctest.h>

#include <string>

namespace {

const UINT controlId = 77;
std::string calls;

void Call(const char* what)
{
    calls += what;
    calls += ' ';
}

/// A control that handles what its parent gets from it.
class CReflecting : public CStatic
{
public:
    BOOL taken = TRUE;
    HBRUSH brush = NULL;
    bool swallows = false;

protected:
    void OnClicked() { Call("control-clicked"); }
    BOOL OnDoubleClicked()
    {
        Call("control-double");
        return taken;
    }
    void OnNotified(NMHDR*, LRESULT* pResult)
    {
        Call("control-notify");
        *pResult = 5;
    }
    BOOL OnNotifiedEx(NMHDR*, LRESULT* pResult)
    {
        Call("control-notifyEx");
        *pResult = 6;
        return taken;
    }
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)
    {
        Call(("control-color" + std::to_string(nCtlColor)).c_str());
        pDC->SetTextColor(RGB(1, 2, 3));
        return brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT) override { Call("control-draw"); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT lpMeasure)
    {
        Call("control-measure");
        lpMeasure->itemHeight = 33;
    }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT) { Call("control-delete"); }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT)
    {
        Call("control-compare");
        return -1;
    }
    afx_msg int CharToItem(UINT nKey, UINT nIndex)
    {
        Call("control-char");
        return static_cast<int>(nKey + nIndex);
    }
    afx_msg int VKeyToItem(UINT nKey, UINT nIndex)
    {
        Call("control-vkey");
        return static_cast<int>(nKey - nIndex);
    }
    afx_msg void HScroll(UINT nSBCode, UINT nPos)
    {
        Call(("control-hscroll" + std::to_string(nSBCode) + "," + std::to_string(nPos)).c_str());
    }
    afx_msg void VScroll(UINT, UINT) { Call("control-vscroll"); }
    afx_msg void ParentNotify(UINT message, LPARAM)
    {
        Call(message == WM_DESTROY ? "control-parentnotify-destroy" : "control-parentnotify");
    }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        if (swallows) {
            Call("child-notify");
            *pResult = 99;
            return TRUE;
        }
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CReflecting, CStatic)
    ON_CONTROL_REFLECT(STN_CLICKED, OnClicked)
    ON_CONTROL_REFLECT_EX(STN_DBLCLK, &CReflecting::OnDoubleClicked)
    ON_NOTIFY_REFLECT(NM_CLICK, OnNotified)
    ON_NOTIFY_REFLECT_EX(NM_RCLICK, OnNotifiedEx)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

/// A parent without a handler of its own.
class CParent : public CWnd
{
public:
    CReflecting control;

    CParent()
    {
        CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 200, 100), NULL, 0);
        control.Create(_T("control"), WS_CHILD | SS_NOTIFY, CRect(5, 5, 55, 25), this, controlId);
        calls.clear();
    }
    LPARAM Control() const { return reinterpret_cast<LPARAM>(control.m_hWnd); }
    LRESULT SendCommand(UINT code)
    {
        return SendMessage(WM_COMMAND, MAKEWPARAM(controlId, code), Control());
    }
    LRESULT SendNotify(UINT code)
    {
        NMHDR header{control.m_hWnd, controlId, code};
        return SendMessage(WM_NOTIFY, controlId, reinterpret_cast<LPARAM>(&header));
    }
};

/// A parent that handles the same; its handlers call the base or not.
class CHandlingParent : public CParent
{
public:
    bool callsBase = false;

protected:
    void OnClicked() { Call("parent-clicked"); }
    void OnDoubleClicked() { Call("parent-double"); }
    void OnNotified(NMHDR*, LRESULT* pResult)
    {
        Call("parent-notify");
        *pResult = 7;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        Call("parent-color");
        return callsBase ? CParent::OnCtlColor(pDC, pWnd, nCtlColor)
                         : static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    }
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
    {
        Call("parent-draw");
        if (callsBase)
            CParent::OnDrawItem(nIDCtl, lpDrawItemStruct);
    }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        Call("parent-hscroll");
        if (callsBase)
            CParent::OnHScroll(nSBCode, nPos, pScrollBar);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CHandlingParent, CParent)
    ON_STN_CLICKED(controlId, OnClicked)
    ON_STN_DBLCLK(controlId, OnDoubleClicked)
    ON_NOTIFY(NM_CLICK, controlId, OnNotified)
    ON_NOTIFY(NM_RCLICK, controlId, OnNotified)
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

LRESULT AskColor(CParent& parent)
{
    CClientDC dc(&parent.control);
    return parent.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                              parent.Control());
}

DRAWITEMSTRUCT DrawRequest(const CParent& parent)
{
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_STATIC;
    draw.CtlID = controlId;
    draw.hwndItem = parent.control.m_hWnd;
    return draw;
}

/// A menu that draws its items itself.
class CPaintedMenu : public CMenu
{
public:
    void DrawItem(LPDRAWITEMSTRUCT) override { Call("menu-draw"); }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasure) override
    {
        Call("menu-measure");
        lpMeasure->itemWidth = 44;
    }
};

} // namespace

TEST_CASE("a command code goes to the control when the parent has no handler")
{
    CParent parent;
    CHECK(parent.SendCommand(STN_CLICKED) == TRUE);
    CHECK(calls == "control-clicked ");
    CHECK(parent.SendCommand(STN_ENABLE) == 0);
}

TEST_CASE("the parent's handler of a command code comes first, and the control gets nothing")
{
    CHandlingParent parent;
    parent.SendCommand(STN_CLICKED);
    parent.SendCommand(STN_DBLCLK);
    CHECK(calls == "parent-clicked parent-double ");
}

TEST_CASE("a control may decline a reflected command code")
{
    CParent parent;
    parent.control.taken = FALSE;
    CHECK(parent.SendCommand(STN_DBLCLK) == 0);
    parent.control.taken = TRUE;
    CHECK(parent.SendCommand(STN_DBLCLK) == TRUE);
    CHECK(calls == "control-double control-double ");
}

TEST_CASE("the control is the first to see its notification, and the parent then does not")
{
    CHandlingParent parent;
    CHECK(parent.SendNotify(NM_CLICK) == 5);
    CHECK(calls == "control-notify ");
}

TEST_CASE("a control that declines its notification leaves it to the parent")
{
    CHandlingParent parent;
    parent.control.taken = FALSE;
    CHECK(parent.SendNotify(NM_RCLICK) == 7);
    CHECK(calls == "control-notifyEx parent-notify ");
    calls.clear();
    parent.control.taken = TRUE;
    CHECK(parent.SendNotify(NM_RCLICK) == 6);
    CHECK(calls == "control-notifyEx ");
}

TEST_CASE("a control answers its own colour request")
{
    CParent parent;
    parent.control.brush = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    CHECK(AskColor(parent) == reinterpret_cast<LRESULT>(parent.control.brush));
    CHECK(calls == "control-color6 ");
}

TEST_CASE("without a brush from the control the parent decides")
{
    CParent parent;
    const LRESULT usual = [] {
        CWnd plain;
        plain.CreateEx(0, NULL, _T(""), WS_POPUP, CRect(0, 0, 5, 5), NULL, 0);
        CClientDC dc(&plain);
        return ::DefWindowProc(plain, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                               reinterpret_cast<LPARAM>(plain.m_hWnd));
    }();
    CHECK(usual != 0);
    CHECK(AskColor(parent) == usual);
    CHECK(calls == "control-color6 ");
}

TEST_CASE("a parent that handles the colour request asks the control through the base")
{
    CHandlingParent parent;
    parent.control.brush = static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    CHECK(AskColor(parent) == reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH)));
    CHECK(calls == "parent-color ");
    calls.clear();
    parent.callsBase = true;
    CHECK(AskColor(parent) == reinterpret_cast<LRESULT>(parent.control.brush));
    CHECK(calls == "parent-color control-color6 ");
}

TEST_CASE(
    "the parent's handler of a drawing request comes first, the control draws through the base")
{
    CHandlingParent parent;
    DRAWITEMSTRUCT draw = DrawRequest(parent);
    parent.SendMessage(WM_DRAWITEM, controlId, reinterpret_cast<LPARAM>(&draw));
    CHECK(calls == "parent-draw ");
    parent.callsBase = true;
    calls.clear();
    parent.SendMessage(WM_DRAWITEM, controlId, reinterpret_cast<LPARAM>(&draw));
    CHECK(calls == "parent-draw control-draw ");
}

TEST_CASE("requests about items go to the control that owns them")
{
    CParent parent;
    DRAWITEMSTRUCT draw = DrawRequest(parent);
    CHECK(parent.SendMessage(WM_DRAWITEM, controlId, reinterpret_cast<LPARAM>(&draw)) == TRUE);

    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = controlId;
    parent.SendMessage(WM_MEASUREITEM, controlId, reinterpret_cast<LPARAM>(&measure));
    CHECK(measure.itemHeight == 33);

    DELETEITEMSTRUCT deletion{};
    deletion.hwndItem = parent.control.m_hWnd;
    parent.SendMessage(WM_DELETEITEM, controlId, reinterpret_cast<LPARAM>(&deletion));

    COMPAREITEMSTRUCT comparison{};
    comparison.hwndItem = parent.control.m_hWnd;
    CHECK(parent.SendMessage(WM_COMPAREITEM, controlId, reinterpret_cast<LPARAM>(&comparison)) ==
          -1);
    CHECK(calls == "control-draw control-measure control-delete control-compare ");
}

TEST_CASE("keys and scrolling of a control are reflected with their arguments")
{
    CParent parent;
    CHECK(parent.SendMessage(WM_CHARTOITEM, MAKEWPARAM('a', 3), parent.Control()) == 'a' + 3);
    CHECK(parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(40, 3), parent.Control()) == 37);
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12), parent.Control());
    parent.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), parent.Control());
    CHECK(calls == "control-char control-vkey control-hscroll4,12 control-vscroll ");
}

TEST_CASE("a parent that handles scrolling reflects it through the base")
{
    CHandlingParent parent;
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINELEFT, 0), parent.Control());
    parent.callsBase = true;
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINELEFT, 0), parent.Control());
    CHECK(calls == "parent-hscroll parent-hscroll control-hscroll0,0 ");
}

TEST_CASE("a control hears of its own end from the parent")
{
    CParent parent;
    parent.control.DestroyWindow();
    CHECK(calls == "control-parentnotify-destroy ");
}

TEST_CASE("OnChildNotify sees everything that is reflected, and may keep it")
{
    CParent parent;
    parent.control.swallows = true;
    parent.SendCommand(STN_CLICKED);
    CHECK(parent.SendNotify(NM_CLICK) == 99);
    CHECK(AskColor(parent) == 99);
    CHECK(calls == "child-notify child-notify child-notify ");
}

TEST_CASE("the object of a menu measures and draws its items")
{
    CParent parent;
    CPaintedMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_OWNERDRAW, 900, static_cast<LPCTSTR>(NULL));
    parent.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);

    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_MENU;
    measure.itemID = 900;
    parent.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    CHECK(measure.itemWidth == 44);

    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_MENU;
    draw.hwndItem = reinterpret_cast<HWND>(menu.m_hMenu);
    parent.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    CHECK(calls == "menu-measure menu-draw ");
}
