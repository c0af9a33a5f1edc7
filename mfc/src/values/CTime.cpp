#include <classes/CArchive.h>
#include <classes/CException.h>
#include <classes/CTime.h>

#include "text/FormatResource.h"

namespace {

__time64_t TimeOfParts(const SYSTEMTIME& st, int dst)
{
    struct tm parts = {};
    parts.tm_year = st.wYear - 1900;
    parts.tm_mon = st.wMonth - 1;
    parts.tm_mday = st.wDay;
    parts.tm_hour = st.wHour;
    parts.tm_min = st.wMinute;
    parts.tm_sec = st.wSecond;
    parts.tm_isdst = dst;
    const bool isDate = st.wYear >= 1900 && st.wMonth >= 1 && st.wMonth <= 12 && st.wDay >= 1 &&
                        st.wDay <= 31 && st.wHour <= 23 && st.wMinute <= 59 && st.wSecond <= 59;
    const __time64_t time = isDate ? _mktime64(&parts) : -1;
    if (time == -1)
        AfxThrowInvalidArgException();
    return time;
}

/// Parts as a SYSTEMTIME; those that do not fit become invalid ones.
SYSTEMTIME PartsOf(int year, int month, int day, int hour, int minute, int second)
{
    const auto fit = [](int part) {
        return static_cast<WORD>(part < 0 ? 0xFFFF : min(part, 0xFFFF));
    };
    SYSTEMTIME st = {};
    st.wYear = fit(year);
    st.wMonth = fit(month);
    st.wDay = fit(day);
    st.wHour = fit(hour);
    st.wMinute = fit(minute);
    st.wSecond = fit(second);
    return st;
}

__time64_t TimeOfFileTime(const FILETIME& ft)
{
    // File times count units of 100 ns from 1601 on, in universal time like ours.
    constexpr LONGLONG unitsOfSecond = 10'000'000;
    constexpr LONGLONG secondsTo1970 = 11'644'473'600;
    const LONGLONG units =
        static_cast<LONGLONG>(static_cast<ULONGLONG>(ft.dwHighDateTime) << 32 | ft.dwLowDateTime);
    if (units / unitsOfSecond < secondsTo1970)
        AfxThrowInvalidArgException();
    return units / unitsOfSecond - secondsTo1970;
}

CString FormatParts(const struct tm* parts, LPCTSTR format)
{
    if (format == NULL || parts == NULL)
        AfxThrowInvalidArgException();
    CString result;
    if (*format == '\0')
        return result;
    // A result of no characters cannot be told from one that did not fit: a mark at the end helps.
    const CString marked = CString(format) + '.';
    for (int room = 128; room <= 128 * 1024; room *= 4) {
        const size_t length = _tcsftime(result.GetBuffer(room), room, marked, parts);
        // Not every C library answers 0 when the result did not fit.
        const bool fits = length != 0 && length < static_cast<size_t>(room);
        result.ReleaseBufferSetLength(fits ? static_cast<int>(length) - 1 : 0);
        if (fits)
            return result;
    }
    AfxThrowInvalidArgException();
}

} // namespace

CTime WINAPI CTime::GetCurrentTime()
{
    return CTime(_time64(NULL));
}

CTime::CTime() : time_(0)
{
}

CTime::CTime(__time64_t time) : time_(time)
{
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
    : CTime(PartsOf(nYear, nMonth, nDay, nHour, nMin, nSec), nDST)
{
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : CTime((wDosDate >> 9) + 1980, (wDosDate >> 5) & 15, wDosDate & 31, wDosTime >> 11,
            (wDosTime >> 5) & 63, (wDosTime & 31) * 2, nDST)
{
}

CTime::CTime(const SYSTEMTIME& st, int nDST) : time_(TimeOfParts(st, nDST))
{
}

CTime::CTime(const FILETIME& ft, int /*nDST*/) : time_(TimeOfFileTime(ft))
{
}

CTime& CTime::operator=(__time64_t time)
{
    time_ = time;
    return *this;
}

CTime& CTime::operator+=(CTimeSpan span)
{
    time_ += span.GetTimeSpan();
    return *this;
}

CTime& CTime::operator-=(CTimeSpan span)
{
    time_ -= span.GetTimeSpan();
    return *this;
}

CTimeSpan CTime::operator-(CTime time) const
{
    return CTimeSpan(time_ - time.time_);
}

CTime CTime::operator-(CTimeSpan span) const
{
    return CTime(time_ - span.GetTimeSpan());
}

CTime CTime::operator+(CTimeSpan span) const
{
    return CTime(time_ + span.GetTimeSpan());
}

bool CTime::operator==(CTime time) const
{
    return time_ == time.time_;
}

bool CTime::operator!=(CTime time) const
{
    return time_ != time.time_;
}

bool CTime::operator<(CTime time) const
{
    return time_ < time.time_;
}

bool CTime::operator>(CTime time) const
{
    return time_ > time.time_;
}

bool CTime::operator<=(CTime time) const
{
    return time_ <= time.time_;
}

bool CTime::operator>=(CTime time) const
{
    return time_ >= time.time_;
}

struct tm* CTime::GetGmtTm(struct tm* ptm) const
{
    const struct tm* parts = ptm == NULL ? NULL : _gmtime64(&time_);
    if (parts == NULL)
        return NULL;
    *ptm = *parts;
    return ptm;
}

struct tm* CTime::GetLocalTm(struct tm* ptm) const
{
    const struct tm* parts = ptm == NULL ? NULL : _localtime64(&time_);
    if (parts == NULL)
        return NULL;
    *ptm = *parts;
    return ptm;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const
{
    struct tm parts;
    if (GetLocalTm(&parts) == NULL)
        return false;
    st = PartsOf(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min,
                 parts.tm_sec);
    st.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    return true;
}

__time64_t CTime::GetTime() const
{
    return time_;
}

int CTime::GetYear() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_year + 1900;
}

int CTime::GetMonth() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_mon + 1;
}

int CTime::GetDay() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_mday;
}

int CTime::GetHour() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? -1 : parts.tm_hour;
}

int CTime::GetMinute() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? -1 : parts.tm_min;
}

int CTime::GetSecond() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? -1 : parts.tm_sec;
}

int CTime::GetDayOfWeek() const
{
    struct tm parts;
    return GetLocalTm(&parts) == NULL ? 0 : parts.tm_wday + 1;
}

CString CTime::Format(LPCTSTR pszFormat) const
{
    struct tm parts;
    return FormatParts(GetLocalTm(&parts), pszFormat);
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const
{
    struct tm parts;
    return FormatParts(GetGmtTm(&parts), pszFormat);
}

CString CTime::Format(UINT nFormatID) const
{
    return Format(afxint::LoadFormat(nFormatID));
}

CString CTime::FormatGmt(UINT nFormatID) const
{
    return FormatGmt(afxint::LoadFormat(nFormatID));
}

CArchive& CTime::Serialize64(CArchive& ar)
{
    return ar.IsStoring() ? ar << static_cast<LONGLONG>(time_) : ar >> time_;
}
