#include "testing/Pump.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// A window without a sight, for messages only.
class MessageWindow
{
public:
    MessageWindow()
        : window_(
              ::CreateWindowA("Static", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr))
    {
    }
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;
    ~MessageWindow() { ::DestroyWindow(window_); }
    HWND Handle() const { return window_; }

private:
    HWND window_;
};

/// A timer's procedure; the timer's number is the flag's address.
void CALLBACK SetFlag(HWND, UINT, UINT_PTR flag, DWORD)
{
    *reinterpret_cast<bool*>(flag) = true;
}

} // namespace

TEST_CASE("pumping takes every message that waits")
{
    const MessageWindow window;
    PumpMessages();
    for (int i = 0; i < 5; ++i)
        ::PostMessage(window.Handle(), WM_APP, 0, 0);
    CHECK(PumpMessages() >= 5);
    MSG message;
    CHECK_FALSE(::PeekMessage(&message, window.Handle(), WM_APP, WM_APP, PM_NOREMOVE));
}

TEST_CASE("pumping leaves the end of the program in the queue")
{
    PumpMessages();
    ::PostQuitMessage(7);
    PumpMessages();
    MSG message;
    REQUIRE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    CHECK(message.wParam == 7);
}

TEST_CASE("waiting ends when the predicate becomes true")
{
    const MessageWindow window;
    bool hasCome = false;
    ::SetTimer(window.Handle(), reinterpret_cast<UINT_PTR>(&hasCome), 20, SetFlag);
    CHECK(WaitUntil([&] { return hasCome; }));
    ::KillTimer(window.Handle(), reinterpret_cast<UINT_PTR>(&hasCome));
}

TEST_CASE("waiting for what never comes ends when the time is up")
{
    const DWORD start = ::GetTickCount();
    CHECK_FALSE(WaitUntil([] { return false; }, std::chrono::milliseconds(100)));
    const DWORD passed = ::GetTickCount() - start;
    CHECK(passed >= 90);
    CHECK(passed < 5000);
}

namespace {

/// A window's procedure that never paints.
LRESULT CALLBACK NeverValidate(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_PAINT ? 0 : ::DefWindowProcA(window, message, wParam, lParam);
}

} // namespace

TEST_CASE("pumping ends although a window asks for painting for ever")
{
    HWND window = ::CreateWindowA("Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                  nullptr, nullptr, nullptr);
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NeverValidate));
    ::InvalidateRect(window, nullptr, FALSE);
    CHECK(PumpMessages() > 1000);
    ::DestroyWindow(window);
}
