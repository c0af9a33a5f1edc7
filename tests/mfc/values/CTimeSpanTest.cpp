#include <atltime.h>

#include <doctest/doctest.h>

#include "tests/mfc/text/CStringTest.h"
#include "tests/mfc/Throws.h"

TEST_CASE("a span is split into days, hours, minutes and seconds")
{
    const CTimeSpan span(3, 4, 5, 6);
    CHECK(span.GetTimeSpan() == ((3 * 24 + 4) * 60 + 5) * 60 + 6);
    CHECK(span.GetDays() == 3);
    CHECK(span.GetHours() == 4);
    CHECK(span.GetMinutes() == 5);
    CHECK(span.GetSeconds() == 6);
    CHECK(span.GetTotalHours() == 76);
    CHECK(span.GetTotalMinutes() == 76 * 60 + 5);
    CHECK(span.GetTotalSeconds() == span.GetTimeSpan());
    CHECK(CTimeSpan().GetTimeSpan() == 0);
    CHECK(CTimeSpan(30000, 0, 0, 0).GetTotalSeconds() == 2592000000LL);
    const CTimeSpan negative(-90);
    CHECK(negative.GetMinutes() == -1);
    CHECK(negative.GetSeconds() == -30);
}

TEST_CASE("spans are added, subtracted and compared")
{
    CTimeSpan span(0, 1, 0, 0);
    span += CTimeSpan(0, 0, 30, 0);
    CHECK(span == CTimeSpan(5400));
    span -= CTimeSpan(0, 1, 0, 0);
    CHECK(span + span == CTimeSpan(3600));
    CHECK(span - span == CTimeSpan());
    CHECK(span != CTimeSpan());
    CHECK(CTimeSpan(1) < CTimeSpan(2));
    CHECK(CTimeSpan(2) > CTimeSpan(1));
    CHECK(CTimeSpan(1) <= CTimeSpan(1));
    CHECK(CTimeSpan(1) >= CTimeSpan(1));
    CHECK_FALSE(CTimeSpan(2) <= CTimeSpan(1));
    CHECK_FALSE(CTimeSpan(1) >= CTimeSpan(2));
}

TEST_CASE("a span is formatted by its parts")
{
    const CTimeSpan span(3, 4, 5, 6);
    CHECK(span.Format(_T("%D|%H|%M|%S|%%")) == _T("3|04|05|06|%"));
    CHECK(span.Format(_T("")) == _T(""));
    CHECK(span.Format(STRING_SPAN) == "3 days, 04:05:06");
    CHECK(Throws<CInvalidArgException>([&] { span.Format(_T("%Y")); }));
    CHECK(Throws<CInvalidArgException>([&] { span.Format(_T("%")); }));
    CHECK(Throws<CResourceException>([&] { span.Format(STRING_MISSING); }));
}
