// Looks inside the class library: how long temporary objects live.
#include "mfc/src/threads/ThreadState.h"

#include <afxwin.h>

#include <doctest/doctest.h>

using afxint::CurrentThread;

namespace {

/// A window whose handler does what a test wants.
class Acting : public CWnd
{
public:
    void (*m_act)() = nullptr;
    Acting() { CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 10, 10, NULL, NULL); }
    ~Acting() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP + 1)
            m_act();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

size_t CountTemporaryWindows()
{
    return CurrentThread().windows.CountTemporaries();
}

} // namespace

TEST_CASE("temporary objects made outside of handlers are gone after the next idle time")
{
    CWnd::FromHandle(::GetDesktopWindow());
    CDC::FromHandle(::CreateCompatibleDC(NULL));
    REQUIRE(CountTemporaryWindows() > 0);
    REQUIRE(CurrentThread().dcs.CountTemporaries() > 0);
    afxint::DropTemporaryObjects();
    CHECK(CountTemporaryWindows() == 0);
    CHECK(CurrentThread().dcs.CountTemporaries() == 0);
}

TEST_CASE("a temporary object outlives the idle times of a loop that its own handler runs")
{
    afxint::DropTemporaryObjects();
    Acting window;
    window.m_act = [] {
        CWnd* desktop = CWnd::FromHandle(::GetDesktopWindow());
        afxint::DropTemporaryObjects(); // As the loop of a modal dialog does.
        CHECK(CWnd::FromHandle(::GetDesktopWindow()) == desktop);
        CHECK(CountTemporaryWindows() == 1);
    };
    window.SendMessage(WM_APP + 1);
    afxint::DropTemporaryObjects();
    CHECK(CountTemporaryWindows() == 0);
}

TEST_CASE("a temporary object belongs to the outermost handler that asked for it")
{
    afxint::DropTemporaryObjects();
    static Acting* inner;
    Acting window, nested;
    inner = &nested;
    nested.m_act = [] { CWnd::FromHandle(::GetDesktopWindow()); };
    window.m_act = [] {
        inner->SendMessage(WM_APP + 1);
        CWnd* desktop = CWnd::FromHandle(::GetDesktopWindow());
        afxint::DropTemporaryObjects(); // As the loop of a modal dialog does.
        CHECK(CountTemporaryWindows() == 1);
        CHECK(CWnd::FromHandle(::GetDesktopWindow()) == desktop);
    };
    window.SendMessage(WM_APP + 1);
    CWnd* desktop = CWnd::FromHandle(::GetDesktopWindow());
    window.m_act = [] { CWnd::FromHandle(::GetDesktopWindow()); };
    window.SendMessage(WM_APP + 1);
    CHECK(CWnd::FromHandle(::GetDesktopWindow()) == desktop);
}

TEST_CASE("what a nested handler made is gone after the idle time of the loop around it")
{
    afxint::DropTemporaryObjects();
    static Acting* inner;
    Acting window, nested;
    inner = &nested;
    nested.m_act = [] { CWnd::FromHandle(::GetDesktopWindow()); };
    window.m_act = [] {
        inner->SendMessage(WM_APP + 1);
        CHECK(CountTemporaryWindows() == 1);
        afxint::DropTemporaryObjects();
        CHECK(CountTemporaryWindows() == 0);
    };
    window.SendMessage(WM_APP + 1);
}
