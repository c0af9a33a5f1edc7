// A tree of items that unfold.
#pragma once

#include <classes/CWnd.h>

class CEdit;
class CImageList;
class CToolTipCtrl;

/// The common control "SysTreeView32". NULL stands for no item.
class AFX_EXPORTED CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    UINT GetCount() const;
    UINT GetIndent() const;
    void SetIndent(UINT nIndent);
    CImageList* GetImageList(UINT nImageList) const;
    /// Returns the former list; the new one stays the caller's.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);

    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetParentItem(HTREEITEM hItem) const;
    HTREEITEM GetFirstVisibleItem() const;
    HTREEITEM GetLastVisibleItem() const;
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetSelectedItem() const;
    HTREEITEM GetDropHilightItem() const;
    HTREEITEM GetRootItem() const;

    BOOL GetItem(TVITEM* pItem) const;
    BOOL SetItem(TVITEM* pItem);
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                 UINT nState, UINT nStateMask, LPARAM lParam);
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    CEdit* GetEditControl() const;
    UINT GetVisibleCount() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF clr);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF clr);
    COLORREF GetLineColor() const;
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE);
    SHORT GetItemHeight() const;
    SHORT SetItemHeight(SHORT cyHeight);
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    UINT GetScrollTime() const;
    UINT SetScrollTime(UINT uScrollTime);
    HTREEITEM MapAccIdToItem(UINT uAccId) const;
    UINT MapItemToAccID(HTREEITEM hItem) const;

    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage,
                         HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem);
    BOOL DeleteAllItems();
    BOOL Expand(HTREEITEM hItem, UINT nCode);
    BOOL Select(HTREEITEM hItem, UINT nCode);
    BOOL SelectItem(HTREEITEM hItem);
    BOOL SelectDropTarget(HTREEITEM hItem);
    BOOL SelectSetFirstVisible(HTREEITEM hItem);
    /// The field that the label is edited in, which is the control's; NULL on failure.
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancel);
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = NULL) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    /// The caller owns the list with the item's picture.
    CImageList* CreateDragImage(HTREEITEM hItem);
    BOOL SortChildren(HTREEITEM hItem);
    BOOL SortChildrenCB(LPTVSORTCB pSort);
    BOOL EnsureVisible(HTREEITEM hItem);
};
