// The operations of a window: mostly the system's functions of the same names.
#include <classes/CWnd.h>

#include <classes/Application.h>
#include <classes/CBitmap.h>
#include <classes/CDC.h>
#include <classes/CFont.h>
#include <classes/CMenu.h>
#include <classes/CPoint.h>
#include <classes/CRgn.h>
#include <classes/CScrollBar.h>

namespace {

HRGN RegionOf(const CRgn* region)
{
    return static_cast<HRGN>(region->GetSafeHandle());
}

BOOL ChangeStyle(HWND window, int which, DWORD remove, DWORD add, UINT positionFlags)
{
    ::SetLastError(ERROR_SUCCESS);
    const auto before = static_cast<DWORD>(::GetWindowLongPtr(window, which));
    if (before == 0 && ::GetLastError() != ERROR_SUCCESS)
        return FALSE; // The other bits would be lost.
    const DWORD after = (before & ~remove) | add;
    if (after == before)
        return FALSE;
    ::SetWindowLongPtr(window, which, static_cast<LONG_PTR>(after));
    if (positionFlags != 0) {
        constexpr UINT stay = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
        ::SetWindowPos(window, NULL, 0, 0, 0, 0, stay | positionFlags);
    }
    return TRUE;
}

struct Broadcast
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool deep;
    bool onlyPermanent;
};

void SendToDescendants(HWND parent, const Broadcast& sent)
{
    for (HWND child = ::GetTopWindow(parent); child != NULL;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!sent.onlyPermanent || CWnd::FromHandlePermanent(child) != NULL)
            ::SendMessage(child, sent.message, sent.wParam, sent.lParam);
        if (sent.deep)
            SendToDescendants(child, sent);
    }
}

/// The child with that id, else one further down; NULL for none.
HWND FindDescendant(HWND parent, int id)
{
    if (const HWND child = ::GetDlgItem(parent, id))
        return child;
    for (HWND child = ::GetTopWindow(parent); child != NULL;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (const HWND found = FindDescendant(child, id))
            return found;
    }
    return NULL;
}

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

// Messages.

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm)
{
    SendToDescendants(m_hWnd, {message, wParam, lParam, bDeep != FALSE, bOnlyPerm != FALSE});
}

// Text, styles, icons, fonts, menus.

void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(::SendMessage(
        m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(
        ::SendMessage(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite)
{
    return ::HiliteMenuItem(m_hWnd, pMenu->GetSafeHmenu(), nIDHiliteItem, nHilite);
}

BOOL CWnd::GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const
{
    return ::GetMenuBarInfo(m_hWnd, idObject, idItem, pmbi);
}

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId)
{
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}

DWORD CWnd::GetWindowContextHelpId() const
{
    return ::GetWindowContextHelpId(m_hWnd);
}

// Place, size, visibility.

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

// Coordinates.

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

// Painting.

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, RegionOf(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc());
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), dwFlags);
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), dwFlags);
}

BOOL CWnd::PrintWindow(CDC* pDC, UINT nFlags) const
{
    return ::PrintWindow(m_hWnd, pDC->GetSafeHdc(), nFlags);
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    ::SendMessage(m_hWnd, WM_SETREDRAW, bRedraw, 0);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, RegionOf(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, NULL, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    ::InvalidateRgn(m_hWnd, RegionOf(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn* pRgn)
{
    ::ValidateRgn(m_hWnd, RegionOf(pRgn));
}

BOOL CWnd::LockWindowUpdate()
{
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(NULL);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, RegionOf(prgnUpdate), flags);
}

BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo)
{
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}

BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags)
{
    return ::DrawCaption(m_hWnd, pDC->GetSafeHdc(), lprc, uFlags);
}

// Timers.

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                        void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}

// Input and activation.

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

CWnd* PASCAL CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* PASCAL CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}

CWnd* PASCAL CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* PASCAL CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* PASCAL CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}

BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout)
{
    FLASHWINFO flash{sizeof flash, m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&flash);
}

BOOL CWnd::DragDetect(POINT pt) const
{
    return ::DragDetect(m_hWnd, pt);
}

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ::DragAcceptFiles(m_hWnd, bAccept);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    const LPCTSTR caption = lpszCaption == NULL ? AfxGetAppName() : lpszCaption;
    return ::MessageBox(GetSafeHwnd(), lpszText, caption, nType);
}

// Scrolling.

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
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, RegionOf(prgnUpdate),
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

// Other windows.

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd()));
}

CWnd* CWnd::GetAncestor(UINT gaFlags) const
{
    return FromHandle(::GetAncestor(m_hWnd, gaFlags));
}

CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const
{
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, pWnd->GetSafeHwnd());
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    const HWND found = FindDescendant(m_hWnd, nID);
    return bOnlyPerm ? FromHandlePermanent(found) : FromHandle(found);
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                         LPCTSTR lpszWindow)
{
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}

CWnd* PASCAL CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}

// Caret.

void CWnd::CreateCaret(CBitmap* pBitmap)
{
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->GetSafeHandle()), 0, 0);
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, NULL, nWidth, nHeight);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight)
{
    const auto gray = reinterpret_cast<HBITMAP>(1); // The system's own sign for it.
    ::CreateCaret(m_hWnd, gray, nWidth, nHeight);
}

CPoint PASCAL CWnd::GetCaretPos()
{
    POINT place{};
    ::GetCaretPos(&place);
    return CPoint(place);
}

void PASCAL CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}

void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}

void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
}

// Clipboard.

BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}

CWnd* PASCAL CWnd::GetClipboardOwner()
{
    return FromHandle(::GetClipboardOwner());
}

CWnd* PASCAL CWnd::GetClipboardViewer()
{
    return FromHandle(::GetClipboardViewer());
}

CWnd* PASCAL CWnd::GetOpenClipboardWindow()
{
    return FromHandle(::GetOpenClipboardWindow());
}

HWND CWnd::SetClipboardViewer()
{
    return ::SetClipboardViewer(m_hWnd);
}

BOOL CWnd::ChangeClipboardChain(HWND hWndNext)
{
    return ::ChangeClipboardChain(m_hWnd, hWndNext);
}

// Help.

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* app = AfxGetApp())
        app->WinHelp(dwData, nCmd);
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* app = AfxGetApp())
        app->HtmlHelp(dwData, nCmd);
}

void CWnd::OnHelp()
{
    // The innermost window that knows help for its context gives it.
    for (HWND window = m_hWnd; window != NULL; window = ::GetParent(window)) {
        if (::SendMessage(window, WM_COMMANDHELP, 0, 0) != 0)
            return;
    }
    OnHelpFinder();
}

void CWnd::OnHelpIndex()
{
    WinHelp(0, HELP_INDEX);
}

void CWnd::OnHelpFinder()
{
    WinHelp(0, HELP_FINDER);
}

void CWnd::OnHelpUsing()
{
    WinHelp(0, HELP_HELPONHELP);
}

void CWnd::NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject)
{
    ::NotifyWinEvent(event, m_hWnd, idObjectType, idObject);
}
