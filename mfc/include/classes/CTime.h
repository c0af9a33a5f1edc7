// A point in time, to the second, from 1970 to 3000; local time unless a name says Gmt.
//
// Parts that make no such time throw CInvalidArgException.
#pragma once

#include <classes/CString.h>
#include <classes/CTimeSpan.h>
#include <classes/Platform.h>

#include <time.h>

class CArchive;

class AFX_EXPORTED CTime
{
public:
    static CTime WINAPI GetCurrentTime();

    CTime();
    CTime(__time64_t time);
    /// nDST: 0 standard time, above 0 summer time, below 0 what the rules of the zone say.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    CTime(const SYSTEMTIME& st, int nDST = -1);
    CTime(const FILETIME& ft, int nDST = -1);

    CTime& operator=(__time64_t time);
    CTime& operator+=(CTimeSpan span);
    CTime& operator-=(CTimeSpan span);
    CTimeSpan operator-(CTime time) const;
    CTime operator-(CTimeSpan span) const;
    CTime operator+(CTimeSpan span) const;
    bool operator==(CTime time) const;
    bool operator!=(CTime time) const;
    bool operator<(CTime time) const;
    bool operator>(CTime time) const;
    bool operator<=(CTime time) const;
    bool operator>=(CTime time) const;

    /// NULL when the time has no calendar date.
    struct tm* GetGmtTm(struct tm* ptm) const;
    struct tm* GetLocalTm(struct tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const;
    __time64_t GetTime() const;
    /// Stores or loads the time, as the operators do.
    CArchive& Serialize64(CArchive& ar);

    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    /// 1 is Sunday.
    int GetDayOfWeek() const;

    /// As strftime.
    CString Format(LPCTSTR pszFormat) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CString FormatGmt(UINT nFormatID) const;

private:
    __time64_t time_;
};
