// A field for an address of four numbers.
#pragma once

#include <classes/CWnd.h>

/// The common control "SysIPAddress32". As one number, an address has its first field in the
/// highest byte.
class AFX_EXPORTED CIPAddressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CIPAddressCtrl)

public:
    CIPAddressCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// No field has a number.
    BOOL IsBlank() const;
    void ClearAddress();
    /// Returns how many fields have a number; the others become 0.
    int GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3);
    int GetAddress(DWORD& dwAddress);
    void SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3);
    void SetAddress(DWORD dwAddress);
    /// Fields count from 0; more than 3 is the first blank one, or the first.
    void SetFieldFocus(WORD nField);
    void SetFieldRange(int nField, BYTE nLower, BYTE nUpper);
};
