// A span of time in seconds, which may be negative.
#pragma once

#include <classes/CString.h>
#include <classes/Platform.h>

#include <time.h>

class CArchive;

class AFX_EXPORTED CTimeSpan
{
public:
    CTimeSpan();
    CTimeSpan(__time64_t time);
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs);

    LONGLONG GetDays() const;
    LONGLONG GetTotalHours() const;
    /// Hours without whole days, -23 to 23; minutes and seconds likewise.
    LONG GetHours() const;
    LONGLONG GetTotalMinutes() const;
    LONG GetMinutes() const;
    LONGLONG GetTotalSeconds() const;
    LONG GetSeconds() const;
    __time64_t GetTimeSpan() const;
    /// Stores or loads the span, as the operators do.
    CArchive& Serialize64(CArchive& ar);

    CTimeSpan operator+(CTimeSpan span) const;
    CTimeSpan operator-(CTimeSpan span) const;
    CTimeSpan& operator+=(CTimeSpan span);
    CTimeSpan& operator-=(CTimeSpan span);
    bool operator==(CTimeSpan span) const;
    bool operator!=(CTimeSpan span) const;
    bool operator<(CTimeSpan span) const;
    bool operator>(CTimeSpan span) const;
    bool operator<=(CTimeSpan span) const;
    bool operator>=(CTimeSpan span) const;

    /// %D days, %H hours, %M minutes, %S seconds, %% a percent sign. Anything else after a percent
    /// sign throws CInvalidArgException.
    CString Format(LPCTSTR pFormat) const;
    CString Format(UINT nID) const;

private:
    __time64_t span_;
};
