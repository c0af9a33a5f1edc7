#include <classes/CTreeCtrl.h>

#include <classes/CEdit.h>
#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::AskForImageList;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {WC_TREEVIEW, ICC_TREEVIEW_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

CTreeCtrl::CTreeCtrl() = default;

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

UINT CTreeCtrl::GetCount() const
{
    return Ask(m_hWnd, TVM_GETCOUNT);
}

UINT CTreeCtrl::GetIndent() const
{
    return Ask(m_hWnd, TVM_GETINDENT);
}

void CTreeCtrl::SetIndent(UINT nIndent)
{
    Ask(m_hWnd, TVM_SETINDENT, nIndent);
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const
{
    return AskForImageList(m_hWnd, TVM_GETIMAGELIST, nImageList);
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return AskForImageList(m_hWnd, TVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle());
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    return AskFor<HTREEITEM>(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PREVIOUS);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const
{
    return GetNextItem(NULL, TVGN_FIRSTVISIBLE);
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const
{
    return GetNextItem(NULL, TVGN_LASTVISIBLE);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_NEXTVISIBLE);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    return GetNextItem(NULL, TVGN_CARET);
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const
{
    return GetNextItem(NULL, TVGN_DROPHILITE);
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return GetNextItem(NULL, TVGN_ROOT);
}

BOOL CTreeCtrl::GetItem(TVITEM* pItem) const
{
    return Ask(m_hWnd, TVM_GETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(TVITEM* pItem)
{
    return Ask(m_hWnd, TVM_SETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        int nSelectedImage, UINT nState, UINT nStateMask, LPARAM lParam)
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    return Ask(m_hWnd, TVM_GETITEMSTATE, hItem, nStateMask) & nStateMask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    return SetItem(hItem, TVIF_STATE, NULL, 0, 0, nState, nStateMask, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    if (!GetItem(&item))
        return FALSE;
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, NULL, nImage, nSelectedImage, 0, 0, 0);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    // The control does not tell a text's length, so the room grows until the text fits.
    CString text;
    for (int room = 128;; room *= 2) {
        TVITEM item = {};
        item.hItem = hItem;
        item.mask = TVIF_TEXT;
        item.pszText = text.GetBufferSetLength(room);
        item.cchTextMax = room;
        *item.pszText = 0;
        const BOOL found = GetItem(&item);
        text.ReleaseBuffer();
        if (!found || text.GetLength() < room - 1)
            return text;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_PARAM;
    GetItem(&item);
    return item.lParam;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    return SetItem(hItem, TVIF_PARAM, NULL, 0, 0, 0, 0, dwData);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_CHILDREN;
    return GetItem(&item) && item.cChildren != 0;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    // The message takes the item in the place of the rectangle it answers with.
    memcpy(lpRect, &hItem, sizeof(hItem));
    return Ask(m_hWnd, TVM_GETITEMRECT, bTextOnly, lpRect);
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return AskForWindow<CEdit>(m_hWnd, TVM_GETEDITCONTROL);
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return Ask(m_hWnd, TVM_GETVISIBLECOUNT);
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, TVM_GETTOOLTIPS);
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, TVM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return Ask(m_hWnd, TVM_GETBKCOLOR);
}

COLORREF CTreeCtrl::SetBkColor(COLORREF clr)
{
    return Ask(m_hWnd, TVM_SETBKCOLOR, 0, clr);
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return Ask(m_hWnd, TVM_GETTEXTCOLOR);
}

COLORREF CTreeCtrl::SetTextColor(COLORREF clr)
{
    return Ask(m_hWnd, TVM_SETTEXTCOLOR, 0, clr);
}

COLORREF CTreeCtrl::GetLineColor() const
{
    return Ask(m_hWnd, TVM_GETLINECOLOR);
}

COLORREF CTreeCtrl::SetLineColor(COLORREF clrNew)
{
    return Ask(m_hWnd, TVM_SETLINECOLOR, 0, clrNew);
}

COLORREF CTreeCtrl::GetInsertMarkColor() const
{
    return Ask(m_hWnd, TVM_GETINSERTMARKCOLOR);
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew)
{
    return Ask(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew);
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter)
{
    return Ask(m_hWnd, TVM_SETINSERTMARK, fAfter, hItem);
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return static_cast<SHORT>(Ask(m_hWnd, TVM_GETITEMHEIGHT));
}

SHORT CTreeCtrl::SetItemHeight(SHORT cyHeight)
{
    return static_cast<SHORT>(Ask(m_hWnd, TVM_SETITEMHEIGHT, cyHeight));
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    // State image 1 is the empty box, 2 the checked one; 0 is no box at all.
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) > 1;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

UINT CTreeCtrl::GetScrollTime() const
{
    return Ask(m_hWnd, TVM_GETSCROLLTIME);
}

UINT CTreeCtrl::SetScrollTime(UINT uScrollTime)
{
    return Ask(m_hWnd, TVM_SETSCROLLTIME, uScrollTime);
}

HTREEITEM CTreeCtrl::MapAccIdToItem(UINT uAccId) const
{
    return AskFor<HTREEITEM>(m_hWnd, TVM_MAPACCIDTOHTREEITEM, uAccId);
}

UINT CTreeCtrl::MapItemToAccID(HTREEITEM hItem) const
{
    return Ask(m_hWnd, TVM_MAPHTREEITEMTOACCID, hItem);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
{
    return AskFor<HTREEITEM>(m_hWnd, TVM_INSERTITEM, 0, lpInsertStruct);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                                UINT nState, UINT nStateMask, LPARAM lParam, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insertion = {};
    insertion.hParent = hParent;
    insertion.hInsertAfter = hInsertAfter;
    insertion.item.mask = nMask;
    insertion.item.pszText = const_cast<LPTSTR>(lpszItem);
    insertion.item.iImage = nImage;
    insertion.item.iSelectedImage = nSelectedImage;
    insertion.item.state = nState;
    insertion.item.stateMask = nStateMask;
    insertion.item.lParam = lParam;
    return InsertItem(&insertion);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage,
                      0, 0, 0, hParent, hInsertAfter);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM hItem)
{
    return Ask(m_hWnd, TVM_DELETEITEM, 0, hItem);
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return DeleteItem(TVI_ROOT);
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode)
{
    return Ask(m_hWnd, TVM_EXPAND, nCode, hItem);
}

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode)
{
    return Ask(m_hWnd, TVM_SELECTITEM, nCode, hItem);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM hItem)
{
    return Select(hItem, TVGN_CARET);
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM hItem)
{
    return Select(hItem, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM hItem)
{
    return Select(hItem, TVGN_FIRSTVISIBLE);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return AskForWindow<CEdit>(m_hWnd, TVM_EDITLABEL, 0, hItem);
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL fCancel)
{
    return Ask(m_hWnd, TVM_ENDEDITLABELNOW, fCancel);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO hit = {};
    hit.pt = pt;
    const HTREEITEM item = HitTest(&hit);
    if (pFlags != NULL)
        *pFlags = hit.flags;
    return item;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const
{
    return AskFor<HTREEITEM>(m_hWnd, TVM_HITTEST, 0, pHitTestInfo);
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    return afxint::OwnedImageList(AskFor<HIMAGELIST>(m_hWnd, TVM_CREATEDRAGIMAGE, 0, hItem));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM hItem)
{
    return Ask(m_hWnd, TVM_SORTCHILDREN, 0, hItem);
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB pSort)
{
    return Ask(m_hWnd, TVM_SORTCHILDRENCB, 0, pSort);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM hItem)
{
    return Ask(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem);
}
