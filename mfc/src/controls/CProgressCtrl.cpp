#include <classes/CProgressCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

constexpr afxint::CommonControl kind = {PROGRESS_CLASS, ICC_PROGRESS_CLASS};

// Messages that came with a later Windows; an older one answers 0.
constexpr UINT getStep = WM_USER + 13;
constexpr UINT getBkColor = WM_USER + 14;
constexpr UINT getBarColor = WM_USER + 15;
constexpr UINT setState = WM_USER + 16;
constexpr UINT getState = WM_USER + 17;

} // namespace

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                             UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper)
{
    Ask(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper)
{
    Ask(m_hWnd, PBM_SETRANGE32, nLower, nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper)
{
    PBRANGE range = {};
    Ask(m_hWnd, PBM_GETRANGE, FALSE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos()
{
    return Ask(m_hWnd, PBM_GETPOS);
}

int CProgressCtrl::SetPos(int nPos)
{
    return Ask(m_hWnd, PBM_SETPOS, nPos);
}

int CProgressCtrl::OffsetPos(int nPos)
{
    return Ask(m_hWnd, PBM_DELTAPOS, nPos);
}

int CProgressCtrl::StepIt()
{
    return Ask(m_hWnd, PBM_STEPIT);
}

int CProgressCtrl::SetStep(int nStep)
{
    return Ask(m_hWnd, PBM_SETSTEP, nStep);
}

int CProgressCtrl::GetStep() const
{
    return Ask(m_hWnd, getStep);
}

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew)
{
    return Ask(m_hWnd, PBM_SETBKCOLOR, 0, clrNew);
}

COLORREF CProgressCtrl::GetBkColor() const
{
    return Ask(m_hWnd, getBkColor);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar)
{
    return Ask(m_hWnd, PBM_SETBARCOLOR, 0, clrBar);
}

COLORREF CProgressCtrl::GetBarColor() const
{
    return Ask(m_hWnd, getBarColor);
}

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval)
{
    return Ask(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval);
}

int CProgressCtrl::SetState(int iState)
{
    return Ask(m_hWnd, setState, iState);
}

int CProgressCtrl::GetState() const
{
    return Ask(m_hWnd, getState);
}
