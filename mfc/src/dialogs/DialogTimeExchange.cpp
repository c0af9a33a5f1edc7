// The exchange with date and month controls.
#include <afxdd_.h>

#include <afxres.h>
#include <classes/CString.h>

#include "controls/ControlTimes.h"
#include "dialogs/DialogExchange.h"

namespace {

/// What the user's locale understands a text as.
bool ParseDate(LPCTSTR text, SYSTEMTIME& parts)
{
    CStringW wide(text);
    DATE date = 0;
    return SUCCEEDED(::VarDateFromStr(wide.GetBuffer(), LOCALE_USER_DEFAULT, 0, &date)) &&
           ::VariantTimeToSystemTime(date, &parts);
}

bool IsWithin(const CTime& value, const CTime* lowest, const CTime* highest)
{
    return (lowest == NULL || value >= *lowest) && (highest == NULL || value <= *highest);
}

void CheckTime(CDataExchange* exchange, const CTime& value, const CTime* lowest,
               const CTime* highest, UINT rangeMessage)
{
    if (!exchange->m_bSaveAndValidate) {
        const HWND control = afxint::ExchangeAccess::LastControl(*exchange);
        afxint::SetTimeRange(control, rangeMessage, lowest, highest);
        return;
    }
    if (!IsWithin(value, lowest, highest))
        afxint::Refuse(exchange, AFX_IDP_PARSE_DATETIME);
}

} // namespace

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME parts = afxint::PartsOfTime(value);
    if (!pDX->m_bSaveAndValidate)
        afxint::Ask(control, DTM_SETSYSTEMTIME, GDT_VALID, &parts);
    else if (afxint::Ask(control, DTM_GETSYSTEMTIME, 0, &parts) == GDT_VALID)
        afxint::TimeOfParts(parts, value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = afxint::ReadText(control);
        return;
    }
    SYSTEMTIME parts = {};
    const DWORD state = ParseDate(value, parts) ? GDT_VALID : GDT_NONE;
    afxint::Ask(control, DTM_SETSYSTEMTIME, state, &parts);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    SYSTEMTIME parts = afxint::PartsOfTime(value);
    if (!pDX->m_bSaveAndValidate)
        afxint::Ask(control, MCM_SETCURSEL, 0, &parts);
    else if (afxint::Ask(control, MCM_GETCURSEL, 0, &parts))
        afxint::TimeOfParts(parts, value);
}

void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                               const CTime* pMaxRange)
{
    CheckTime(pDX, refValue, pMinRange, pMaxRange, DTM_SETRANGE);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                            const CTime* pMaxRange)
{
    CheckTime(pDX, refValue, pMinRange, pMaxRange, MCM_SETRANGE);
}
