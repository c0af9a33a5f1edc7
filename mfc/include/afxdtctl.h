// Date and time pickers and calendars.
#pragma once
#include <afxcmn.h>
#include <classes/CMonthCalCtrl.h>
#include <classes/CDateTimeCtrl.h>
