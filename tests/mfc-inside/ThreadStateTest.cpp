// Looks inside the class library: how long temporary objects live.
#include "mfc/src/threads/ThreadState.h"

#include <afxcmn.h>

#include <doctest/doctest.h>

#include <vector>

using afxint::CurrentThread;

namespace {

constexpr UINT askNow = WM_APP + 1;

/// A window whose handler does what a test wants.
class Acting : public CWnd
{
public:
    void (*m_act)() = nullptr;
    Acting() { CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 10, 10, NULL, NULL); }
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

TEST_CASE("DeleteTempMap takes all that no running handler holds, of each kind alike")
{
    afxint::DropTemporaryObjects();
    const auto count = [] {
        const auto& state = CurrentThread();
        return std::vector<size_t>{state.windows.CountTemporaries(),
                                   state.gdiObjects.CountTemporaries(),
                                   state.dcs.CountTemporaries(), state.menus.CountTemporaries(),
                                   state.imageLists.CountTemporaries()};
    };
    static const HDC dc = ::CreateCompatibleDC(NULL);
    static const HMENU menu = ::CreateMenu();
    static const HIMAGELIST images = ::ImageList_Create(4, 4, ILC_COLOR, 1, 1);
    static const auto make = [] {
        CWnd::FromHandle(::GetDesktopWindow());
        CGdiObject::FromHandle(::GetStockObject(WHITE_BRUSH));
        CDC::FromHandle(dc);
        CMenu::FromHandle(menu);
        CImageList::FromHandle(images);
    };
    static const auto drop = [] {
        CWnd::DeleteTempMap();
        CGdiObject::DeleteTempMap();
        CDC::DeleteTempMap();
        CMenu::DeleteTempMap();
        CImageList::DeleteTempMap();
    };
    const std::vector<size_t> none(5, 0);
    const std::vector<size_t> one(5, 1);
    make();
    CHECK(count() == one);
    drop();
    CHECK(count() == none);

    Acting window;
    afxint::DropTemporaryObjects();
    window.m_act = [] {
        make();
        drop();
    };
    window.SendMessage(WM_APP + 1);
    CHECK(count() == one); // The handler ran.
    drop();
    CHECK(count() == none);
    ::ImageList_Destroy(images);
    ::DestroyMenu(menu);
    ::DeleteDC(dc);
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

TEST_CASE("temporary objects are gone after the idle time")
{
    CWinThread* thread = AfxGetThread();
    const HWND strange =
        ::CreateWindow(_T("Static"), _T(""), WS_POPUP, 0, 0, 10, 10, NULL, NULL, NULL, NULL);
    struct CProbe : CWnd
    {
        CWnd* m_pSeen = nullptr;
        HWND m_hStrange = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == askNow)
                m_pSeen = CWnd::FromHandle(m_hStrange);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } probe;
    REQUIRE(probe.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    probe.m_hStrange = strange;
    probe.SendMessage(askNow);
    REQUIRE(probe.m_pSeen != nullptr);
    CHECK(probe.m_pSeen->m_hWnd == strange);
    CHECK(CWnd::FromHandlePermanent(strange) == nullptr);
    CHECK(thread->OnIdle(0));
    CHECK(afxint::CurrentThread().windows.CountTemporaries() > 0);
    CHECK_FALSE(thread->OnIdle(1));
    CHECK(afxint::CurrentThread().windows.CountTemporaries() == 0);
    CHECK(::IsWindow(strange)); // The object goes, not its window.
    ::DestroyWindow(strange);
}
