#include <classes/CMonthCalCtrl.h>

#include "controls/ControlTimes.h"
#include "controls/LaterMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::PartsOfTime;
using afxint::TimeOfParts;

namespace {

constexpr afxint::CommonControl kind = {MONTHCAL_CLASS, ICC_DATE_CLASSES};

/// Both as CTime, or neither.
BOOL TimesOfParts(const SYSTEMTIME& first, const SYSTEMTIME& last, CTime& firstTime,
                  CTime& lastTime)
{
    CTime start;
    if (!TimeOfParts(first, start) || !TimeOfParts(last, lastTime))
        return FALSE;
    firstTime = start;
    return TRUE;
}

} // namespace

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

CMonthCalCtrl::CMonthCalCtrl() = default;

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID)
{
    const RECT empty = {pt.x, pt.y, pt.x, pt.y};
    return Create(dwStyle, empty, pParentWnd, nID) && SizeMinReq();
}

BOOL CMonthCalCtrl::GetMinReqRect(RECT* pRect) const
{
    return Ask(m_hWnd, MCM_GETMINREQRECT, 0, pRect);
}

int CMonthCalCtrl::GetMonthDelta() const
{
    return Ask(m_hWnd, MCM_GETMONTHDELTA);
}

int CMonthCalCtrl::SetMonthDelta(int iDelta)
{
    return Ask(m_hWnd, MCM_SETMONTHDELTA, iDelta);
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const
{
    const LRESULT words = Ask(m_hWnd, MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != NULL)
        *pbLocal = HIWORD(words);
    return LOWORD(words);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int* lpnOld)
{
    const LRESULT words = Ask(m_hWnd, MCM_SETFIRSTDAYOFWEEK, 0, iDay);
    if (lpnOld != NULL)
        *lpnOld = LOWORD(words);
    return HIWORD(words);
}

COLORREF CMonthCalCtrl::GetColor(int nRegion) const
{
    return Ask(m_hWnd, MCM_GETCOLOR, nRegion);
}

COLORREF CMonthCalCtrl::SetColor(int nRegion, COLORREF ref)
{
    return Ask(m_hWnd, MCM_SETCOLOR, nRegion, ref);
}

BOOL CMonthCalCtrl::GetToday(SYSTEMTIME* pDateTime) const
{
    return Ask(m_hWnd, MCM_GETTODAY, 0, pDateTime);
}

void CMonthCalCtrl::SetToday(const CTime* pDateTime)
{
    SYSTEMTIME parts = pDateTime == NULL ? SYSTEMTIME() : PartsOfTime(*pDateTime);
    SetToday(pDateTime == NULL ? NULL : &parts);
}

void CMonthCalCtrl::SetToday(SYSTEMTIME* pDateTime)
{
    Ask(m_hWnd, MCM_SETTODAY, 0, pDateTime);
}

BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const
{
    SYSTEMTIME parts = {};
    return GetCurSel(&parts) && TimeOfParts(parts, refDateTime);
}

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME pDateTime) const
{
    return Ask(m_hWnd, MCM_GETCURSEL, 0, pDateTime);
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime)
{
    SYSTEMTIME parts = PartsOfTime(refDateTime);
    return SetCurSel(&parts);
}

BOOL CMonthCalCtrl::SetCurSel(LPSYSTEMTIME pDateTime)
{
    return Ask(m_hWnd, MCM_SETCURSEL, 0, pDateTime);
}

int CMonthCalCtrl::GetMaxSelCount() const
{
    return Ask(m_hWnd, MCM_GETMAXSELCOUNT);
}

BOOL CMonthCalCtrl::SetMaxSelCount(int nMax)
{
    return Ask(m_hWnd, MCM_SETMAXSELCOUNT, nMax);
}

BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const
{
    SYSTEMTIME first;
    SYSTEMTIME last;
    return GetSelRange(&first, &last) && TimesOfParts(first, last, refMinRange, refMaxRange);
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    SYSTEMTIME days[2] = {};
    if (!Ask(m_hWnd, MCM_GETSELRANGE, 0, days))
        return FALSE;
    *pMinRange = days[0];
    *pMaxRange = days[1];
    return TRUE;
}

BOOL CMonthCalCtrl::SetSelRange(const CTime& pMinRange, const CTime& pMaxRange)
{
    SYSTEMTIME first = PartsOfTime(pMinRange);
    SYSTEMTIME last = PartsOfTime(pMaxRange);
    return SetSelRange(&first, &last);
}

BOOL CMonthCalCtrl::SetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange)
{
    SYSTEMTIME days[2] = {*pMinRange, *pMaxRange};
    return Ask(m_hWnd, MCM_SETSELRANGE, 0, days);
}

int CMonthCalCtrl::GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME first;
    SYSTEMTIME last;
    const int months = GetMonthRange(&first, &last, dwFlags);
    return TimesOfParts(first, last, refMinRange, refMaxRange) ? months : 0;
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange,
                                 DWORD dwFlags) const
{
    SYSTEMTIME days[2] = {};
    const int months = Ask(m_hWnd, MCM_GETMONTHRANGE, dwFlags, days);
    *pMinRange = days[0];
    *pMaxRange = days[1];
    return months;
}

DWORD CMonthCalCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const
{
    return afxint::GetTimeRange(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    return afxint::GetTimeRange(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange)
{
    return afxint::SetTimeRange(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange)
{
    return afxint::SetTimeRange(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetDayState(int nMonths, LPMONTHDAYSTATE pStates)
{
    return Ask(m_hWnd, MCM_SETDAYSTATE, nMonths, pStates);
}

DWORD CMonthCalCtrl::HitTest(PMCHITTESTINFO pMCHitTest)
{
    return Ask(m_hWnd, MCM_HITTEST, 0, pMCHitTest);
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint)
{
    RECT needed = {};
    if (!GetMinReqRect(&needed))
        return FALSE;
    const int width = max(needed.right - needed.left, static_cast<LONG>(GetMaxTodayWidth()));
    const UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0 : SWP_NOREDRAW);
    return SetWindowPos(NULL, 0, 0, width, needed.bottom - needed.top, flags);
}

DWORD CMonthCalCtrl::GetCurrentView() const
{
    return Ask(m_hWnd, MCM_GETCURRENTVIEW);
}

BOOL CMonthCalCtrl::SetCurrentView(DWORD dwNewView)
{
    return Ask(m_hWnd, MCM_SETCURRENTVIEW, 0, dwNewView);
}

BOOL CMonthCalCtrl::IsMonthView() const
{
    return GetCurrentView() == MCMV_MONTH;
}

BOOL CMonthCalCtrl::IsYearView() const
{
    return GetCurrentView() == MCMV_YEAR;
}

BOOL CMonthCalCtrl::IsDecadeView() const
{
    return GetCurrentView() == MCMV_DECADE;
}

BOOL CMonthCalCtrl::IsCenturyView() const
{
    return GetCurrentView() == MCMV_CENTURY;
}

BOOL CMonthCalCtrl::SetMonthView()
{
    return SetCurrentView(MCMV_MONTH);
}

BOOL CMonthCalCtrl::SetYearView()
{
    return SetCurrentView(MCMV_YEAR);
}

BOOL CMonthCalCtrl::SetDecadeView()
{
    return SetCurrentView(MCMV_DECADE);
}

BOOL CMonthCalCtrl::SetCenturyView()
{
    return SetCurrentView(MCMV_CENTURY);
}

int CMonthCalCtrl::GetCalendarCount() const
{
    return Ask(m_hWnd, MCM_GETCALENDARCOUNT);
}

BOOL CMonthCalCtrl::GetCalendarGridInfo(tagMCGRIDINFO* pmcGridInfo) const
{
    return Ask(m_hWnd, MCM_GETCALENDARGRIDINFO, 0, pmcGridInfo);
}

CALID CMonthCalCtrl::GetCalID() const
{
    return Ask(m_hWnd, MCM_GETCALID);
}

BOOL CMonthCalCtrl::SetCalID(CALID calid)
{
    return Ask(m_hWnd, MCM_SETCALID, calid);
}

int CMonthCalCtrl::GetCalendarBorder() const
{
    return Ask(m_hWnd, MCM_GETCALENDARBORDER);
}

void CMonthCalCtrl::SetCalendarBorder(int cxyBorder)
{
    Ask(m_hWnd, MCM_SETCALENDARBORDER, TRUE, cxyBorder);
}

void CMonthCalCtrl::SetCalendarBorderDefault()
{
    Ask(m_hWnd, MCM_SETCALENDARBORDER, FALSE);
}

DWORD CMonthCalCtrl::GetMaxTodayWidth() const
{
    return Ask(m_hWnd, MCM_GETMAXTODAYWIDTH);
}

LPRECT CMonthCalCtrl::SizeRectToMin(LPRECT lpRect)
{
    return AskFor<LPRECT>(m_hWnd, MCM_SIZERECTTOMIN, 0, lpRect);
}
