#include <classes/CArchive.h>
#include <classes/CException.h>
#include <classes/CTimeSpan.h>

#include "text/FormatResource.h"

namespace {

constexpr LONGLONG secondsOfMinute = 60;
constexpr LONGLONG secondsOfHour = 60 * secondsOfMinute;
constexpr LONGLONG secondsOfDay = 24 * secondsOfHour;

} // namespace

CTimeSpan::CTimeSpan() : span_(0)
{
}

CTimeSpan::CTimeSpan(__time64_t time) : span_(time)
{
}

CTimeSpan::CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
    : span_(lDays * secondsOfDay + nHours * secondsOfHour + nMins * secondsOfMinute + nSecs)
{
}

LONGLONG CTimeSpan::GetDays() const
{
    return span_ / secondsOfDay;
}

LONGLONG CTimeSpan::GetTotalHours() const
{
    return span_ / secondsOfHour;
}

LONG CTimeSpan::GetHours() const
{
    return static_cast<LONG>(GetTotalHours() % 24);
}

LONGLONG CTimeSpan::GetTotalMinutes() const
{
    return span_ / secondsOfMinute;
}

LONG CTimeSpan::GetMinutes() const
{
    return static_cast<LONG>(GetTotalMinutes() % 60);
}

LONGLONG CTimeSpan::GetTotalSeconds() const
{
    return span_;
}

LONG CTimeSpan::GetSeconds() const
{
    return static_cast<LONG>(span_ % 60);
}

__time64_t CTimeSpan::GetTimeSpan() const
{
    return span_;
}

CTimeSpan CTimeSpan::operator+(CTimeSpan span) const
{
    return CTimeSpan(span_ + span.span_);
}

CTimeSpan CTimeSpan::operator-(CTimeSpan span) const
{
    return CTimeSpan(span_ - span.span_);
}

CTimeSpan& CTimeSpan::operator+=(CTimeSpan span)
{
    span_ += span.span_;
    return *this;
}

CTimeSpan& CTimeSpan::operator-=(CTimeSpan span)
{
    span_ -= span.span_;
    return *this;
}

bool CTimeSpan::operator==(CTimeSpan span) const
{
    return span_ == span.span_;
}

bool CTimeSpan::operator!=(CTimeSpan span) const
{
    return span_ != span.span_;
}

bool CTimeSpan::operator<(CTimeSpan span) const
{
    return span_ < span.span_;
}

bool CTimeSpan::operator>(CTimeSpan span) const
{
    return span_ > span.span_;
}

bool CTimeSpan::operator<=(CTimeSpan span) const
{
    return span_ <= span.span_;
}

bool CTimeSpan::operator>=(CTimeSpan span) const
{
    return span_ >= span.span_;
}

CString CTimeSpan::Format(LPCTSTR pFormat) const
{
    if (pFormat == NULL)
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
            text.AppendFormat(_T("%I64d"), GetDays());
            break;
        case 'H':
            text.AppendFormat(_T("%02ld"), GetHours());
            break;
        case 'M':
            text.AppendFormat(_T("%02ld"), GetMinutes());
            break;
        case 'S':
            text.AppendFormat(_T("%02ld"), GetSeconds());
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

CArchive& CTimeSpan::Serialize64(CArchive& ar)
{
    return ar.IsStoring() ? ar << static_cast<LONGLONG>(span_) : ar >> span_;
}
