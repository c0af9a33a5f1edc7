#include "testing/CallFault.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// Calls of their own each time: the compiler may read an import's address once in a function and
/// keep it for the calls that follow there.
DECLSPEC_NOINLINE HDC MakeDc()
{
    return ::CreateCompatibleDC(nullptr);
}
/// The same for a function with an argument.
DECLSPEC_NOINLINE int Metric(int index)
{
    return ::GetSystemMetrics(index);
}

/// The module whose calls are caught.
HMODULE ThisModule()
{
    return ModuleOf(reinterpret_cast<const void*>(reinterpret_cast<ULONG_PTR>(&ThisModule)));
}

} // namespace

TEST_CASE("calls are counted and let through, whatever their arguments")
{
    CountCalls counter(ThisModule(), "user32.dll", "CreateWindowExA");
    REQUIRE(counter.IsInstalled());
    HWND window = ::CreateWindowExA(WS_EX_TOOLWINDOW, "Static", "twelve arguments", WS_POPUP, 1, 2,
                                    33, 44, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr);
    REQUIRE(window != nullptr);
    RECT place{};
    ::GetWindowRect(window, &place);
    CHECK(place.left == 1);
    CHECK(place.bottom == 46);
    char text[32] = "";
    ::GetWindowTextA(window, text, sizeof text);
    CHECK(std::string(text) == "twelve arguments");
    ::DestroyWindow(window);
    CHECK(counter.Calls() == 1);
    CHECK(counter.Failed() == 0);
}

TEST_CASE("only the n-th call fails, with the result and the error that were asked for")
{
    FailNth fault(ThisModule(), "gdi32.dll", "CreateCompatibleDC", 2, {0, 1234});
    REQUIRE(fault.IsInstalled());
    HDC first = MakeDc();
    CHECK(first != nullptr);
    ::SetLastError(0);
    CHECK(MakeDc() == nullptr);
    CHECK(::GetLastError() == 1234);
    CHECK(fault.Failed() == 1);
    HDC third = MakeDc();
    CHECK(third != nullptr);
    CHECK(fault.Calls() == 3);
    CHECK(fault.Failed() == 1);
    ::DeleteDC(first);
    ::DeleteDC(third);
}

TEST_CASE("a failing call may return any value")
{
    const FailAlways fault(ThisModule(), "user32.dll", "GetSystemMetrics",
                           {static_cast<ULONG_PTR>(-5), 0});
    CHECK(Metric(SM_CXSCREEN) == -5);
    CHECK(Metric(SM_CYSCREEN) == -5);
    CHECK(fault.Failed() == 2);
}

TEST_CASE("a failing call leaves the stack as the function itself does")
{
    const FailAlways fault(ThisModule(), "user32.dll", "CreateWindowExA");
    REQUIRE(fault.IsInstalled());
    constexpr int calls = 100000; // Their arguments take more than the whole stack.
    bool made = false;
    for (int i = 0; i < calls; ++i)
        made |= ::CreateWindowExA(0, "Static", "", WS_POPUP, 1, 2, 3, 4, nullptr, nullptr, nullptr,
                                  nullptr) != nullptr;
    CHECK_FALSE(made);
    CHECK(fault.Failed() == calls);
}

TEST_CASE("calls go through again when the fault has ended")
{
    {
        const FailAlways fault(ThisModule(), "gdi32.dll", "CreateCompatibleDC");
        CHECK(MakeDc() == nullptr);
        CHECK(::GetLastError() == ERROR_NOT_ENOUGH_MEMORY);
    }
    HDC dc = MakeDc();
    CHECK(dc != nullptr);
    ::DeleteDC(dc);
}

TEST_CASE("an absent import is reported and counts nothing")
{
    const FailAlways fault(ThisModule(), "gdi32.dll", "NoSuchFunction");
    CHECK_FALSE(fault.IsInstalled());
    CHECK(fault.Calls() == 0);
    CHECK(fault.Failed() == 0);
}

TEST_CASE("the function that installs a fault may itself be the one")
{
    const CountCalls counter(ThisModule(), "kernel32.dll", "VirtualProtect");
    REQUIRE(counter.IsInstalled());
    DWORD before = 0;
    static char memory[16];
    CHECK(::VirtualProtect(memory, sizeof memory, PAGE_READWRITE, &before));
    CHECK(counter.Calls() >= 1);
}
