// The row of captions above the columns of a list.
#pragma once

#include <classes/CWnd.h>

class CImageList;

/// The common control "SysHeader32".
class AFX_EXPORTED CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    CImageList* GetImageList() const;
    /// Returns the former list; the new one stays the caller's.
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const;
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    /// The indices of the items from left to right.
    BOOL GetOrderArray(LPINT piArray, int iCount);
    BOOL SetOrderArray(int iCount, LPINT piArray);
    int OrderToIndex(int nOrder) const;
    int GetBitmapMargin() const;
    int SetBitmapMargin(int nWidth);

    int InsertItem(int nPos, HDITEM* phdi);
    BOOL DeleteItem(int nPos);
    /// The place of the header in a rectangle.
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    int HitTest(LPHDHITTESTINFO phdhti);
    /// The caller owns the list with the item's picture.
    CImageList* CreateDragImage(int nIndex);
    int SetHotDivider(CPoint pt);
    int SetHotDivider(int nIndex);
    int EditFilter(int iColumn, BOOL bDiscardChanges);
    int ClearFilter(int nColumn);
    int ClearAllFilters();
    int SetFilterChangeTimeout(DWORD dwTimeOut);

    /// Draws an item of format HDF_OWNERDRAW; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
