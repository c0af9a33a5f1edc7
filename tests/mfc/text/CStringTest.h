// The strings of the tests of CString, CTime and CTimeSpan. They fill a block of their own.
#pragma once

#define STRING_PLAIN 61200
#define STRING_FORMAT 61201
#define STRING_MESSAGE 61202
#define STRING_SPAN 61203
#define STRING_DATE 61204
#define STRING_MISSING 61215
