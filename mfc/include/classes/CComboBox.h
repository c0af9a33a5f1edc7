// A list that drops down from a field.
#pragma once

#include <classes/CString.h>
#include <classes/CWnd.h>

/// The system's "ComboBox" control. Indices count from zero; CB_ERR is a failure, CB_ERRSPACE a
/// lack of memory.
class AFX_EXPORTED CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    int InitStorage(int nItems, UINT nBytes);
    void SetHorizontalExtent(UINT nExtent);
    UINT GetHorizontalExtent() const;
    int SetDroppedWidth(UINT nWidth);
    int GetDroppedWidth() const;
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;

    // The edit field.
    DWORD GetEditSel() const;
    BOOL LimitText(int nMaxChars);
    BOOL SetEditSel(int nStartChar, int nEndChar);

    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    /// The height of an item; index -1 is the field itself.
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SetExtendedUI(BOOL bExtended = TRUE);
    BOOL GetExtendedUI() const;
    void GetDroppedControlRect(LPRECT lprect) const;
    BOOL GetDroppedState() const;

    void ShowDropDown(BOOL bShowIt = TRUE);
    int AddString(LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent();
    /// Adds the names of files of the attributes (DDL_ values) that match the pattern.
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    // Owner-drawn lists. The base does nothing in each.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// Below zero, zero or above zero for item 1 before, like or after item 2.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

    // These need the common controls of version 6, the last three of a newer system, and fail
    // without.
    BOOL SetMinVisibleItems(int iMinVisible);
    int GetMinVisible() const;
    BOOL SetCueBanner(LPCTSTR lpszText);
    CString GetCueBanner() const;
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
