#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Picture.h"
#include "testing/Pump.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct Bar
{
    ControlHost host;
    CProgressCtrl bar;

    explicit Bar(DWORD style = 0)
    {
        REQUIRE(bar.Create(shownChild | style, CRect(10, 10, 210, 30), &host, 70));
    }
};

/// A themed bar has the colours of its theme.
void WithoutTheme(HWND control)
{
    const HMODULE themes = ::LoadLibrary(_T("uxtheme.dll"));
    REQUIRE(themes != NULL);
    typedef HRESULT(WINAPI * SetTheme)(HWND, LPCWSTR, LPCWSTR);
    const auto setTheme = (SetTheme)(INT_PTR)::GetProcAddress(themes, "SetWindowTheme");
    REQUIRE(setTheme != NULL);
    setTheme(control, L" ", L" ");
    ::FreeLibrary(themes);
}

} // namespace

TEST_CASE("a progress bar keeps its range in 16 and in 32 bits")
{
    Bar bar;
    int low = -1, high = -1;
    bar.bar.GetRange(low, high);
    CHECK(low == 0);
    CHECK(high == 100);
    bar.bar.SetRange(10, 200);
    bar.bar.GetRange(low, high);
    CHECK(low == 10);
    CHECK(high == 200);
    bar.bar.SetRange32(-100000, 100000);
    bar.bar.GetRange(low, high);
    CHECK(low == -100000);
    CHECK(high == 100000);
}

TEST_CASE("a progress bar moves to a position, by an amount, and by steps")
{
    Bar bar;
    CHECK(bar.bar.SetPos(20) == 0);
    CHECK(bar.bar.GetPos() == 20);
    CHECK(bar.bar.OffsetPos(15) == 20);
    CHECK(bar.bar.GetPos() == 35);
    CHECK(bar.bar.SetStep(5) == 10);
    CHECK(bar.bar.GetStep() == 5);
    CHECK(bar.bar.StepIt() == 35);
    CHECK(bar.bar.GetPos() == 40);
    bar.bar.SetPos(500);
    CHECK(bar.bar.GetPos() == 100);
}

TEST_CASE("the colours of a progress bar show")
{
    Bar bar(PBS_SMOOTH);
    WithoutTheme(bar.bar.m_hWnd);
    const COLORREF done = RGB(10, 160, 30), open = RGB(240, 220, 10);
    bar.bar.SetBarColor(done);
    bar.bar.SetBkColor(open);
    CHECK(bar.bar.GetBarColor() == done);
    CHECK(bar.bar.GetBkColor() == open);
    bar.bar.SetPos(50);
    bar.bar.UpdateWindow();
    const Picture picture = Picture::OfWindow(bar.bar.m_hWnd);
    CHECK(picture.At(40, 10) == done);
    CHECK(picture.At(160, 10) == open);
}

TEST_CASE("a progress bar without an end runs and stops")
{
    Bar bar(PBS_MARQUEE);
    CHECK(bar.bar.SetMarquee(TRUE, 20));
    bar.bar.SetMarquee(FALSE, 0);
}

TEST_CASE("CreateEx gives a progress bar an extended style")
{
    ControlHost host;
    CProgressCtrl bar;
    REQUIRE(bar.CreateEx(WS_EX_ACCEPTFILES, shownChild, CRect(0, 0, 100, 20), &host, 71));
    CHECK((bar.GetExStyle() & WS_EX_ACCEPTFILES) != 0);
}
