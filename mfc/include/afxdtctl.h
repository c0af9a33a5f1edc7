// Date and time pickers and calendars.
#pragma once
#include <afxwin.h>
#include <classes/CMonthCalCtrl.h>
#include <classes/CDateTimeCtrl.h>
