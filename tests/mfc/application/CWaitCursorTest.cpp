#include <afxwin.h>

#include <doctest/doctest.h>

namespace {

HCURSOR Hourglass()
{
    return ::LoadCursor(NULL, IDC_WAIT);
}

/// Starts from a known cursor and leaves it behind.
struct StartWithHand
{
    HCURSOR hand = ::LoadCursor(NULL, IDC_HAND);
    StartWithHand() { ::SetCursor(hand); }
    ~StartWithHand() { ::SetCursor(::LoadCursor(NULL, IDC_ARROW)); }
};

} // namespace

TEST_CASE("the hourglass shows as long as the object lives")
{
    const StartWithHand start;
    {
        CWaitCursor wait;
        CHECK(::GetCursor() == Hourglass());
    }
    CHECK(::GetCursor() == start.hand);
}

TEST_CASE("only the outermost end brings the former cursor back")
{
    const StartWithHand start;
    AfxGetApp()->DoWaitCursor(1);
    AfxGetApp()->DoWaitCursor(1);
    AfxGetApp()->DoWaitCursor(-1);
    CHECK(::GetCursor() == Hourglass());
    AfxGetApp()->DoWaitCursor(-1);
    CHECK(::GetCursor() == start.hand);
}

TEST_CASE("Restore shows the hourglass again and changes no count")
{
    const StartWithHand start;
    {
        CWaitCursor wait;
        ::SetCursor(::LoadCursor(NULL, IDC_ARROW));
        wait.Restore();
        CHECK(::GetCursor() == Hourglass());
    }
    CHECK(::GetCursor() == start.hand);
}

TEST_CASE("without a wait, Restore and one end too many change nothing")
{
    const StartWithHand start;
    const HCURSOR cross = ::LoadCursor(NULL, IDC_CROSS); // Never the one before a wait.
    ::SetCursor(cross);
    AfxGetApp()->DoWaitCursor(0);
    CHECK(::GetCursor() == cross);
    AfxGetApp()->DoWaitCursor(-1);
    CHECK(::GetCursor() == cross);
    {
        CWaitCursor wait;
        CHECK(::GetCursor() == Hourglass());
    }
    CHECK(::GetCursor() == cross);
}

TEST_CASE("windows and the application share one count")
{
    const StartWithHand start;
    CWnd window;
    window.BeginWaitCursor();
    CHECK(::GetCursor() == Hourglass());
    AfxGetApp()->BeginWaitCursor();
    window.EndWaitCursor();
    CHECK(::GetCursor() == Hourglass());
    ::SetCursor(start.hand);
    window.RestoreWaitCursor();
    CHECK(::GetCursor() == Hourglass());
    AfxGetApp()->EndWaitCursor();
    CHECK(::GetCursor() == start.hand);
}
