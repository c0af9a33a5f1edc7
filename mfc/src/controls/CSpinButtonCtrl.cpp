#include <classes/CSpinButtonCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {UPDOWN_CLASS, ICC_UPDOWN_CLASS};

} // namespace

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                               UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel)
{
    return Ask(m_hWnd, UDM_SETACCEL, nAccel, pAccel);
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const
{
    return Ask(m_hWnd, UDM_GETACCEL, nAccel, pAccel);
}

int CSpinButtonCtrl::SetBase(int nBase)
{
    return Ask(m_hWnd, UDM_SETBASE, nBase);
}

UINT CSpinButtonCtrl::GetBase() const
{
    return Ask(m_hWnd, UDM_GETBASE);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return AskForWindow<CWnd>(m_hWnd, UDM_SETBUDDY, pWndBuddy->GetSafeHwnd());
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return AskForWindow<CWnd>(m_hWnd, UDM_GETBUDDY);
}

int CSpinButtonCtrl::SetPos(int nPos)
{
    return Ask(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0));
}

int CSpinButtonCtrl::GetPos() const
{
    return Ask(m_hWnd, UDM_GETPOS);
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper)
{
    Ask(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper)
{
    Ask(m_hWnd, UDM_SETRANGE32, nLower, nUpper);
}

DWORD CSpinButtonCtrl::GetRange() const
{
    return Ask(m_hWnd, UDM_GETRANGE);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    GetRange32(lower, upper);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    Ask(m_hWnd, UDM_GETRANGE32, &lower, &upper);
}
