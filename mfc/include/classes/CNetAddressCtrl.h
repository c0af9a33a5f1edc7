// A field for a network address of any kind.
#pragma once

#include <classes/CEdit.h>

struct tagNC_ADDRESS;

/// The control "msctls_netaddress" of newer systems. It cannot be created where there is none, and
/// then the others fail.
class AFX_EXPORTED CNetAddressCtrl : public CEdit
{
    DECLARE_DYNAMIC(CNetAddressCtrl)

public:
    CNetAddressCtrl();

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// Kinds of addresses that are accepted: NET_STRING_ values.
    HRESULT SetAllowType(DWORD dwAddrMask);
    DWORD GetAllowType() const;
    HRESULT GetAddress(tagNC_ADDRESS* pAddress) const;
    /// Tells the user that the text is no address that is accepted.
    HRESULT DisplayErrorTip();
};
