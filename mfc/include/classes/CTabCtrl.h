// A row of tabs.
#pragma once

#include <atltypes.h>
#include <classes/CWnd.h>

class CImageList;
class CToolTipCtrl;

/// The common control "SysTabControl32". Tabs count from zero; -1 means none.
class AFX_EXPORTED CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    CImageList* GetImageList() const;
    /// Returns the former list; the new one stays the caller's.
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    /// Reserves bytes for the program's data in each tab, while there is none yet.
    BOOL SetItemExtra(int nBytes);
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    int GetCurSel() const;
    /// Returns the tab that was selected before; the parent is not told.
    int SetCurSel(int nItem);
    int GetCurFocus() const;
    void SetCurFocus(int nItem);
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
    int GetRowCount() const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    int SetMinTabWidth(int cx);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);

    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam,
                    DWORD dwState, DWORD dwStateMask);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    /// Turns a page's rectangle into the whole control's (TRUE), or the other way.
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    void RemoveImage(int nImage);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    void DeselectAll(BOOL fExcludeFocus);
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);

    /// Draws a tab of a control of style TCS_OWNERDRAWFIXED; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
