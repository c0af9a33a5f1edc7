#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/ResourceFailure.h"

#include "testing/GdiObjects.h"

using umbra::testing::BalancedGdi;

namespace {

HWND CreateFramedWindow()
{
    return ::CreateWindow("STATIC", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 200, 100, NULL,
                          NULL, NULL, NULL);
}

} // namespace

TEST_CASE("a window context paints on the whole window and goes back with its object")
{
    const HWND handle = CreateFramedWindow();
    BalancedGdi balance;
    HDC context;
    {
        CWindowDC dc(CWnd::FromHandle(handle));
        context = dc;
        CHECK(CDC::FromHandle(context) == &dc);
        CHECK(dc.m_hAttribDC == context);
        REQUIRE(dc.GetWindow() != nullptr);
        CHECK(dc.GetWindow()->m_hWnd == handle);

        CRect area;
        ::GetWindowRect(handle, &area);
        CRect box;
        dc.GetClipBox(&box);
        CHECK(box.Size() == area.Size());
        dc.FillSolidRect(5, 5, 3, 3, RGB(255, 0, 0));
        CHECK(dc.GetPixel(6, 6) == RGB(255, 0, 0));
    }
    CHECK(::WindowFromDC(context) == nullptr);
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
    ::DestroyWindow(handle);
}

TEST_CASE("a window context without a window is the screen's")
{
    CWindowDC dc(nullptr);
    CRect box;
    dc.GetClipBox(&box);
    CHECK(box.Width() == ::GetSystemMetrics(SM_CXSCREEN));
}

TEST_CASE("a window context of a window that is gone throws a resource exception")
{
    const HWND handle = CreateFramedWindow();
    ::DestroyWindow(handle);
    CWnd* gone = CWnd::FromHandle(handle);
    CHECK(ThrowsResourceException([gone] { CWindowDC dc(gone); }));
}
