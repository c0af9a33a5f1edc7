#include <classes/CSliderCtrl.h>

#include <classes/CToolTipCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {TRACKBAR_CLASS, ICC_BAR_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CSliderCtrl::CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

int CSliderCtrl::GetLineSize() const
{
    return Ask(m_hWnd, TBM_GETLINESIZE);
}

int CSliderCtrl::SetLineSize(int nSize)
{
    return Ask(m_hWnd, TBM_SETLINESIZE, 0, nSize);
}

int CSliderCtrl::GetPageSize() const
{
    return Ask(m_hWnd, TBM_GETPAGESIZE);
}

int CSliderCtrl::SetPageSize(int nSize)
{
    return Ask(m_hWnd, TBM_SETPAGESIZE, 0, nSize);
}

int CSliderCtrl::GetRangeMax() const
{
    return Ask(m_hWnd, TBM_GETRANGEMAX);
}

int CSliderCtrl::GetRangeMin() const
{
    return Ask(m_hWnd, TBM_GETRANGEMIN);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw)
{
    // Two messages, as the one for both has only 16 bits for each end.
    SetRangeMin(nMin, FALSE);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw)
{
    Ask(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw)
{
    Ask(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const
{
    nMin = Ask(m_hWnd, TBM_GETSELSTART);
    nMax = Ask(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    // The end goes first: the control keeps a start no further than its end.
    Ask(m_hWnd, TBM_SETSELEND, FALSE, nMax);
    Ask(m_hWnd, TBM_SETSELSTART, TRUE, nMin);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const
{
    Ask(m_hWnd, TBM_GETCHANNELRECT, 0, lprc);
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const
{
    Ask(m_hWnd, TBM_GETTHUMBRECT, 0, lprc);
}

int CSliderCtrl::GetPos() const
{
    return Ask(m_hWnd, TBM_GETPOS);
}

void CSliderCtrl::SetPos(int nPos)
{
    Ask(m_hWnd, TBM_SETPOS, TRUE, nPos);
}

UINT CSliderCtrl::GetNumTics() const
{
    return Ask(m_hWnd, TBM_GETNUMTICS);
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return AskFor<DWORD*>(m_hWnd, TBM_GETPTICS);
}

int CSliderCtrl::GetTic(int nTic) const
{
    return Ask(m_hWnd, TBM_GETTIC, nTic);
}

int CSliderCtrl::GetTicPos(int nTic) const
{
    return Ask(m_hWnd, TBM_GETTICPOS, nTic);
}

BOOL CSliderCtrl::SetTic(int nTic)
{
    return Ask(m_hWnd, TBM_SETTIC, 0, nTic);
}

void CSliderCtrl::SetTicFreq(int nFreq)
{
    Ask(m_hWnd, TBM_SETTICFREQ, nFreq);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return AskForWindow<CWnd>(m_hWnd, TBM_GETBUDDY, fLocation);
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return AskForWindow<CWnd>(m_hWnd, TBM_SETBUDDY, fLocation, pWndBuddy->GetSafeHwnd());
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return AskForWindow<CToolTipCtrl>(m_hWnd, TBM_GETTOOLTIPS);
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    Ask(m_hWnd, TBM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

int CSliderCtrl::SetTipSide(int nLocation)
{
    return Ask(m_hWnd, TBM_SETTIPSIDE, nLocation);
}

int CSliderCtrl::GetThumbLength() const
{
    return Ask(m_hWnd, TBM_GETTHUMBLENGTH);
}

void CSliderCtrl::SetThumbLength(int nLength)
{
    Ask(m_hWnd, TBM_SETTHUMBLENGTH, nLength);
}

void CSliderCtrl::ClearSel(BOOL bRedraw)
{
    Ask(m_hWnd, TBM_CLEARSEL, bRedraw);
}

void CSliderCtrl::ClearTics(BOOL bRedraw)
{
    Ask(m_hWnd, TBM_CLEARTICS, bRedraw);
}
