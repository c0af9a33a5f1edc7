#include "testing/MessageLog.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// A plain window, hidden.
HWND MakeWindow()
{
    return ::CreateWindowA("Static", "text", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                           nullptr);
}

} // namespace

TEST_CASE("messages are recorded with parameters, results and order")
{
    HWND window = MakeWindow();
    MessageLog log(window);
    ::SendMessageA(window, WM_GETTEXTLENGTH, 0, 0);
    ::SendMessageA(window, WM_APP + 3, 11, -12);
    REQUIRE(log.Entries().size() == 2);
    CHECK(log.Entries()[0].message == WM_GETTEXTLENGTH);
    CHECK(log.Entries()[0].result == 4);
    CHECK(log.Last(WM_APP + 3)->wParam == 11);
    CHECK(log.Last(WM_APP + 3)->lParam == -12);
    CHECK(log.Names() == "WM_GETTEXTLENGTH WM_APP+3");
    CHECK(log.Count(WM_PAINT) == 0);
    CHECK(log.Last(WM_PAINT) == nullptr);
    log.Clear();
    CHECK(log.Entries().empty());
    ::DestroyWindow(window);
}

TEST_CASE("messages that a message sends are nested in it")
{
    HWND window = MakeWindow();
    MessageLog log(window);
    ::ShowWindow(window, SW_SHOWNA);
    ::SetWindowPos(window, nullptr, 5, 5, 20, 20, SWP_NOZORDER | SWP_NOACTIVATE);
    REQUIRE(log.Contains(WM_SIZE));
    CHECK(log.Last(WM_WINDOWPOSCHANGED)->depth == 0);
    CHECK(log.Last(WM_SIZE)->depth == 1); // The default procedure sends it.
    ::DestroyWindow(window);
}

TEST_CASE("a log sees the window's last message and survives the window")
{
    HWND window = MakeWindow();
    MessageLog log(window);
    ::DestroyWindow(window);
    CHECK(log.Contains(WM_DESTROY));
    CHECK(log.Contains(WM_NCDESTROY));
}

TEST_CASE("a window is as before when the log has ended")
{
    HWND window = MakeWindow();
    const LONG_PTR procedure = ::GetWindowLongPtrA(window, GWLP_WNDPROC);
    {
        const MessageLog log(window);
        CHECK(::GetWindowLongPtrA(window, GWLP_WNDPROC) != procedure);
    }
    CHECK(::GetWindowLongPtrA(window, GWLP_WNDPROC) == procedure);
    CHECK(::SendMessageA(window, WM_GETTEXTLENGTH, 0, 0) == 4);
    ::DestroyWindow(window);
}

TEST_CASE("messages have names")
{
    CHECK(MessageName(WM_PAINT) == "WM_PAINT");
    CHECK(MessageName(WM_MOUSELEAVE) == "WM_MOUSELEAVE");
    CHECK(MessageName(WM_USER) == "WM_USER");
    CHECK(MessageName(WM_APP + 200) == "WM_APP+200");
    CHECK(MessageName(0x3FF) == "0x03FF");
    CHECK(MessageName(::RegisterWindowMessageA("umbra test")) == "registered 'umbra test'");
}
