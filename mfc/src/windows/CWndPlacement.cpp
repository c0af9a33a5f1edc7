// Where a window is and whether it shows, and the coordinates in it.
#include <classes/CWnd.h>

#include <classes/CDC.h>
#include <classes/CPoint.h>

namespace {

/// The usable part of the screen that shows the window; of the first screen without one.
RECT WorkArea(HWND window)
{
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfo(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &screen);
    return screen.rcWork;
}

/// Moves a stretch into the bounds; one that is too long starts with them.
int Fit(int start, int length, int low, int high)
{
    if (start + length > high)
        start = high - length;
    return start < low ? low : start;
}

} // namespace

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

void CWnd::CloseWindow()
{
    ::CloseWindow(m_hWnd);
}

UINT CWnd::ArrangeIconicWindows()
{
    return ::ArrangeIconicWindows(m_hWnd);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    const HWND after = pWndInsertAfter == NULL ? NULL : pWndInsertAfter->m_hWnd;
    return ::SetWindowPos(m_hWnd, after, x, y, cx, cy, nFlags);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

int CWnd::GetWindowRgn(HRGN hRgn) const
{
    return ::GetWindowRgn(m_hWnd, hRgn);
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT lpRect) const
{
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const
{
    ::GetClientRect(m_hWnd, lpRect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl)
{
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof placement;
    return ::SetWindowPlacement(m_hWnd, &placement);
}

BOOL CWnd::GetWindowInfo(PWINDOWINFO pwi) const
{
    return ::GetWindowInfo(m_hWnd, pwi);
}

BOOL CWnd::GetTitleBarInfo(PTITLEBARINFO pti) const
{
    return ::GetTitleBarInfo(m_hWnd, pti);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND over = pAlternateOwner->GetSafeHwnd();
    if (over == NULL)
        over = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    RECT window{};
    GetWindowRect(&window);
    RECT area{};
    RECT bounds{};
    if (child) {
        const HWND parent = ::GetParent(m_hWnd);
        ::GetClientRect(parent, &bounds);
        ::GetClientRect(over, &area);
        ::MapWindowPoints(over, parent, reinterpret_cast<POINT*>(&area), 2);
    } else {
        const bool shown = over != NULL && ::IsWindowVisible(over) && !::IsIconic(over);
        bounds = WorkArea(shown ? over : m_hWnd);
        area = bounds;
        if (shown)
            ::GetWindowRect(over, &area);
    }
    const int width = window.right - window.left;
    const int height = window.bottom - window.top;
    const int x = Fit((area.left + area.right - width) / 2, width, bounds.left, bounds.right);
    const int y = Fit((area.top + area.bottom - height) / 2, height, bounds.top, bounds.bottom);
    SetWindowPos(NULL, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

void CWnd::ShowOwnedPopups(BOOL bShow)
{
    ::ShowOwnedPopups(m_hWnd, bShow);
}

BOOL CWnd::AnimateWindow(DWORD dwTime, DWORD dwFlags)
{
    return ::AnimateWindow(m_hWnd, dwTime, dwFlags);
}

BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags)
{
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}

BOOL CWnd::GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const
{
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}

BOOL CWnd::UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc,
                               COLORREF crKey, BLENDFUNCTION* pblend, DWORD dwFlags)
{
    return ::UpdateLayeredWindow(m_hWnd, pDCDst->GetSafeHdc(), pptDst, psize, pDCSrc->GetSafeHdc(),
                                 pptSrc, crKey, pblend, dwFlags);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    const DWORD style = GetStyle();
    AdjustWindowRectEx(lpClientRect, style, FALSE, GetExStyle());
    if (nAdjustType != adjustOutside)
        return;
    if ((style & WS_VSCROLL) != 0)
        lpClientRect->right += GetSystemMetrics(SM_CXVSCROLL);
    if ((style & WS_HSCROLL) != 0)
        lpClientRect->bottom += GetSystemMetrics(SM_CYHSCROLL);
}

void CWnd::RepositionBars(UINT, UINT, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch)
{
    // Control bars are not part of the subset, so that the whole area is left over.
    RECT rest{};
    if (lpRectClient != NULL)
        rest = *lpRectClient;
    else
        GetClientRect(&rest);
    if (nFlag == reposQuery) {
        *lpRectParam = bStretch ? rest : RECT{0, 0, rest.right - rest.left, rest.bottom - rest.top};
        return;
    }
    CWnd* pane = nIDLeftOver == 0 ? NULL : GetDlgItem(static_cast<int>(nIDLeftOver));
    if (pane == NULL)
        return;
    if (nFlag == reposExtra && lpRectParam != NULL) {
        rest.left += lpRectParam->left;
        rest.top += lpRectParam->top;
        rest.right -= lpRectParam->right;
        rest.bottom -= lpRectParam->bottom;
    }
    pane->CalcWindowRect(&rest);
    pane->SetWindowPos(NULL, rest.left, rest.top, rest.right - rest.left, rest.bottom - rest.top,
                       SWP_NOACTIVATE | SWP_NOZORDER);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, NULL, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(NULL, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
}
