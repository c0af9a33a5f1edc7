// What CClientDC and CWindowDC promise alike, for their tests.
#pragma once

#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include "testing/GdiObjects.h"

/// A framed window that shows; the test destroys it.
inline HWND CreateFramedWindow()
{
    return ::CreateWindow(_T("STATIC"), _T(""), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 200, 100,
                          NULL, NULL, NULL, NULL);
}

/// A context of the class paints on a part of a window that is as large as getArea says, and goes
/// back to the system with its object.
template <class Context>
void CheckThatItPaints(BOOL(WINAPI* getArea)(HWND, LPRECT))
{
    const HWND handle = CreateFramedWindow();
    umbra::testing::BalancedGdi balance;
    HDC context;
    {
        Context dc(CWnd::FromHandle(handle));
        context = dc;
        CHECK(CDC::FromHandle(context) == &dc);
        CHECK(dc.m_hAttribDC == context);
        REQUIRE(dc.GetWindow() != nullptr);
        CHECK(dc.GetWindow()->m_hWnd == handle);

        CRect area;
        getArea(handle, &area);
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

/// A context of the class without a window is as wide as the screen.
template <class Context>
void CheckThatItIsTheScreens()
{
    Context dc(NULL);
    CRect box;
    dc.GetClipBox(&box);
    CHECK(box.Width() == ::GetSystemMetrics(SM_CXSCREEN));
}

/// There is no context of the class for a window that is gone.
template <class Context>
void CheckThatItNeedsItsWindow()
{
    const HWND handle = CreateFramedWindow();
    ::DestroyWindow(handle);
    CWnd* gone = CWnd::FromHandle(handle);
    CHECK(Throws<CResourceException>([gone] { Context dc(gone); }));
}
