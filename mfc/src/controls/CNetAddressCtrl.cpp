#include <classes/CNetAddressCtrl.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

using afxint::Ask;

namespace {

constexpr TCHAR className[] = _T("msctls_netaddress");

/// The shell has the control; not every system's does.
bool RegisterControl()
{
    using Function = BOOL(WINAPI*)();
    const HMODULE shell = ::GetModuleHandle(_T("shell32.dll"));
    const FARPROC found = ::GetProcAddress(shell, "InitNetworkAddressControl");
    return found != NULL && reinterpret_cast<Function>(reinterpret_cast<LONG_PTR>(found))();
}

} // namespace

IMPLEMENT_DYNAMIC(CNetAddressCtrl, CEdit)

CNetAddressCtrl::CNetAddressCtrl() = default;

BOOL CNetAddressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CNetAddressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                               UINT nID)
{
    return RegisterControl() &&
           CWnd::CreateEx(dwExStyle, className, NULL, dwStyle, rect, pParentWnd, nID);
}

HRESULT CNetAddressCtrl::SetAllowType(DWORD dwAddrMask)
{
    return Ask(m_hWnd, NCM_SETALLOWTYPE, dwAddrMask);
}

DWORD CNetAddressCtrl::GetAllowType() const
{
    return Ask(m_hWnd, NCM_GETALLOWTYPE);
}

HRESULT CNetAddressCtrl::GetAddress(tagNC_ADDRESS* pAddress) const
{
    return Ask(m_hWnd, NCM_GETADDRESS, 0, pAddress);
}

HRESULT CNetAddressCtrl::DisplayErrorTip()
{
    return Ask(m_hWnd, NCM_DISPLAYERRORTIP);
}
