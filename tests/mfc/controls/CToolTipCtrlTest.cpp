#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/programs/Extension/ExtensionResource.h"

using namespace umbra::testing;

namespace {

/// A host that passes its messages on to a tool tip, as PreTranslateMessage of a dialog does.
class CTipHost : public ControlHost
{
public:
    CButton first, second;
    CToolTipCtrl tip;
    int questions = 0;

    CTipHost()
    {
        REQUIRE(first.Create(_T("1"), shownChild, CRect(20, 60, 120, 90), this, 1));
        REQUIRE(second.Create(_T("2"), shownChild, CRect(20, 160, 120, 190), this, 2));
        REQUIRE(tip.Create(this, TTS_ALWAYSTIP));
        tip.SetDelayTime(TTDT_INITIAL, 30);
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (tip.m_hWnd != NULL)
            tip.RelayEvent(pMsg);
        return ControlHost::PreTranslateMessage(pMsg);
    }
    CString TextOf(CWnd* window, UINT_PTR id = 0)
    {
        CString text;
        tip.GetText(text, window, id);
        return text;
    }

protected:
    afx_msg BOOL OnNeedText(UINT, NMHDR* header, LRESULT*)
    {
        ++questions;
        ((TOOLTIPTEXT*)header)->lpszText = const_cast<LPTSTR>(_T("asked for"));
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CTipHost, ControlHost)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xffff, &CTipHost::OnNeedText)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xffff, &CTipHost::OnNeedText)
END_MESSAGE_MAP()

} // namespace

TEST_CASE("a tool tip is made as a popup of its parent")
{
    CTipHost host;
    CHECK(host.tip.IsKindOf(RUNTIME_CLASS(CToolTipCtrl)));
    CHECK((host.tip.GetStyle() & WS_POPUP) != 0);
    CHECK((host.tip.GetStyle() & TTS_ALWAYSTIP) != 0);
    CHECK(::GetWindow(host.tip.m_hWnd, GW_OWNER) == host.m_hWnd);
    CHECK_FALSE(host.tip.IsWindowVisible());
}

TEST_CASE("texts of tools are copied, given back, changed and taken away")
{
    CTipHost host;
    TCHAR text[] = _T("the first");
    CHECK(host.tip.AddTool(&host.first, text));
    text[0] = 'X';
    CHECK(host.tip.AddTool(&host.second, _T("the second")));
    CHECK(host.tip.GetToolCount() == 2);
    CHECK(host.TextOf(&host.first) == "the first");
    CHECK(host.TextOf(&host.second) == "the second");

    host.tip.UpdateTipText(_T("changed"), &host.first);
    CHECK(host.TextOf(&host.first) == "changed");

    host.tip.DelTool(&host.first);
    CHECK(host.tip.GetToolCount() == 1);
    CHECK(host.TextOf(&host.first) == "");
}

TEST_CASE("a long text is shown whole, and given back as far as the system gives it")
{
    CTipHost host;
    host.SetForegroundWindow();
    const CString text('x', 500);
    CHECK(host.tip.AddTool(&host.first, text));
    const CString given = host.TextOf(&host.first);
    CHECK(given.GetLength() >= 79);
    CHECK(given == text.Left(given.GetLength()));
    MovePointerAway();
    REQUIRE(MovePointer(host.first.m_hWnd));
    CHECK(WaitUntil([&] { return host.tip.IsWindowVisible(); }));
    CString shown;
    host.tip.GetWindowText(shown);
    CHECK(shown == text);
}

TEST_CASE("a tool's text may be a string resource")
{
    CTipHost host;
    CHECK(host.tip.AddTool(&host.first, EXT_STRING_OF_PROGRAM));
    CHECK(host.TextOf(&host.first) == "only in the program");
    host.tip.UpdateTipText(EXT_STRING_OF_BOTH, &host.first);
    CHECK(host.TextOf(&host.first) == "from the program");
}

TEST_CASE("a rectangle is a tool under an id of its own")
{
    CTipHost host;
    const CRect area(200, 10, 300, 60);
    CHECK(host.tip.AddTool(&host, _T("the area"), area, 5));
    CHECK(host.TextOf(&host, 5) == "the area");

    TOOLINFO hit = {};
    CHECK(host.tip.HitTest(&host, CPoint(210, 20), &hit));
    CHECK(hit.uId == 5);
    CHECK_FALSE(host.tip.HitTest(&host, CPoint(310, 20), &hit));

    host.tip.SetToolRect(&host, 5, CRect(305, 10, 320, 60));
    CHECK(host.tip.HitTest(&host, CPoint(310, 20), &hit));
}

TEST_CASE("a tool tells all about itself")
{
    CTipHost host;
    CHECK(host.tip.AddTool(&host, _T("the area"), CRect(200, 10, 300, 60), 5));
    CToolInfo info;
    REQUIRE(host.tip.GetToolInfo(info, &host, 5));
    CHECK(info.hwnd == host.m_hWnd);
    CHECK(CRect(info.rect) == CRect(200, 10, 300, 60));
    CHECK(CString(info.lpszText) == _T("the area"));
    CHECK(CString(info.szText) == _T("the area"));

    info.lpszText = const_cast<LPTSTR>(_T("another"));
    host.tip.SetToolInfo(&info);
    CHECK(host.TextOf(&host, 5) == "another");
    CHECK_FALSE(host.tip.GetToolInfo(info, &host, 6));
}

TEST_CASE("the tip pops up while the mouse rests over a tool, and goes with Pop")
{
    CTipHost host;
    host.SetForegroundWindow();
    CHECK(host.tip.AddTool(&host.first, _T("the first")));
    MovePointerAway();
    REQUIRE(MovePointer(host.first.m_hWnd));
    CHECK(WaitUntil([&] { return host.tip.IsWindowVisible(); }));
    TOOLINFO current = {};
    CHECK(host.tip.GetCurrentTool(&current));
    CHECK(current.uId == (UINT_PTR)host.first.m_hWnd);
    host.tip.Pop();
    CHECK_FALSE(host.tip.IsWindowVisible());
}

TEST_CASE("an inactive tip does not pop up")
{
    CTipHost host;
    host.SetForegroundWindow();
    CHECK(host.tip.AddTool(&host.first, _T("the first")));
    host.tip.Activate(FALSE);
    MovePointerAway();
    REQUIRE(MovePointer(host.first.m_hWnd));
    CHECK_FALSE(
        WaitUntil([&] { return host.tip.IsWindowVisible(); }, std::chrono::milliseconds(300)));
    host.tip.Activate(TRUE);
    MovePointerAway();
    REQUIRE(MovePointer(host.first.m_hWnd));
    CHECK(WaitUntil([&] { return host.tip.IsWindowVisible(); }));
}

TEST_CASE("without a text the parent is asked for it")
{
    CTipHost host;
    host.SetForegroundWindow();
    CHECK(host.tip.AddTool(&host.first));
    MovePointerAway();
    REQUIRE(MovePointer(host.first.m_hWnd));
    CHECK(WaitUntil([&] { return host.tip.IsWindowVisible(); }));
    CHECK(host.questions > 0);
}

TEST_CASE("a tip keeps times, width, margins and colours")
{
    CTipHost host;
    host.tip.SetDelayTime(TTDT_AUTOPOP, 4321);
    CHECK(host.tip.GetDelayTime(TTDT_AUTOPOP) == 4321);
    host.tip.SetDelayTime(100);
    CHECK(host.tip.GetDelayTime(TTDT_INITIAL) == 100);
    CHECK(host.tip.GetDelayTime(TTDT_AUTOPOP) == 1000);

    CHECK(host.tip.GetMaxTipWidth() == -1);
    host.tip.SetMaxTipWidth(200);
    CHECK(host.tip.GetMaxTipWidth() == 200);
    CRect margin(1, 2, 3, 4), real;
    host.tip.SetMargin(margin);
    host.tip.GetMargin(real);
    CHECK(real == margin);
    host.tip.SetTipBkColor(RGB(1, 2, 3));
    CHECK(host.tip.GetTipBkColor() == RGB(1, 2, 3));
    host.tip.SetTipTextColor(RGB(4, 5, 6));
    CHECK(host.tip.GetTipTextColor() == RGB(4, 5, 6));
}

TEST_CASE("a tip has a title, a size, and room around its text")
{
    CTipHost host;
    CHECK(host.tip.SetTitle(TTI_INFO, _T("The title")));
    CHECK(host.tip.AddTool(&host.first, _T("a text of some length")));
    CToolInfo info;
    REQUIRE(host.tip.GetToolInfo(info, &host.first));
    const CSize size = host.tip.GetBubbleSize(&info);
    CHECK(size.cx > 40);
    CHECK(size.cy > 8);
    CRect room(0, 0, 100, 20);
    MessageLog log(host.tip.m_hWnd);
    const BOOL adjusted = host.tip.AdjustRect(room);
    REQUIRE(log.Contains(TTM_ADJUSTRECT));
    CHECK(log.Last(TTM_ADJUSTRECT)->wParam == TRUE);
    CHECK(log.Last(TTM_ADJUSTRECT)->result == adjusted);
}
