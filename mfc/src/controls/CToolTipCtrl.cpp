#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"

#include <vector>

using afxint::Ask;

namespace {

constexpr int longestText = 4096; ///< The control gives no more; it has no way to ask how much.

/// What names a tool: a whole window is a tool of its parent, a rectangle one of its window. The
/// size is the one that every version of the control knows.
TOOLINFO ToolOf(CWnd* window, UINT_PTR id)
{
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFO_V1_SIZE;
    if (id != 0) {
        tool.hwnd = window->GetSafeHwnd();
        tool.uId = id;
        return tool;
    }
    const HWND parent = ::GetParent(window->GetSafeHwnd());
    tool.hwnd = parent == NULL ? window->GetSafeHwnd() : parent;
    tool.uFlags = TTF_IDISHWND;
    tool.uId = reinterpret_cast<UINT_PTR>(window->GetSafeHwnd());
    return tool;
}

/// The control's answers keep to the size that every version knows.
LPTOOLINFO WithCommonSize(LPTOOLINFO tool)
{
    tool->cbSize = TTTOOLINFO_V1_SIZE;
    return tool;
}

} // namespace

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

CToolTipCtrl::CToolTipCtrl() = default;

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(pParentWnd, dwStyle, 0);
}

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    afxint::NeedCommonControls(ICC_BAR_CLASSES);
    return CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, NULL, WS_POPUP | dwStyle, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(),
                          NULL);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    std::vector<TCHAR> text(longestText);
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.lpszText = text.data();
    Ask(m_hWnd, TTM_GETTEXT, text.size(), &tool);
    str = text.data();
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    static_cast<TOOLINFO&>(ToolInfo) = ToolOf(pWnd, nIDTool);
    if (!Ask(m_hWnd, TTM_GETTOOLINFO, 0, static_cast<TOOLINFO*>(&ToolInfo)))
        return FALSE;
    // The control would write a text of any length, so it goes through a buffer that holds it.
    CString text;
    GetText(text, pWnd, nIDTool);
    lstrcpyn(ToolInfo.szText, text, _countof(ToolInfo.szText));
    ToolInfo.lpszText = ToolInfo.szText;
    return TRUE;
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO lpToolInfo)
{
    Ask(m_hWnd, TTM_SETTOOLINFO, 0, WithCommonSize(lpToolInfo));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.rect = *lpRect;
    Ask(m_hWnd, TTM_NEWTOOLRECT, 0, &tool);
}

int CToolTipCtrl::GetToolCount() const
{
    return Ask(m_hWnd, TTM_GETTOOLCOUNT);
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO lpToolInfo) const
{
    return Ask(m_hWnd, TTM_GETCURRENTTOOL, 0, WithCommonSize(lpToolInfo));
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const
{
    return Ask(m_hWnd, TTM_GETDELAYTIME, dwDuration);
}

void CToolTipCtrl::SetDelayTime(UINT nDelay)
{
    Ask(m_hWnd, TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay);
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime)
{
    Ask(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

void CToolTipCtrl::GetMargin(LPRECT lprc) const
{
    Ask(m_hWnd, TTM_GETMARGIN, 0, lprc);
}

void CToolTipCtrl::SetMargin(LPRECT lprc)
{
    Ask(m_hWnd, TTM_SETMARGIN, 0, lprc);
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return Ask(m_hWnd, TTM_GETMAXTIPWIDTH);
}

int CToolTipCtrl::SetMaxTipWidth(int iWidth)
{
    return Ask(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth);
}

COLORREF CToolTipCtrl::GetTipBkColor() const
{
    return Ask(m_hWnd, TTM_GETTIPBKCOLOR);
}

void CToolTipCtrl::SetTipBkColor(COLORREF clr)
{
    Ask(m_hWnd, TTM_SETTIPBKCOLOR, clr);
}

COLORREF CToolTipCtrl::GetTipTextColor() const
{
    return Ask(m_hWnd, TTM_GETTIPTEXTCOLOR);
}

void CToolTipCtrl::SetTipTextColor(COLORREF clr)
{
    Ask(m_hWnd, TTM_SETTIPTEXTCOLOR, clr);
}

void CToolTipCtrl::GetTitle(PTTGETTITLE pttgt) const
{
    pttgt->dwSize = sizeof(*pttgt);
    Ask(m_hWnd, TTM_GETTITLE, 0, pttgt);
}

BOOL CToolTipCtrl::SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
{
    return Ask(m_hWnd, TTM_SETTITLE, uIcon, lpstrTitle);
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    return afxint::SizeOfWords(Ask(m_hWnd, TTM_GETBUBBLESIZE, 0, WithCommonSize(lpToolInfo)));
}

HRESULT CToolTipCtrl::SetWindowTheme(LPCWSTR pszSubAppName)
{
    return Ask(m_hWnd, TTM_SETWINDOWTHEME, 0, pszSubAppName);
}

void CToolTipCtrl::Activate(BOOL bActivate)
{
    Ask(m_hWnd, TTM_ACTIVATE, bActivate);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    CString text;
    VERIFY(text.LoadString(nIDText));
    return AddTool(pWnd, text, lpRectTool, nIDTool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    if (lpRectTool != NULL)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    return Ask(m_hWnd, TTM_ADDTOOL, 0, &tool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    Ask(m_hWnd, TTM_DELTOOL, 0, &tool);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    TTHITTESTINFO hit = {};
    hit.hwnd = pWnd->GetSafeHwnd();
    hit.pt = pt;
    hit.ti.cbSize = TTTOOLINFO_V1_SIZE;
    if (!Ask(m_hWnd, TTM_HITTEST, 0, &hit))
        return FALSE;
    *lpToolInfo = hit.ti;
    return TRUE;
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg)
{
    Ask(m_hWnd, TTM_RELAYEVENT, 0, lpMsg);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool = ToolOf(pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    Ask(m_hWnd, TTM_UPDATETIPTEXT, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    CString text;
    VERIFY(text.LoadString(nIDText));
    UpdateTipText(text, pWnd, nIDTool);
}

void CToolTipCtrl::Update()
{
    Ask(m_hWnd, TTM_UPDATE);
}

void CToolTipCtrl::Pop()
{
    Ask(m_hWnd, TTM_POP);
}

void CToolTipCtrl::Popup()
{
    Ask(m_hWnd, TTM_POPUP);
}

BOOL CToolTipCtrl::AdjustRect(LPRECT lprc, BOOL bLarger)
{
    return Ask(m_hWnd, TTM_ADJUSTRECT, bLarger, lprc);
}
