// A list to select from.
#pragma once

#include <classes/CWnd.h>

/// The system's "ListBox" control. Indices count from zero; LB_ERR is a failure, LB_ERRSPACE a
/// lack of memory.
class AFX_EXPORTED CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int cxExtent);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int InitStorage(int nItems, UINT nBytes);
    /// The item nearest to a client position, and whether that position is outside of the list.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    /// The number of items in a column.
    DWORD GetListBoxInfo() const;

    // Lists with a single selection.
    int GetCurSel() const;
    int SetCurSel(int nSelect);

    // Lists with several selections.
    int GetSel(int nIndex) const;
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    int GetSelCount() const;
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex);
    int GetAnchorIndex() const;
    int GetCaretIndex() const;
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);

    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    void SetColumnWidth(int cxWidth);
    /// Tab stops are in dialog units; the first form sets one at every 2 units.
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);

    int AddString(LPCTSTR lpszItem);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    void ResetContent();
    /// Adds the names of files of the attributes (DDL_ values) that match the pattern.
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszItem);

    // Owner-drawn lists. The base does nothing in each.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// Below zero, zero or above zero for item 1 before, like or after item 2.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /// Keys in a list that wants them: -2 when all is done, -1 for what the list does by itself,
    /// else the item to do that on.
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
