#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include "testing/GdiObjects.h"

using umbra::testing::BalancedGdi;

namespace {

HWND CreatePlainWindow()
{
    return ::CreateWindow(_T("STATIC"), _T(""), WS_POPUP | WS_VISIBLE, 10, 10, 60, 40, NULL, NULL,
                          NULL, NULL);
}

bool NeedsPainting(HWND window)
{
    return ::GetUpdateRect(window, nullptr, FALSE) != FALSE;
}

} // namespace

TEST_CASE("a paint context covers the invalid part and validates it")
{
    const HWND handle = CreatePlainWindow();
    ::UpdateWindow(handle);
    BalancedGdi balance;
    const CRect invalid(10, 5, 30, 20);
    ::InvalidateRect(handle, &invalid, FALSE);
    REQUIRE(NeedsPainting(handle));
    {
        CPaintDC dc(CWnd::FromHandle(handle));
        CHECK(dc.m_ps.hdc == dc.m_hDC);
        CHECK(CRect(dc.m_ps.rcPaint) == invalid);
        CHECK(CDC::FromHandle(dc) == &dc);
        CHECK_FALSE(NeedsPainting(handle));
        dc.FillSolidRect(0, 0, 60, 40, RGB(255, 0, 0));
        CHECK(dc.GetPixel(12, 7) == RGB(255, 0, 0));
        CHECK(dc.GetPixel(2, 2) != RGB(255, 0, 0)); // Not invalid, hence clipped.
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
    ::DestroyWindow(handle);
}

TEST_CASE("a paint context of a window that is gone throws a resource exception")
{
    const HWND handle = CreatePlainWindow();
    ::DestroyWindow(handle);
    CWnd* gone = CWnd::FromHandle(handle);
    CHECK(Throws<CResourceException>([gone] { CPaintDC dc(gone); }));
}
