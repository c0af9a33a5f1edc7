// Scrolling, by the scroll bars of a window or by controls in their place.
#include <classes/CWnd.h>

#include <classes/CScrollBar.h>

#include "graphics/DrawingHandles.h"

using afxint::HandleOf;

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    if (IsWindowVisible() || lpRect != NULL || lpClipRect != NULL) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
        return;
    }
    // The system leaves the children of a hidden window where they are.
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != NULL;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        RECT place{};
        ::GetWindowRect(child, &place);
        ScreenToClient(&place);
        ::SetWindowPos(child, NULL, place.left + xAmount, place.top + yAmount, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, HandleOf(prgnUpdate),
                            lpRectUpdate, flags);
}

int CWnd::GetScrollPos(int nBar) const
{
    const CScrollBar* bar = GetScrollBarCtrl(nBar);
    return bar == NULL ? ::GetScrollPos(m_hWnd, nBar) : bar->GetScrollPos();
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    CScrollBar* bar = GetScrollBarCtrl(nBar);
    return bar == NULL ? ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw)
                       : bar->SetScrollPos(nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    if (const CScrollBar* bar = GetScrollBarCtrl(nBar))
        bar->GetScrollRange(lpMinPos, lpMaxPos);
    else
        ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    if (CScrollBar* bar = GetScrollBarCtrl(nBar))
        bar->SetScrollRange(nMinPos, nMaxPos, bRedraw);
    else
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    CScrollBar* bar = GetScrollBarCtrl(nBar);
    return bar == NULL ? ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo)
                       : bar->GetScrollInfo(lpScrollInfo, nMask);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    if (CScrollBar* bar = GetScrollBarCtrl(nBar))
        return bar->SetScrollInfo(lpScrollInfo, bRedraw);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const
{
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}

int CWnd::GetScrollLimit(int nBar)
{
    SCROLLINFO info{};
    if (!GetScrollInfo(nBar, &info, SIF_PAGE | SIF_RANGE))
        return 0;
    const int page = static_cast<int>(info.nPage);
    return page > 1 ? info.nMax - (page - 1) : info.nMax;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    if (CScrollBar* bar = GetScrollBarCtrl(static_cast<int>(nBar)))
        bar->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    else
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable)
{
    const UINT arrows = bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH;
    if (nBar == SB_BOTH) {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
    } else if (CScrollBar* bar = GetScrollBarCtrl(nBar)) {
        bar->EnableWindow(bEnable);
    } else {
        EnableScrollBar(nBar, arrows);
    }
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return NULL;
}
