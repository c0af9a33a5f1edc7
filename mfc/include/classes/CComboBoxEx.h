// A list with images that drops down from a field.
#pragma once

#include <classes/CComboBox.h>

class CEdit;
class CImageList;

/// The common control "ComboBoxEx32". It holds a combo box, and has items in place of strings:
/// what CComboBox has for strings and for searching them does not work with it.
class AFX_EXPORTED CComboBoxEx : public CComboBox
{
    DECLARE_DYNAMIC(CComboBoxEx)

public:
    CComboBoxEx();

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// Its index, or -1; index -1 in the item is the end.
    int InsertItem(const COMBOBOXEXITEM* pCBItem);
    /// Returns how many are left.
    int DeleteItem(int iIndex);
    BOOL GetItem(COMBOBOXEXITEM* pCBItem);
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem);
    /// CBES_EX_ values, of the new style those in the mask, or all for a mask of 0. Returns the
    /// former.
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles);
    /// Whether the user has typed into the field.
    BOOL HasEditChanged();
    /// NULL without a field to type in.
    CEdit* GetEditCtrl();
    CComboBox* GetComboBoxCtrl();
    CImageList* GetImageList() const;
    /// Returns the former list; the new one stays the caller's.
    CImageList* SetImageList(CImageList* pImageList);
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName);
};
