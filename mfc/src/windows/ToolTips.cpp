// Tool tips of windows that called EnableToolTips.
#include "windows/ToolTips.h"

#include <classes/CPoint.h>
#include <classes/CWnd.h>

#include "threads/ThreadState.h"
#include "windows/CommonControls.h"

namespace {

constexpr INT_PTR noTool = afxint::ToolTip::noTool;

afxint::ToolTip& Tip()
{
    return afxint::CurrentThread().toolTip;
}

/// The size of the structure in the first version of the common controls that has lParam.
const UINT toolSize = CCSIZEOF_STRUCT(TOOLINFO, lParam);

void Send(UINT message, WPARAM wParam, LPARAM lParam)
{
    SendMessage(Tip().window, message, wParam, lParam);
}

LPARAM Address(const void* structure)
{
    return reinterpret_cast<LPARAM>(structure);
}

bool MakeWindow(HWND asker)
{
    if (Tip().window != NULL && IsWindow(Tip().window))
        return true;
    Tip() = {};
    afxint::NeedCommonControls(ICC_BAR_CLASSES);
    Tip().window = CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, NULL, WS_POPUP | TTS_ALWAYSTIP,
                                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                  GetAncestor(asker, GA_ROOT), NULL, NULL, NULL);
    return Tip().window != NULL;
}

/// A text that OnToolHitTest gives is its receiver's, made with malloc.
void FreeText(const TOOLINFO& tool)
{
    if (tool.lpszText != LPSTR_TEXTCALLBACK)
        free(tool.lpszText);
}

void DropTool()
{
    if (Tip().hit == noTool)
        return;
    if (IsWindow(Tip().window)) {
        Send(TTM_POP, 0, 0);
        Send(TTM_DELTOOL, 0, Address(&Tip().tool));
    }
    FreeText(Tip().tool);
    Tip().asker = NULL;
    Tip().hit = noTool;
}

void TakeTool(HWND asker, INT_PTR hit, const TOOLINFO& tool, bool tracking)
{
    Tip().asker = asker;
    Tip().hit = hit;
    Tip().tool = tool;
    Tip().tool.cbSize = toolSize;
    if (tracking)
        Tip().tool.uFlags |= TTF_TRACK;
    Send(TTM_ACTIVATE, TRUE, 0);
    Send(TTM_ADDTOOL, 0, Address(&Tip().tool));
    if (tracking) {
        const DWORD position = GetMessagePos();
        Send(TTM_TRACKPOSITION, 0, static_cast<LPARAM>(position));
        Send(TTM_TRACKACTIVATE, TRUE, Address(&Tip().tool));
    }
}

/// Shows the tip the message as if it had gone to the tool's window; a disabled child leaves its
/// messages to the parent.
void Relay(const MSG& message)
{
    MSG relayed = message;
    relayed.hwnd = (Tip().tool.uFlags & TTF_IDISHWND) != 0 ? reinterpret_cast<HWND>(Tip().tool.uId)
                                                           : Tip().tool.hwnd;
    POINT point = message.pt;
    ScreenToClient(relayed.hwnd, &point);
    relayed.lParam = MAKELPARAM(point.x, point.y);
    Send(TTM_RELAYEVENT, 0, Address(&relayed));
}

bool IsMouseMessage(UINT message)
{
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) || message == WM_NCMOUSEMOVE;
}

} // namespace

void afxint::ForgetToolTips(const CWnd& window)
{
    if (Tip().hit != noTool && Tip().asker == window.m_hWnd)
        DropTool();
}

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    Set(toolTips, bEnable != FALSE);
    if (!bEnable) {
        Set(trackingToolTips, false);
        afxint::ForgetToolTips(*this);
    }
    return TRUE;
}

BOOL CWnd::EnableTrackingToolTips(BOOL bEnable)
{
    Set(trackingToolTips, bEnable != FALSE);
    return EnableToolTips(bEnable);
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    DropTool();
}

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    const UINT message = pMsg->message;
    if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN) {
        CancelToolTips(TRUE);
        return;
    }
    if (!IsMouseMessage(message) || (pMsg->hwnd != m_hWnd && !::IsChild(m_hWnd, pMsg->hwnd)))
        return;

    POINT point = pMsg->pt;
    ::ScreenToClient(m_hWnd, &point);
    TOOLINFO tool{};
    tool.cbSize = toolSize;
    const INT_PTR hit = OnToolHitTest(CPoint(point), &tool);
    const bool same = Tip().asker == m_hWnd && Tip().hit == hit;
    if (!same)
        DropTool();
    if (!same && hit != noTool && MakeWindow(m_hWnd))
        TakeTool(m_hWnd, hit, tool, Has(trackingToolTips));
    else
        FreeText(tool);
    if (Tip().hit != noTool)
        Relay(*pMsg);
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == NULL || child == m_hWnd)
        return noTool;
    if (pTI != NULL) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    // Controls without an id of their own are told apart by their windows.
    const int id = ::GetDlgCtrlID(child);
    return id == 0 || LOWORD(id) == 0xFFFF ? reinterpret_cast<INT_PTR>(child) : id;
}
