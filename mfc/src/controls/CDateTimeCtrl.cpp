#include <classes/CDateTimeCtrl.h>

#include <classes/CFont.h>
#include <classes/CMonthCalCtrl.h>

#include "controls/ControlTimes.h"
#include "controls/LaterMessages.h"

using afxint::Ask;
using afxint::AskFor;
using afxint::AskForWindow;

namespace {

constexpr afxint::CommonControl kind = {DATETIMEPICK_CLASS, ICC_DATE_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

CDateTimeCtrl::CDateTimeCtrl() = default;

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

COLORREF CDateTimeCtrl::GetMonthCalColor(int iColor) const
{
    return Ask(m_hWnd, DTM_GETMCCOLOR, iColor);
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int iColor, COLORREF ref)
{
    return Ask(m_hWnd, DTM_SETMCCOLOR, iColor, ref);
}

BOOL CDateTimeCtrl::SetFormat(LPCTSTR pstrFormat)
{
    return Ask(m_hWnd, DTM_SETFORMAT, 0, pstrFormat);
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const
{
    return AskForWindow<CMonthCalCtrl>(m_hWnd, DTM_GETMONTHCAL);
}

CFont* CDateTimeCtrl::GetMonthCalFont() const
{
    return CFont::FromHandle(AskFor<HFONT>(m_hWnd, DTM_GETMCFONT));
}

void CDateTimeCtrl::SetMonthCalFont(HFONT hFont, BOOL bRedraw)
{
    Ask(m_hWnd, DTM_SETMCFONT, hFont, bRedraw);
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const
{
    return afxint::GetTimeRange(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange)
{
    return afxint::SetTimeRange(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const
{
    SYSTEMTIME parts = {};
    const DWORD answer = GetTime(&parts);
    if (answer == GDT_VALID && !afxint::TimeOfParts(parts, timeDest))
        return static_cast<DWORD>(GDT_ERROR);
    return answer;
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME pTimeDest) const
{
    return Ask(m_hWnd, DTM_GETSYSTEMTIME, 0, pTimeDest);
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew)
{
    if (pTimeNew == NULL)
        return SetTime();
    SYSTEMTIME parts = afxint::PartsOfTime(*pTimeNew);
    return SetTime(&parts);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew)
{
    // Not every system takes NULL, though the parts are not looked at without a date.
    SYSTEMTIME none = {};
    return pTimeNew == NULL ? Ask(m_hWnd, DTM_SETSYSTEMTIME, GDT_NONE, &none)
                            : Ask(m_hWnd, DTM_SETSYSTEMTIME, GDT_VALID, pTimeNew);
}

DWORD CDateTimeCtrl::GetMonthCalStyle() const
{
    return Ask(m_hWnd, DTM_GETMCSTYLE);
}

DWORD CDateTimeCtrl::SetMonthCalStyle(DWORD dwStyle)
{
    return Ask(m_hWnd, DTM_SETMCSTYLE, 0, dwStyle);
}

BOOL CDateTimeCtrl::GetDateTimePickerInfo(tagDATETIMEPICKERINFO* pDateTimePickerInfo) const
{
    return Ask(m_hWnd, DTM_GETDATETIMEPICKERINFO, 0, pDateTimePickerInfo);
}

BOOL CDateTimeCtrl::GetIdealSize(LPSIZE pSize) const
{
    return Ask(m_hWnd, DTM_GETIDEALSIZE, 0, pSize);
}

void CDateTimeCtrl::CloseMonthCal() const
{
    Ask(m_hWnd, DTM_CLOSEMONTHCAL);
}
