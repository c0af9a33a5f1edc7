#include <classes/CException.h>
#include <classes/CTimeSpan.h>

#include "text/FormatResource.h"

namespace {

constexpr LONGLONG secondsOfMinute = 60;
constexpr LONGLONG secondsOfHour = 60 * secondsOfMinute;
constexpr LONGLONG secondsOfDay = 24 * secondsOfHour;

} // namespace

CTimeSpan::CTimeSpan() : m_timeSpan(0)
{
}

CTimeSpan::CTimeSpan(__time64_t time) : m_timeSpan(time)
{
}

CTimeSpan::CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
    : m_timeSpan(lDays * secondsOfDay + nHours * secondsOfHour + nMins * secondsOfMinute + nSecs)
{
}

LONGLONG CTimeSpan::GetDays() const
{
    return m_timeSpan / secondsOfDay;
}

LONGLONG CTimeSpan::GetTotalHours() const
{
    return m_timeSpan / secondsOfHour;
}

LONG CTimeSpan::GetHours() const
{
    return static_cast<LONG>(GetTotalHours() % 24);
}

LONGLONG CTimeSpan::GetTotalMinutes() const
{
    return m_timeSpan / secondsOfMinute;
}

LONG CTimeSpan::GetMinutes() const
{
    return static_cast<LONG>(GetTotalMinutes() % 60);
}

LONGLONG CTimeSpan::GetTotalSeconds() const
{
    return m_timeSpan;
}

LONG CTimeSpan::GetSeconds() const
{
    return static_cast<LONG>(m_timeSpan % 60);
}

__time64_t CTimeSpan::GetTimeSpan() const
{
    return m_timeSpan;
}

CTimeSpan CTimeSpan::operator+(CTimeSpan span) const
{
    return CTimeSpan(m_timeSpan + span.m_timeSpan);
}

CTimeSpan CTimeSpan::operator-(CTimeSpan span) const
{
    return CTimeSpan(m_timeSpan - span.m_timeSpan);
}

CTimeSpan& CTimeSpan::operator+=(CTimeSpan span)
{
    m_timeSpan += span.m_timeSpan;
    return *this;
}

CTimeSpan& CTimeSpan::operator-=(CTimeSpan span)
{
    m_timeSpan -= span.m_timeSpan;
    return *this;
}

bool CTimeSpan::operator==(CTimeSpan span) const
{
    return m_timeSpan == span.m_timeSpan;
}

bool CTimeSpan::operator!=(CTimeSpan span) const
{
    return m_timeSpan != span.m_timeSpan;
}

bool CTimeSpan::operator<(CTimeSpan span) const
{
    return m_timeSpan < span.m_timeSpan;
}

bool CTimeSpan::operator>(CTimeSpan span) const
{
    return m_timeSpan > span.m_timeSpan;
}

bool CTimeSpan::operator<=(CTimeSpan span) const
{
    return m_timeSpan <= span.m_timeSpan;
}

bool CTimeSpan::operator>=(CTimeSpan span) const
{
    return m_timeSpan >= span.m_timeSpan;
}

CString CTimeSpan::Format(LPCTSTR pFormat) const
{
    if (pFormat == nullptr)
        AfxThrowInvalidArgException();
    CString text;
    for (LPCTSTR p = pFormat; *p != '\0'; ++p) {
        if (*p != '%') {
            text += *p;
            continue;
        }
        switch (*++p) {
        case '%':
            text += '%';
            break;
        case 'D':
            text.AppendFormat("%I64d", GetDays());
            break;
        case 'H':
            text.AppendFormat("%02ld", GetHours());
            break;
        case 'M':
            text.AppendFormat("%02ld", GetMinutes());
            break;
        case 'S':
            text.AppendFormat("%02ld", GetSeconds());
            break;
        default:
            AfxThrowInvalidArgException();
        }
    }
    return text;
}

CString CTimeSpan::Format(UINT nID) const
{
    return Format(afxint::LoadFormat(nID));
}
