// A list of items with pictures, in columns or as icons.
#pragma once

#include <atltypes.h>
#include <classes/CWnd.h>

class CEdit;
class CHeaderCtrl;
class CImageList;
class CToolTipCtrl;

/// The common control "SysListView32". Items and columns count from zero; -1 means none.
class AFX_EXPORTED CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF cr);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF cr);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF cr);
    COLORREF GetOutlineColor() const;
    COLORREF SetOutlineColor(COLORREF color);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF color);

    CImageList* GetImageList(int nImageList) const;
    /// Returns the former list. Without LVS_SHAREIMAGELISTS the control destroys the new one.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    int GetItemCount() const;
    BOOL GetItem(LVITEM* pItem) const;
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    UINT GetCallbackMask() const;
    BOOL SetCallbackMask(UINT nMask);
    /// The next item in a direction and with the properties of `nFlags` (LVNI_ values).
    int GetNextItem(int nItem, int nFlags) const;
    /// The selected items one after the other: begin here, go on with GetNextSelectedItem while
    /// the position is not NULL.
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const;
    BOOL SetItemPosition(int nItem, POINT pt);
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    int GetStringWidth(LPCTSTR lpsz) const;
    CEdit* GetEditControl() const;
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const;
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn);
    int GetColumnWidth(int nCol) const;
    BOOL SetColumnWidth(int nCol, int cx);
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    UINT GetItemState(int nItem, UINT nMask) const;
    BOOL SetItemState(int nItem, LVITEM* pItem);
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    void SetItemCount(int nItems);
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    UINT GetSelectedCount() const;
    int GetSelectionMark();
    int SetSelectionMark(int iIndex);
    UINT GetSelectedColumn() const;
    LRESULT SetSelectedColumn(int iCol);
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL GetOrigin(LPPOINT lpPoint) const;
    BOOL GetViewRect(LPRECT lpRect) const;
    DWORD GetView() const;
    DWORD SetView(int iView);
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    CHeaderCtrl* GetHeaderCtrl();
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    int GetHotItem();
    int SetHotItem(int iIndex);
    HCURSOR GetHotCursor();
    HCURSOR SetHotCursor(HCURSOR hc);
    DWORD GetHoverTime() const;
    DWORD SetHoverTime(DWORD dwHoverTime = (DWORD)-1);
    UINT GetNumberOfWorkAreas() const;
    void GetWorkAreas(int nWorkAreas, LPRECT pRect) const;
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect);
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const;
    BOOL SetBkImage(LVBKIMAGE* plvbkImage);
    BOOL SetBkImage(HBITMAP hbm, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0,
                    int yOffsetPercent = 0);
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip);
    BOOL GetTileInfo(PLVTILEINFO plvti) const;
    BOOL SetTileInfo(PLVTILEINFO pti);
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const;
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi);
    BOOL GetInsertMark(LPLVINSERTMARK lvim) const;
    BOOL SetInsertMark(LPLVINSERTMARK lvim);
    int GetInsertMarkRect(LPRECT pRect) const;
    UINT MapIDToIndex(UINT id) const;
    UINT MapIndexToID(UINT index) const;

    // Groups; they need the common controls of version 6.
    LRESULT EnableGroupView(BOOL fEnable);
    BOOL IsGroupViewEnabled() const;
    BOOL HasGroup(int iGroupId) const;
    LRESULT InsertGroup(int index, PLVGROUP pgrp);
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert);
    LRESULT MoveGroup(int iGroupId, int toIndex);
    void MoveItemToGroup(int idItemFrom, int idGroupTo);
    LRESULT RemoveGroup(int iGroupId);
    void RemoveAllGroups();
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const;
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp);
    void GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const;
    void SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics);
    BOOL SortGroups(PFNLVGROUPCOMPARE _pfnGroupCompare, LPVOID _plv);

    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                   int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = NULL) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo);
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK lvim) const;
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL Scroll(CSize size);
    BOOL RedrawItems(int nFirst, int nLast);
    BOOL Arrange(UINT nCode);
    /// The field that the label is edited in, which is the control's; NULL on failure.
    CEdit* EditLabel(int nItem);
    void CancelEditLabel();
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT,
                     int nWidth = -1, int nSubItem = -1);
    BOOL DeleteColumn(int nCol);
    /// The caller owns the list with the item's picture.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    BOOL Update(int nItem);
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;

    /// Draws an item of a list of style LVS_OWNERDRAWFIXED; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
