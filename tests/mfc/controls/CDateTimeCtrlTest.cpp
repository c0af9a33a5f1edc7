#include <afxdtctl.h>

#include <doctest/doctest.h>

#include "testing/Input.h"
#include "testing/MessageLog.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/controls/SentMessage.h"

using namespace umbra::testing;

namespace {

struct Picker
{
    ControlHost host;
    CDateTimeCtrl picker;

    explicit Picker(DWORD style = DTS_SHORTDATEFORMAT)
    {
        REQUIRE(picker.Create(shownChild | WS_TABSTOP | style, CRect(10, 10, 210, 34), &host, 60));
    }
};

const CTime someDay(2005, 11, 23, 14, 30, 15);

} // namespace

TEST_CASE("a date picker keeps a date and a time of day")
{
    Picker picker;
    CHECK(picker.picker.SetTime(&someDay));
    CTime read;
    CHECK(picker.picker.GetTime(read) == GDT_VALID);
    CHECK(read == someDay);

    SYSTEMTIME parts = {};
    CHECK(picker.picker.GetTime(&parts) == GDT_VALID);
    CHECK(parts.wYear == 2005);
    CHECK(parts.wMinute == 30);
    parts.wYear = 2010;
    parts.wMonth = 2;
    CHECK(picker.picker.SetTime(&parts));
    CHECK(picker.picker.GetTime(read) == GDT_VALID);
    CHECK(read == CTime(2010, 2, 23, 14, 30, 15));
}

TEST_CASE("a date that CTime cannot hold is an error and changes nothing")
{
    Picker picker;
    SYSTEMTIME parts = {};
    parts.wYear = 1850;
    parts.wMonth = 5;
    parts.wDay = 4;
    REQUIRE(picker.picker.SetTime(&parts));
    CTime unchanged = someDay;
    CHECK(picker.picker.GetTime(unchanged) == (DWORD)GDT_ERROR);
    CHECK(unchanged == someDay);
    const CTime withoutDate(-1);
    CHECK_FALSE(picker.picker.SetTime(&withoutDate));
}

TEST_CASE("a date picker with a box can have no date")
{
    Picker picker(DTS_SHOWNONE);
    CHECK(picker.picker.SetTime());
    CTime unchanged = someDay;
    CHECK(picker.picker.GetTime(unchanged) == GDT_NONE);
    CHECK(unchanged == someDay);
    CHECK(picker.picker.SetTime(&someDay));
    CHECK(picker.picker.GetTime(unchanged) == GDT_VALID);
    CHECK(picker.picker.SetTime((const CTime*)NULL));
    CHECK(picker.picker.GetTime(unchanged) == GDT_NONE);
}

TEST_CASE("a date picker keeps to its range")
{
    Picker picker;
    CTime low = someDay, high = someDay;
    CHECK(picker.picker.GetRange(&low, &high) == 0);
    CHECK(low == CTime());
    CHECK(high == CTime());

    const CTime first(2005, 11, 1, 0, 0, 0), last(2005, 11, 30, 0, 0, 0);
    CHECK(picker.picker.SetRange(&first, &last));
    CHECK(picker.picker.GetRange(&low, &high) == (GDTR_MIN | GDTR_MAX));
    CHECK(low.Format(_T("%Y-%m-%d")) == _T("2005-11-01"));
    CHECK(high.Format(_T("%Y-%m-%d")) == _T("2005-11-30"));
    CHECK(picker.picker.SetTime(&someDay));
    const CTime late(2006, 1, 1, 0, 0, 0);
    picker.picker.SetTime(&late);
    CTime read;
    CHECK(picker.picker.GetTime(read) == GDT_VALID);
    CHECK(read.GetYear() == 2005);

    CHECK(picker.picker.SetRange(&first, NULL));
    CHECK(picker.picker.GetRange(NULL, NULL) == GDTR_MIN);
}

TEST_CASE("a format decides what a date picker shows")
{
    Picker picker;
    picker.picker.SetTime(&someDay);
    CHECK(picker.picker.SetFormat(_T("yyyy'-'MM'-'dd")));
    CString text;
    picker.picker.GetWindowText(text);
    CHECK(text == _T("2005-11-23"));
}

TEST_CASE("keys change the field that has the focus, and the parent hears of it")
{
    Picker picker;
    picker.picker.SetFormat(_T("dd'.'MM'.'yyyy"));
    picker.picker.SetTime(&someDay);
    CRect client;
    picker.picker.GetClientRect(client);
    REQUIRE(Click(picker.picker.m_hWnd, CPoint(8, client.Height() / 2)));
    REQUIRE(PressKey(VK_UP));
    CTime read;
    CHECK(picker.picker.GetTime(read) == GDT_VALID);
    CHECK(read == someDay + CTimeSpan(1, 0, 0, 0));
    CHECK(picker.host.Heard((UINT)DTN_DATETIMECHANGE));
    REQUIRE(PressKey(VK_RIGHT));
    REQUIRE(PressKey(VK_DOWN));
    CHECK(picker.picker.GetTime(read) == GDT_VALID);
    CHECK(read.GetMonth() == 10);
}

TEST_CASE("the calendar of a date picker is there while it is dropped down")
{
    Picker picker;
    const COLORREF former = picker.picker.GetMonthCalColor(MCSC_TITLEBK);
    CHECK(picker.picker.SetMonthCalColor(MCSC_TITLEBK, RGB(1, 2, 3)) == former);
    CHECK(picker.picker.GetMonthCalColor(MCSC_TITLEBK) == RGB(1, 2, 3));
    CFont font;
    REQUIRE(font.CreatePointFont(120, _T("Tahoma")));
    picker.picker.SetMonthCalFont(font);
    CHECK(picker.picker.GetMonthCalFont()->GetSafeHandle() == font.GetSafeHandle());

    picker.picker.SetTime(&someDay);
    CRect client;
    picker.picker.GetClientRect(client);
    REQUIRE(Click(picker.picker.m_hWnd, CPoint(client.right - 6, client.Height() / 2)));
    CHECK(picker.host.Heard((UINT)DTN_DROPDOWN));
    CMonthCalCtrl* calendar = picker.picker.GetMonthCalCtrl();
    REQUIRE(calendar->GetSafeHwnd() != NULL);
    CHECK(calendar->IsWindowVisible());
    CTime shown;
    CHECK(calendar->GetCurSel(shown));
    CHECK(shown.Format(_T("%Y-%m-%d")) == _T("2005-11-23"));
}

TEST_CASE("a date picker is asked for what newer systems know")
{
    Picker picker;
    CDateTimeCtrl& control = picker.picker;
    const MessageLog log(control);
    const UINT first = DTM_FIRST + 11; // The first that the headers leave out for older systems.
    control.SetMonthCalStyle(MCS_WEEKNUMBERS);
    CheckSent(log, first, 0, MCS_WEEKNUMBERS);
    control.GetMonthCalStyle();
    CheckSent(log, first + 1, 0, 0);
    control.CloseMonthCal();
    CheckSent(log, first + 2, 0, 0);
    control.GetDateTimePickerInfo(NULL);
    CheckSent(log, first + 3, 0, 0);
    SIZE size = {};
    control.GetIdealSize(&size);
    CheckSent(log, first + 4, 0, (LPARAM)&size);
}

TEST_CASE("a date picker that cannot be created says so")
{
    CDateTimeCtrl picker;
    CHECK_FALSE(picker.Create(WS_CHILD, CRect(0, 0, 10, 10), NULL, 1)); // A child of nobody.
    CHECK(picker.m_hWnd == NULL);
}
