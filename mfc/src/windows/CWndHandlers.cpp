// The handlers that do more than default processing: reflection to the control that a message came
// from, and the end of a window.
#include <classes/CWnd.h>

#include <classes/CListBox.h>
#include <classes/CMenu.h>
#include <classes/CPoint.h>
#include <classes/CScrollBar.h>
#include <classes/CWinThread.h>

#include <afxres.h>

#include "threads/ThreadState.h"
#include "windows/ToolTips.h"
#include "windows/WindowMessages.h"

using afxint::CurrentThread;

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_CHARTOITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CTLCOLOR()
    ON_WM_DELETEITEM()
    ON_WM_DRAWITEM()
    ON_WM_HELPINFO()
    ON_WM_HSCROLL()
    ON_WM_MEASUREITEM()
    ON_WM_NCDESTROY()
    ON_WM_PARENTNOTIFY()
    ON_WM_VKEYTOITEM()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace {

/// The object of the menu that has the item, in the opened menu or below it; NULL for none.
CMenu* FindMenuOfItem(HMENU menu, UINT item)
{
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        if (const HMENU sub = GetSubMenu(menu, i)) {
            if (CMenu* owner = FindMenuOfItem(sub, item))
                return owner;
        } else if (GetMenuItemID(menu, i) == item) {
            return CurrentThread().menus.FindPermanent(menu);
        }
    }
    return NULL;
}

/// The end of the main window is the end of the thread's message loop.
void EndAsMainWindow(CWnd& window)
{
    CWinThread* thread = AfxGetThread();
    if (thread == NULL)
        return;
    if (thread->m_pActiveWnd == &window)
        thread->m_pActiveWnd = NULL;
    if (thread->m_pMainWnd != &window)
        return;
    thread->m_pMainWnd = NULL;
    PostQuitMessage(0);
}

} // namespace

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT item = 0;
    if (ReflectLastMsg(pListBox->GetSafeHwnd(), &item))
        return static_cast<int>(item);
    return static_cast<int>(Default());
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT order = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &order))
        return static_cast<int>(order);
    return static_cast<int>(Default());
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT brush = 0;
    if (pWnd != NULL && pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        const auto menu = reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem);
        if (CMenu* owner = CurrentThread().menus.FindPermanent(menu)) {
            owner->DrawItem(lpDrawItemStruct);
            return;
        }
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

BOOL CWnd::OnHelpInfo(HELPINFO*)
{
    const bool isTop = (GetStyle() & WS_CHILD) == 0;
    if (isTop && OnCmdMsg(ID_HELP, CN_COMMAND, NULL, NULL))
        return TRUE;
    return static_cast<BOOL>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (pScrollBar == NULL || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        if (CMenu* owner =
                FindMenuOfItem(CurrentThread().openedMenu, lpMeasureItemStruct->itemID)) {
            owner->MeasureItem(lpMeasureItemStruct);
            return;
        }
    } else if (ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID)))) {
        return;
    }
    Default();
}

void CWnd::OnNcDestroy()
{
    EndAsMainWindow(*this);
    afxint::ForgetToolTips(*this);
    if (Has(modalLoop))
        state_ &= ~static_cast<UINT>(continueModal);

    const HWND window = m_hWnd;
    const WNDPROC former = superProc_;
    Default();
    afxint::WindowMessages::GiveBack(window, former);
    afxint::WindowMessages::Forget(this);
    PostNcDestroy();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const bool child = message == WM_CREATE || message == WM_DESTROY;
    if (!child || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT item = 0;
    if (ReflectLastMsg(pListBox->GetSafeHwnd(), &item))
        return static_cast<int>(item);
    return static_cast<int>(Default());
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (pScrollBar == NULL || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}
