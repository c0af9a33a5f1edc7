#include <classes/CTabCtrl.h>

#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskForImageList;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {WC_TABCONTROL, ICC_TAB_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const
{
    return AskForImageList(m_hWnd, TCM_GETIMAGELIST);
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return AskForImageList(m_hWnd, TCM_SETIMAGELIST, 0, pImageList->GetSafeHandle());
}

int CTabCtrl::GetItemCount() const
{
    return Ask(m_hWnd, TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    return Ask(m_hWnd, TCM_GETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem)
{
    return Ask(m_hWnd, TCM_SETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItemExtra(int nBytes)
{
    return Ask(m_hWnd, TCM_SETITEMEXTRA, nBytes);
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return Ask(m_hWnd, TCM_GETITEMRECT, nItem, lpRect);
}

int CTabCtrl::GetCurSel() const
{
    return Ask(m_hWnd, TCM_GETCURSEL);
}

int CTabCtrl::SetCurSel(int nItem)
{
    return Ask(m_hWnd, TCM_SETCURSEL, nItem);
}

int CTabCtrl::GetCurFocus() const
{
    return Ask(m_hWnd, TCM_GETCURFOCUS);
}

void CTabCtrl::SetCurFocus(int nItem)
{
    Ask(m_hWnd, TCM_SETCURFOCUS, nItem);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return afxint::SizeOfWords(Ask(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

void CTabCtrl::SetPadding(CSize size)
{
    Ask(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const
{
    return Ask(m_hWnd, TCM_GETROWCOUNT);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, TCM_GETTOOLTIPS);
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    Ask(m_hWnd, TCM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    item.dwState = dwState;
    return SetItem(nItem, &item);
}

int CTabCtrl::SetMinTabWidth(int cx)
{
    return Ask(m_hWnd, TCM_SETMINTABWIDTH, 0, cx);
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return Ask(m_hWnd, TCM_GETEXTENDEDSTYLE);
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask)
{
    return Ask(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
}

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem)
{
    return Ask(m_hWnd, TCM_INSERTITEM, nItem, pTabCtrlItem);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam,
                          DWORD dwState, DWORD dwStateMask)
{
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

BOOL CTabCtrl::DeleteItem(int nItem)
{
    return Ask(m_hWnd, TCM_DELETEITEM, nItem);
}

BOOL CTabCtrl::DeleteAllItems()
{
    return Ask(m_hWnd, TCM_DELETEALLITEMS);
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect)
{
    Ask(m_hWnd, TCM_ADJUSTRECT, bLarger, lpRect);
}

void CTabCtrl::RemoveImage(int nImage)
{
    Ask(m_hWnd, TCM_REMOVEIMAGE, nImage);
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const
{
    return Ask(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
}

void CTabCtrl::DeselectAll(BOOL fExcludeFocus)
{
    Ask(m_hWnd, TCM_DESELECTALL, fExcludeFocus);
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight)
{
    return Ask(m_hWnd, TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;
    return afxint::DrawOnRequest(*this, message, lParam);
}
