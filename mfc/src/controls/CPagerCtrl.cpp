#include <classes/CPagerCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

constexpr afxint::CommonControl kind = {WC_PAGESCROLLER, ICC_PAGESCROLLER_CLASS};

} // namespace

IMPLEMENT_DYNAMIC(CPagerCtrl, CWnd)

CPagerCtrl::CPagerCtrl() = default;

BOOL CPagerCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CPagerCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

void CPagerCtrl::SetChild(HWND hwndChild)
{
    Ask(m_hWnd, PGM_SETCHILD, 0, hwndChild);
}

void CPagerCtrl::RecalcSize()
{
    Ask(m_hWnd, PGM_RECALCSIZE);
}

void CPagerCtrl::ForwardMouse(BOOL bForward)
{
    Ask(m_hWnd, PGM_FORWARDMOUSE, bForward);
}

COLORREF CPagerCtrl::SetBkColor(COLORREF clrBk)
{
    return Ask(m_hWnd, PGM_SETBKCOLOR, 0, clrBk);
}

COLORREF CPagerCtrl::GetBkColor() const
{
    return Ask(m_hWnd, PGM_GETBKCOLOR);
}

int CPagerCtrl::SetBorder(int iBorder)
{
    return Ask(m_hWnd, PGM_SETBORDER, 0, iBorder);
}

int CPagerCtrl::GetBorder() const
{
    return Ask(m_hWnd, PGM_GETBORDER);
}

int CPagerCtrl::SetButtonSize(int iButtonSize)
{
    return Ask(m_hWnd, PGM_SETBUTTONSIZE, 0, iButtonSize);
}

int CPagerCtrl::GetButtonSize() const
{
    return Ask(m_hWnd, PGM_GETBUTTONSIZE);
}

void CPagerCtrl::SetScrollPos(int iPos)
{
    Ask(m_hWnd, PGM_SETPOS, 0, iPos);
}

int CPagerCtrl::GetScrollPos() const
{
    return Ask(m_hWnd, PGM_GETPOS);
}

DWORD CPagerCtrl::GetButtonState(int iButton) const
{
    return Ask(m_hWnd, PGM_GETBUTTONSTATE, 0, iButton);
}

BOOL CPagerCtrl::IsButtonDepressed(int iButton) const
{
    return GetButtonState(iButton) == PGF_DEPRESSED;
}

BOOL CPagerCtrl::IsButtonGrayed(int iButton) const
{
    return GetButtonState(iButton) == PGF_GRAYED;
}

BOOL CPagerCtrl::IsButtonHot(int iButton) const
{
    return GetButtonState(iButton) == PGF_HOT;
}

BOOL CPagerCtrl::IsButtonInvisible(int iButton) const
{
    return GetButtonState(iButton) == PGF_INVISIBLE;
}

BOOL CPagerCtrl::IsButtonNormal(int iButton) const
{
    return GetButtonState(iButton) == PGF_NORMAL;
}

IDropTarget* CPagerCtrl::GetDropTarget() const
{
    IDropTarget* target = NULL;
    Ask(m_hWnd, PGM_GETDROPTARGET, 0, &target);
    return target;
}
