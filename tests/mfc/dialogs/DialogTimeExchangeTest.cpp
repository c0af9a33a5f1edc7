// The exchange with date and month controls.
#include <afxdtctl.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"
#include "testing/NextDialog.h"

#include "tests/mfc/MessageBoxText.h"

#include <functional>

using namespace umbra::testing;

namespace {

enum { date = 100, month };

const CTime someDay(2005, 11, 23, 0, 0, 0);

/// A page with both controls, whose exchange is what the test says.
class CTimeDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange = [](CDataExchange*) {};

    CTimeDialog()
    {
        DialogTemplate page(0, 0, 200, 200, DialogTemplate::popup | WS_VISIBLE);
        page.Add(DATETIMEPICK_CLASS, date, _T(""), 5, 5, 80, 14,
                 DialogTemplate::tabStop | DTS_SHORTDATEFORMAT | DTS_SHOWNONE)
            .Add(MONTHCAL_CLASS, month, _T(""), 5, 25, 150, 120);
        REQUIRE(CreateIndirect(page.Get()));
        Load([](CDataExchange* dx) {
            CTime day = someDay;
            DDX_DateTimeCtrl(dx, date, day);
            DDX_MonthCalCtrl(dx, month, day);
        });
    }
    ~CTimeDialog() override { DestroyWindow(); }

    BOOL Save(std::function<void(CDataExchange*)> steps)
    {
        exchange = std::move(steps);
        return UpdateData(TRUE);
    }
    BOOL Load(std::function<void(CDataExchange*)> steps)
    {
        exchange = std::move(steps);
        return UpdateData(FALSE);
    }
    CDateTimeCtrl& Picker() { return *(CDateTimeCtrl*)GetDlgItem(date); }
    CMonthCalCtrl& Calendar() { return *(CMonthCalCtrl*)GetDlgItem(month); }

protected:
    void DoDataExchange(CDataExchange* pDX) override { exchange(pDX); }
};

} // namespace

TEST_CASE("a CTime goes to a date control and comes from it")
{
    CTimeDialog dialog;
    CTime day;
    CHECK(dialog.Picker().GetTime(day) == GDT_VALID);
    CHECK(day == someDay);
    const CTime other(2011, 3, 4, 5, 6, 7);
    dialog.Picker().SetTime(&other);
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_DateTimeCtrl(dx, date, day); }));
    CHECK(day == other);
    dialog.Picker().SetTime();
    day = someDay;
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_DateTimeCtrl(dx, date, day); }));
    CHECK(day == someDay); // No date, no change.
}

TEST_CASE("a text goes to a date control and comes as it is shown")
{
    CTimeDialog dialog;
    CString text;
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_DateTimeCtrl(dx, date, text); }));
    CString shown;
    dialog.Picker().GetWindowText(shown);
    CHECK(text == shown);
    CHECK(text.Find(_T("2005")) >= 0);

    CHECK(dialog.Load([&](CDataExchange* dx) {
        CString other = _T("2011-03-04");
        DDX_DateTimeCtrl(dx, date, other);
    }));
    CTime day;
    CHECK(dialog.Picker().GetTime(day) == GDT_VALID);
    CHECK(day == CTime(2011, 3, 4, 0, 0, 0));
    CHECK(dialog.Load([&](CDataExchange* dx) {
        CString noDate = _T("never");
        DDX_DateTimeCtrl(dx, date, noDate);
    }));
    CHECK(dialog.Picker().GetTime(day) == GDT_NONE);
}

TEST_CASE("a CTime goes to a calendar and comes from it")
{
    CTimeDialog dialog;
    CTime day;
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_MonthCalCtrl(dx, month, day); }));
    CHECK(day.Format(_T("%Y-%m-%d")) == _T("2005-11-23"));
    dialog.Calendar().SetCurSel(CTime(2011, 3, 4, 0, 0, 0));
    CHECK(dialog.Save([&](CDataExchange* dx) { DDX_MonthCalCtrl(dx, month, day); }));
    CHECK(day.Format(_T("%Y-%m-%d")) == _T("2011-03-04"));
}

TEST_CASE("the limits of a date go to its control")
{
    CTimeDialog dialog;
    const CTime first(2005, 11, 1, 0, 0, 0), last(2005, 11, 30, 0, 0, 0);
    CHECK(dialog.Load([&](CDataExchange* dx) {
        CTime day = someDay;
        DDX_DateTimeCtrl(dx, date, day);
        DDV_MinMaxDateTime(dx, day, &first, NULL);
        DDX_MonthCalCtrl(dx, month, day);
        DDV_MinMaxMonth(dx, day, &first, &last);
    }));
    CTime low, high;
    CHECK(dialog.Picker().GetRange(&low, &high) == GDTR_MIN);
    CHECK(low.Format(_T("%Y-%m-%d")) == _T("2005-11-01"));
    CHECK(dialog.Calendar().GetRange(&low, &high) == (GDTR_MIN | GDTR_MAX));
    CHECK(high.Format(_T("%Y-%m-%d")) == _T("2005-11-30"));
}

TEST_CASE("a date out of its limits is refused, and its control gets the focus")
{
    CTimeDialog dialog;
    const CTime before(2005, 11, 22, 0, 0, 0), after(2005, 11, 24, 0, 0, 0);
    const auto refusal = [&](std::function<void(CDataExchange*)> steps) {
        CString text;
        NextDialog answer([&](HWND box) {
            text = MessageBoxText(box);
            ::PostMessage(box, WM_COMMAND, IDOK, 0);
        });
        CHECK_FALSE(dialog.Save(std::move(steps)));
        CHECK(answer.HasRun());
        return text;
    };
    CString expected;
    REQUIRE(expected.LoadString(AFX_IDP_PARSE_DATETIME));
    CTime day;
    CHECK(refusal([&](CDataExchange* dx) {
              DDX_DateTimeCtrl(dx, date, day);
              DDV_MinMaxDateTime(dx, day, &after, NULL);
          }) == expected);
    CHECK(::GetFocus() == dialog.Picker().m_hWnd);
    CHECK(refusal([&](CDataExchange* dx) {
              DDX_MonthCalCtrl(dx, month, day);
              DDV_MinMaxMonth(dx, day, NULL, &before);
          }) == expected);
    CHECK(::GetFocus() == dialog.Calendar().m_hWnd);
    CHECK(dialog.Save([&](CDataExchange* dx) {
        DDX_MonthCalCtrl(dx, month, day);
        DDV_MinMaxMonth(dx, day, &before, &after);
    }));
}
