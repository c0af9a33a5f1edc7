#include <afxdtctl.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

using namespace umbra::testing;

namespace {

struct Calendar
{
    ControlHost host;
    CMonthCalCtrl calendar;

    explicit Calendar(DWORD style = 0)
    {
        REQUIRE(calendar.Create(shownChild | style, CPoint(10, 10), &host, 70));
        const CTime day(2005, 11, 23, 0, 0, 0);
        if ((style & MCS_MULTISELECT) == 0)
            REQUIRE(calendar.SetCurSel(day));
    }
    /// The middle of a day of the month that is shown.
    CPoint PlaceOf(WORD day)
    {
        MCHITTESTINFO hit = {};
        hit.cbSize = MCHITTESTINFO_V1_SIZE;
        CRect client;
        calendar.GetClientRect(client);
        for (hit.pt.y = 0; hit.pt.y < client.bottom; hit.pt.y += 4) {
            for (hit.pt.x = 0; hit.pt.x < client.right; hit.pt.x += 4) {
                if (calendar.HitTest(&hit) == MCHT_CALENDARDATE && hit.st.wDay == day)
                    return CPoint(hit.pt) + CSize(3, 3);
            }
        }
        return CPoint(-1, -1);
    }
};

CString Date(const CTime& time)
{
    return time.Format(_T("%Y-%m-%d"));
}

} // namespace

TEST_CASE("a calendar at a point is as large as a month needs")
{
    Calendar calendar;
    CRect needed, client;
    REQUIRE(calendar.calendar.GetMinReqRect(needed));
    calendar.calendar.GetClientRect(client);
    CHECK(client.Width() >= needed.Width());
    CHECK(client.Height() == needed.Height());
    calendar.calendar.SetWindowPos(NULL, 0, 0, 20, 20, SWP_NOMOVE | SWP_NOZORDER);
    CHECK(calendar.calendar.SizeMinReq());
    CRect again;
    calendar.calendar.GetClientRect(again);
    CHECK(again == client);
    CHECK(calendar.calendar.GetDlgCtrlID() == 70);
}

TEST_CASE("a click selects a day, and the parent hears of it")
{
    Calendar calendar;
    CTime day;
    CHECK(calendar.calendar.GetCurSel(day));
    CHECK(Date(day) == _T("2005-11-23"));
    const CPoint place = calendar.PlaceOf(9);
    REQUIRE(place.x > 0);
    REQUIRE(Click(calendar.calendar.m_hWnd, place));
    CHECK(calendar.calendar.GetCurSel(day));
    CHECK(Date(day) == _T("2005-11-09"));
    CHECK(calendar.host.Heard((UINT)MCN_SELECT));
    CHECK(calendar.host.Heard((UINT)MCN_SELCHANGE));
}

TEST_CASE("a calendar takes and gives the parts of a day")
{
    Calendar calendar;
    SYSTEMTIME parts = {};
    CHECK(calendar.calendar.GetCurSel(&parts));
    CHECK(parts.wDay == 23);
    parts.wYear = 1850;
    REQUIRE(calendar.calendar.SetCurSel(&parts));
    CTime unchanged(1000);
    CHECK_FALSE(calendar.calendar.GetCurSel(unchanged)); // CTime begins with 1970.
    CHECK(unchanged == CTime(1000));
    CHECK_FALSE(calendar.calendar.SetCurSel(CTime(-1)));
}

TEST_CASE("a calendar of several days selects a span")
{
    Calendar calendar(MCS_MULTISELECT);
    CHECK(calendar.calendar.SetMaxSelCount(14));
    CHECK(calendar.calendar.GetMaxSelCount() == 14);
    const CTime first(2005, 11, 7, 0, 0, 0), last(2005, 11, 11, 0, 0, 0);
    CHECK(calendar.calendar.SetSelRange(first, last));
    CTime low, high;
    CHECK(calendar.calendar.GetSelRange(low, high));
    CHECK(Date(low) == _T("2005-11-07"));
    CHECK(Date(high) == _T("2005-11-11"));
    SYSTEMTIME lowParts, highParts;
    CHECK(calendar.calendar.GetSelRange(&lowParts, &highParts));
    CHECK(lowParts.wDay == 7);
    CHECK(highParts.wDay == 11);
    highParts.wDay = 8;
    CHECK(calendar.calendar.SetSelRange(&lowParts, &highParts));
    CHECK(calendar.calendar.GetSelRange(low, high));
    CHECK(Date(high) == _T("2005-11-08"));

    Calendar single;
    CHECK_FALSE(single.calendar.GetSelRange(low, high));
    CHECK_FALSE(single.calendar.SetMaxSelCount(3));
}

TEST_CASE("a calendar keeps to its range")
{
    Calendar calendar;
    CTime low(5), high(5);
    CHECK(calendar.calendar.GetRange(&low, &high) == 0);
    CHECK(low == CTime());
    const CTime first(2005, 11, 5, 0, 0, 0), last(2005, 11, 25, 0, 0, 0);
    CHECK(calendar.calendar.SetRange(&first, &last));
    CHECK(calendar.calendar.GetRange(&low, &high) == (GDTR_MIN | GDTR_MAX));
    CHECK(Date(low) == _T("2005-11-05"));
    CHECK(Date(high) == _T("2005-11-25"));
    CHECK_FALSE(calendar.calendar.SetCurSel(CTime(2005, 12, 24, 0, 0, 0)));
    SYSTEMTIME lowParts, highParts;
    CHECK(calendar.calendar.GetRange(&lowParts, &highParts) == (GDTR_MIN | GDTR_MAX));
    CHECK(highParts.wDay == 25);
    highParts.wDay = 28;
    CHECK(calendar.calendar.SetRange(NULL, &highParts));
    CHECK(calendar.calendar.GetRange(&lowParts, &highParts) == GDTR_MAX);
    CHECK(highParts.wDay == 28);
    CHECK(lowParts.wDay == 0);
}

TEST_CASE("a calendar tells which months it shows")
{
    Calendar calendar;
    CTime low, high;
    CHECK(calendar.calendar.GetMonthRange(low, high, GMR_VISIBLE) == 1);
    CHECK(Date(low) == _T("2005-11-01"));
    CHECK(Date(high) == _T("2005-11-30"));
    CHECK(calendar.calendar.GetMonthRange(low, high, GMR_DAYSTATE) == 3);
    CHECK(low.GetMonth() == 10);
    CHECK(high.GetMonth() == 12);
    calendar.calendar.SetMonthDelta(6);
    CHECK(calendar.calendar.SetMonthDelta(2) == 6);
    CHECK(calendar.calendar.GetMonthDelta() == 2);
}

TEST_CASE("a calendar has a first day of the week, a today and colours")
{
    Calendar calendar;
    calendar.calendar.SetFirstDayOfWeek(2);
    int former = -1;
    CHECK(calendar.calendar.SetFirstDayOfWeek(3, &former));
    CHECK(former == 2);
    BOOL isSet = FALSE;
    CHECK(calendar.calendar.GetFirstDayOfWeek(&isSet) == 3);
    CHECK(isSet);

    const CTime birthday(2001, 2, 3, 0, 0, 0);
    calendar.calendar.SetToday(&birthday);
    SYSTEMTIME today = {};
    CHECK(calendar.calendar.GetToday(&today));
    CHECK(today.wYear == 2001);
    CHECK(today.wDay == 3);
    today.wDay = 4;
    calendar.calendar.SetToday(&today);
    CHECK(calendar.calendar.GetToday(&today));
    CHECK(today.wDay == 4);

    calendar.calendar.SetColor(MCSC_TEXT, RGB(1, 2, 3));
    CHECK(calendar.calendar.SetColor(MCSC_TEXT, RGB(4, 5, 6)) == RGB(1, 2, 3));
    CHECK(calendar.calendar.GetColor(MCSC_TEXT) == RGB(4, 5, 6));
}

TEST_CASE("days of a calendar can be bold")
{
    Calendar calendar(MCS_DAYSTATE);
    MONTHDAYSTATE bold[3] = {0, 1 << 8, 0};
    CHECK(calendar.calendar.SetDayState(3, bold));
    Calendar plain;
    CHECK_FALSE(plain.calendar.SetDayState(3, bold));
}

TEST_CASE("a calendar is asked for what newer systems know")
{
    Calendar calendar;
    CMonthCalCtrl& control = calendar.calendar;
    const MessageLog log(control);
    const UINT view = MCM_FIRST + 22, setView = MCM_FIRST + 32;
    CHECK(control.IsMonthView());
    CheckSent(log, view, 0, 0);
    CHECK_FALSE(control.IsYearView());
    CHECK_FALSE(control.IsDecadeView());
    CHECK_FALSE(control.IsCenturyView());
    control.SetMonthView();
    CheckSent(log, setView, 0, 0);
    control.SetYearView();
    CheckSent(log, setView, 0, 1);
    control.SetDecadeView();
    CheckSent(log, setView, 0, 2);
    control.SetCenturyView();
    CheckSent(log, setView, 0, 3);
    control.GetCalendarCount();
    CheckSent(log, MCM_FIRST + 23, 0, 0);
    control.GetCalendarGridInfo(NULL);
    CheckSent(log, MCM_FIRST + 24, 0, 0);
    control.GetCalID();
    CheckSent(log, MCM_FIRST + 27, 0, 0);
    control.SetCalID(CAL_GREGORIAN);
    CheckSent(log, MCM_FIRST + 28, CAL_GREGORIAN, 0);
    RECT room = {};
    control.SizeRectToMin(&room);
    CheckSent(log, MCM_FIRST + 29, 0, (LPARAM)&room);
    control.SetCalendarBorder(9);
    CheckSent(log, MCM_FIRST + 30, TRUE, 9);
    control.SetCalendarBorderDefault();
    CheckSent(log, MCM_FIRST + 30, FALSE, 0);
    control.GetCalendarBorder();
    CheckSent(log, MCM_FIRST + 31, 0, 0);
}
