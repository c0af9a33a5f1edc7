// Dates, times and spans of time.
#pragma once
#include <classes/CTimeSpan.h>
#include <classes/CTime.h>
