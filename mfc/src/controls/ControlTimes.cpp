#include "controls/ControlTimes.h"

#include <classes/CException.h>

namespace afxint {

BOOL TimeOfParts(const SYSTEMTIME& parts, CTime& time)
{
    try {
        time = CTime(parts);
        return TRUE;
    } catch (CInvalidArgException* e) {
        e->Delete();
        return FALSE;
    }
}

SYSTEMTIME PartsOfTime(const CTime& time)
{
    SYSTEMTIME parts = {};
    time.GetAsSystemTime(parts);
    return parts;
}

BOOL SetTimeRange(HWND control, UINT message, const SYSTEMTIME* lowest, const SYSTEMTIME* highest)
{
    SYSTEMTIME limits[2] = {};
    DWORD which = 0;
    if (lowest != NULL) {
        limits[0] = *lowest;
        which |= GDTR_MIN;
    }
    if (highest != NULL) {
        limits[1] = *highest;
        which |= GDTR_MAX;
    }
    return Ask(control, message, which, limits);
}

BOOL SetTimeRange(HWND control, UINT message, const CTime* lowest, const CTime* highest)
{
    const SYSTEMTIME low = lowest == NULL ? SYSTEMTIME() : PartsOfTime(*lowest);
    const SYSTEMTIME high = highest == NULL ? SYSTEMTIME() : PartsOfTime(*highest);
    return SetTimeRange(control, message, lowest == NULL ? NULL : &low,
                        highest == NULL ? NULL : &high);
}

DWORD GetTimeRange(HWND control, UINT message, SYSTEMTIME* lowest, SYSTEMTIME* highest)
{
    SYSTEMTIME limits[2] = {};
    const DWORD which = Ask(control, message, 0, limits);
    if (lowest != NULL)
        *lowest = (which & GDTR_MIN) != 0 ? limits[0] : SYSTEMTIME();
    if (highest != NULL)
        *highest = (which & GDTR_MAX) != 0 ? limits[1] : SYSTEMTIME();
    return which;
}

DWORD GetTimeRange(HWND control, UINT message, CTime* lowest, CTime* highest)
{
    SYSTEMTIME low;
    SYSTEMTIME high;
    const DWORD which = GetTimeRange(control, message, &low, &high);
    if (lowest != NULL && !TimeOfParts(low, *lowest))
        *lowest = CTime();
    if (highest != NULL && !TimeOfParts(high, *highest))
        *highest = CTime();
    return which;
}

} // namespace afxint
