// The times that date and month controls take and give, as CTime.
#pragma once

#include <classes/CTime.h>

#include "controls/ControlMessages.h"

namespace afxint {

/// FALSE, and the time stays as it was, for one that CTime cannot hold.
BOOL TimeOfParts(const SYSTEMTIME& parts, CTime& time);
/// No parts at all, which the controls refuse, for a time without a date.
SYSTEMTIME PartsOfTime(const CTime& time);

/// What DTM_SETRANGE and MCM_SETRANGE do; a limit of NULL is none.
BOOL SetTimeRange(HWND control, UINT message, const SYSTEMTIME* lowest, const SYSTEMTIME* highest);
BOOL SetTimeRange(HWND control, UINT message, const CTime* lowest, const CTime* highest);
/// What DTM_GETRANGE and MCM_GETRANGE do: says which limits there are (GDTR_ values). Either
/// pointer may be NULL; a limit that is not there, or that CTime cannot hold, becomes zero.
DWORD GetTimeRange(HWND control, UINT message, SYSTEMTIME* lowest, SYSTEMTIME* highest);
DWORD GetTimeRange(HWND control, UINT message, CTime* lowest, CTime* highest);

} // namespace afxint
