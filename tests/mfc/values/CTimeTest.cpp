#include <atltime.h>

#include <doctest/doctest.h>

#include "tests/mfc/text/CStringTest.h"
#include "tests/mfc/Throws.h"

namespace {

constexpr __time64_t leapDay = 1709210096; // 2024-02-29 12:34:56 in universal time.

bool ThrowsInvalidArg(auto action)
{
    return Throws<CInvalidArgException>(action);
}

} // namespace

TEST_CASE("a time made of parts gives the parts back")
{
    const CTime time(2024, 2, 29, 12, 34, 56);
    CHECK(time.GetYear() == 2024);
    CHECK(time.GetMonth() == 2);
    CHECK(time.GetDay() == 29);
    CHECK(time.GetHour() == 12);
    CHECK(time.GetMinute() == 34);
    CHECK(time.GetSecond() == 56);
    CHECK(time.GetDayOfWeek() == 5);
    CHECK(CTime(2024, 3, 3, 0, 0, 0).GetDayOfWeek() == 1);
}

TEST_CASE("parts that make no time throw")
{
    CHECK(ThrowsInvalidArg([] { CTime(1899, 1, 1, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(1960, 1, 1, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 0, 1, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 13, 1, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 1, 0, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 1, 32, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 1, 1, 24, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 1, 1, 0, 60, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, 1, 1, 0, 0, 60); }));
    CHECK(ThrowsInvalidArg([] { CTime(2024, -1, 1, 0, 0, 0); }));
    CHECK(ThrowsInvalidArg([] { CTime(FILETIME{0, 0}); }));
}

TEST_CASE("a time is split in universal time as well")
{
    struct tm parts;
    REQUIRE(CTime(leapDay).GetGmtTm(&parts) == &parts);
    CHECK(parts.tm_year == 124);
    CHECK(parts.tm_mon == 1);
    CHECK(parts.tm_mday == 29);
    CHECK(parts.tm_hour == 12);
    CHECK(parts.tm_min == 34);
    CHECK(parts.tm_sec == 56);
    REQUIRE(CTime(leapDay).GetLocalTm(&parts) == &parts);
    CHECK(_mktime64(&parts) == leapDay);
    CHECK(CTime(leapDay).GetLocalTm(NULL) == NULL);
    CHECK(CTime(static_cast<__time64_t>(-5)).GetLocalTm(&parts) == NULL);
}

TEST_CASE("times of the system and of files convert")
{
    const CTime time(2024, 2, 29, 12, 34, 56);
    SYSTEMTIME system = {};
    REQUIRE(time.GetAsSystemTime(system));
    CHECK(system.wYear == 2024);
    CHECK(system.wMonth == 2);
    CHECK(system.wDay == 29);
    CHECK(system.wHour == 12);
    CHECK(system.wMinute == 34);
    CHECK(system.wSecond == 56);
    CHECK(system.wDayOfWeek == 4);
    CHECK(CTime(system) == time);

    const SYSTEMTIME universal = {2024, 2, 4, 29, 12, 34, 56, 999};
    FILETIME file = {};
    REQUIRE(::SystemTimeToFileTime(&universal, &file));
    CHECK(CTime(file).GetTime() == leapDay);

    const WORD date = (2024 - 1980) << 9 | 2 << 5 | 29;
    const WORD clock = 12 << 11 | 34 << 5 | 56 / 2;
    CHECK(CTime(date, clock) == time);
}

TEST_CASE("times are moved by spans and compared")
{
    CTime time(1000);
    time += CTimeSpan(60);
    CHECK(time == CTime(1060));
    time -= CTimeSpan(1060);
    CHECK(time == CTime());
    time = 5000;
    CHECK(time.GetTime() == 5000);
    CHECK(time + CTimeSpan(1) == CTime(5001));
    CHECK(time - CTimeSpan(1) == CTime(4999));
    CHECK(CTime(7) - CTime(9) == CTimeSpan(-2));
    CHECK(CTime(1) != CTime(2));
    CHECK(CTime(1) < CTime(2));
    CHECK(CTime(2) > CTime(1));
    CHECK(CTime(1) <= CTime(1));
    CHECK(CTime(1) >= CTime(1));
    CHECK_FALSE(CTime(2) <= CTime(1));
    CHECK_FALSE(CTime(1) >= CTime(2));
    CHECK(CTime(2024, 3, 1, 0, 0, 0) - CTime(2024, 2, 28, 0, 0, 0) == CTimeSpan(2, 0, 0, 0));
}

TEST_CASE("the current time is the clock's")
{
    const __time64_t before = _time64(NULL);
    const CTime now = CTime::GetCurrentTime();
    CHECK(now.GetTime() >= before);
    CHECK(now.GetTime() <= _time64(NULL));
}

TEST_CASE("a time is formatted locally and universally")
{
    const CTime time(2024, 2, 29, 12, 34, 56);
    CHECK(time.Format(_T("%Y-%m-%d %H:%M:%S %%")) == _T("2024-02-29 12:34:56 %"));
    CHECK(time.Format(_T("%A %B")) == _T("Thursday February"));
    CHECK(time.Format(_T("")) == _T(""));
    CHECK(time.Format(_T("no parts")) == _T("no parts"));
    CHECK(time.Format(CString('x', 1000) + "%d").GetLength() == 1002);
    CHECK(time.Format(STRING_DATE) == "2024-02-29");
    CHECK(CTime(leapDay).FormatGmt(_T("%H:%M:%S")) == _T("12:34:56"));
    CHECK(CTime(leapDay).FormatGmt(STRING_DATE) == "2024-02-29");
    CHECK(ThrowsInvalidArg([&] { time.Format(static_cast<LPCTSTR>(NULL)); }));
    CHECK(Throws<CResourceException>([&] { time.Format(STRING_MISSING); }));
}
