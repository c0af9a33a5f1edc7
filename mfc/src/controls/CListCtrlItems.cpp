// The items of a list: their contents, their order and which are selected.
#include <classes/CListCtrl.h>

#include <classes/CEdit.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskForWindow;

namespace {

/// A position is the item's number counted from one, so that NULL is none.
POSITION PositionOf(int item)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(item) + 1);
}

} // namespace

int CListCtrl::GetItemCount() const
{
    return Ask(m_hWnd, LVM_GETITEMCOUNT);
}

BOOL CListCtrl::GetItem(LVITEM* pItem) const
{
    return Ask(m_hWnd, LVM_GETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem)
{
    return Ask(m_hWnd, LVM_SETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam, int nIndent)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

UINT CListCtrl::GetCallbackMask() const
{
    return Ask(m_hWnd, LVM_GETCALLBACKMASK);
}

BOOL CListCtrl::SetCallbackMask(UINT nMask)
{
    return Ask(m_hWnd, LVM_SETCALLBACKMASK, nMask);
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    return Ask(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = PositionOf(GetNextItem(item, LVNI_SELECTED));
    return item;
}

CEdit* CListCtrl::GetEditControl() const
{
    return AskForWindow<CEdit>(m_hWnd, LVM_GETEDITCONTROL);
}

BOOL CListCtrl::GetCheck(int nItem) const
{
    // State image 1 is the empty box, 2 the checked one; 0 is no box at all.
    return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) > 1;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const
{
    return Ask(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem)
{
    return Ask(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    // The control does not tell a text's length, so the room grows until the text fits.
    CString text;
    for (int room = 128;; room *= 2) {
        const int length = GetItemText(nItem, nSubItem, text.GetBufferSetLength(room), room);
        text.ReleaseBuffer();
        if (length < room - 1)
            return text;
    }
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    *lpszText = 0;
    return Ask(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Ask(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return item.lParam;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, NULL, 0, 0, 0, dwData);
}

void CListCtrl::SetItemCount(int nItems)
{
    Ask(m_hWnd, LVM_SETITEMCOUNT, nItems);
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags)
{
    return Ask(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
}

UINT CListCtrl::GetSelectedCount() const
{
    return Ask(m_hWnd, LVM_GETSELECTEDCOUNT);
}

int CListCtrl::GetSelectionMark()
{
    return Ask(m_hWnd, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int iIndex)
{
    return Ask(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex);
}

int CListCtrl::GetHotItem()
{
    return Ask(m_hWnd, LVM_GETHOTITEM);
}

int CListCtrl::SetHotItem(int iIndex)
{
    return Ask(m_hWnd, LVM_SETHOTITEM, iIndex);
}

UINT CListCtrl::MapIDToIndex(UINT id) const
{
    return Ask(m_hWnd, LVM_MAPIDTOINDEX, id);
}

UINT CListCtrl::MapIndexToID(UINT index) const
{
    return Ask(m_hWnd, LVM_MAPINDEXTOID, index);
}

int CListCtrl::InsertItem(const LVITEM* pItem)
{
    return Ask(m_hWnd, LVM_INSERTITEM, 0, pItem);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                          int nImage, LPARAM lParam)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int nItem)
{
    return Ask(m_hWnd, LVM_DELETEITEM, nItem);
}

BOOL CListCtrl::DeleteAllItems()
{
    return Ask(m_hWnd, LVM_DELETEALLITEMS);
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const
{
    return Ask(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return AskForWindow<CEdit>(m_hWnd, LVM_EDITLABEL, nItem);
}

void CListCtrl::CancelEditLabel()
{
    Ask(m_hWnd, LVM_CANCELEDITLABEL);
}

BOOL CListCtrl::Update(int nItem)
{
    return Ask(m_hWnd, LVM_UPDATE, nItem);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return Ask(m_hWnd, LVM_SORTITEMS, dwData, pfnCompare);
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return Ask(m_hWnd, LVM_SORTITEMSEX, dwData, pfnCompare);
}
