// Tool tips of windows that called EnableToolTips.
#include "windows/ToolTips.h"

#include <classes/CPoint.h>
#include <classes/CWnd.h>

#include "windows/CommonControls.h"

namespace {

constexpr INT_PTR noTool = -1;

/// The tip of a thread and the tool that it serves just now.
struct Tip
{
    HWND window = NULL;
    HWND asker = NULL; ///< Whose OnToolHitTest told the tool.
    INT_PTR hit = noTool;
    TOOLINFO tool{};
};

thread_local Tip tip;

/// The size of the structure in the first version of the common controls that has lParam.
const UINT toolSize = CCSIZEOF_STRUCT(TOOLINFO, lParam);

void Send(UINT message, WPARAM wParam, LPARAM lParam)
{
    SendMessage(tip.window, message, wParam, lParam);
}

LPARAM Address(const void* structure)
{
    return reinterpret_cast<LPARAM>(structure);
}

bool MakeWindow(HWND asker)
{
    if (tip.window != NULL && IsWindow(tip.window))
        return true;
    tip = Tip{};
    afxint::NeedCommonControls(ICC_BAR_CLASSES);
    tip.window = CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, NULL, WS_POPUP | TTS_ALWAYSTIP,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                GetAncestor(asker, GA_ROOT), NULL, NULL, NULL);
    return tip.window != NULL;
}

/// A text that OnToolHitTest gives is its receiver's, made with malloc.
void FreeText(const TOOLINFO& tool)
{
    if (tool.lpszText != LPSTR_TEXTCALLBACK)
        free(tool.lpszText);
}

void DropTool()
{
    if (tip.hit == noTool)
        return;
    if (IsWindow(tip.window)) {
        Send(TTM_POP, 0, 0);
        Send(TTM_DELTOOL, 0, Address(&tip.tool));
    }
    FreeText(tip.tool);
    tip.asker = NULL;
    tip.hit = noTool;
}

void TakeTool(HWND asker, INT_PTR hit, const TOOLINFO& tool, bool tracking)
{
    tip.asker = asker;
    tip.hit = hit;
    tip.tool = tool;
    tip.tool.cbSize = toolSize;
    if (tracking)
        tip.tool.uFlags |= TTF_TRACK;
    Send(TTM_ACTIVATE, TRUE, 0);
    Send(TTM_ADDTOOL, 0, Address(&tip.tool));
    if (tracking) {
        const DWORD position = GetMessagePos();
        Send(TTM_TRACKPOSITION, 0, static_cast<LPARAM>(position));
        Send(TTM_TRACKACTIVATE, TRUE, Address(&tip.tool));
    }
}

/// Shows the tip the message as if it had gone to the tool's window; a disabled child leaves its
/// messages to the parent.
void Relay(const MSG& message)
{
    MSG relayed = message;
    relayed.hwnd = (tip.tool.uFlags & TTF_IDISHWND) != 0 ? reinterpret_cast<HWND>(tip.tool.uId)
                                                         : tip.tool.hwnd;
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
    if (tip.hit != noTool && tip.asker == window.m_hWnd)
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
    const bool same = tip.asker == m_hWnd && tip.hit == hit;
    if (!same)
        DropTool();
    if (!same && hit != noTool && MakeWindow(m_hWnd))
        TakeTool(m_hWnd, hit, tool, Has(trackingToolTips));
    else
        FreeText(tool);
    if (tip.hit != noTool)
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
