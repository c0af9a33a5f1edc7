// A list with a check box before each item.
#pragma once

#include <atltypes.h>
#include <classes/CListBox.h>
#include <classes/Collections.h>

/// An owner-drawn list box with strings (LBS_OWNERDRAWFIXED or LBS_OWNERDRAWVARIABLE, and
/// LBS_HASSTRINGS) that draws itself. A click on a box, or the space key, changes it and sends
/// CLBN_CHKCHANGE to the parent; of several selected items all change.
class AFX_EXPORTED CCheckListBox : public CListBox
{
    DECLARE_DYNAMIC(CCheckListBox)

public:
    CCheckListBox();

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    /// As of a button: BS_AUTOCHECKBOX, which it is at first, or BS_AUTO3STATE; with BS_CHECKBOX
    /// and BS_3STATE the parent is told and changes the item by itself.
    void SetCheckStyle(UINT nStyle);
    UINT GetCheckStyle();
    /// 0 unchecked, 1 checked, 2 in between; LB_ERR when there is no such item. The parent is not
    /// told.
    void SetCheck(int nIndex, int nCheck);
    int GetCheck(int nIndex);
    /// The user cannot change the box of a disabled item, which is grey.
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex);
    /// Where the box goes: rectCheckBox is the place at the left that it has by itself.
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);

    /// Draws an item without its check box, in what rcItem leaves for it.
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    /// The height of a line. It never becomes less than the check box needs.
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDir(WPARAM wParam, LPARAM lParam);

    void MatchCount();
    bool HasItem(int index) const;
    void SetState(int index, BYTE state);
    CRect PlaceOfCheck(const CRect& item);
    int CheckAt(CPoint point);
    void DrawWithCheck(DRAWITEMSTRUCT item);
    int LeastHeight();
    void FitItems();
    bool ClickCheck(CPoint point);
    void ChangeCheck(int index);
    int NextCheck(int check) const;

    UINT style_ = BS_AUTOCHECKBOX;
    CByteArray states_; ///< An item each: its check, and whether it is disabled.
};
