#include <classes/CIPAddressCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

constexpr afxint::CommonControl kind = {WC_IPADDRESS, ICC_INTERNET_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)

CIPAddressCtrl::CIPAddressCtrl() = default;

BOOL CIPAddressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CIPAddressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                              UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CIPAddressCtrl::IsBlank() const
{
    return Ask(m_hWnd, IPM_ISBLANK);
}

void CIPAddressCtrl::ClearAddress()
{
    Ask(m_hWnd, IPM_CLEARADDRESS);
}

int CIPAddressCtrl::GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3)
{
    DWORD address = 0;
    const int count = GetAddress(address);
    nField0 = FIRST_IPADDRESS(address);
    nField1 = SECOND_IPADDRESS(address);
    nField2 = THIRD_IPADDRESS(address);
    nField3 = FOURTH_IPADDRESS(address);
    return count;
}

int CIPAddressCtrl::GetAddress(DWORD& dwAddress)
{
    return Ask(m_hWnd, IPM_GETADDRESS, 0, &dwAddress);
}

void CIPAddressCtrl::SetAddress(BYTE nField0, BYTE nField1, BYTE nField2, BYTE nField3)
{
    SetAddress(MAKEIPADDRESS(nField0, nField1, nField2, nField3));
}

void CIPAddressCtrl::SetAddress(DWORD dwAddress)
{
    Ask(m_hWnd, IPM_SETADDRESS, 0, dwAddress);
}

void CIPAddressCtrl::SetFieldFocus(WORD nField)
{
    Ask(m_hWnd, IPM_SETFOCUS, nField);
}

void CIPAddressCtrl::SetFieldRange(int nField, BYTE nLower, BYTE nUpper)
{
    Ask(m_hWnd, IPM_SETRANGE, nField, MAKEIPRANGE(nLower, nUpper));
}
