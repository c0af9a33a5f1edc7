// Looks at something again and again while the calling thread takes messages.
#pragma once

#include <windows.h>

#include <functional>

namespace umbra::testing {

/// Calls a function every few milliseconds from whatever message loop the thread is in, also from
/// that of a modal dialog or of a message box. The function may run a message loop of its own, and
/// is then called within it.
class Ticker
{
public:
    explicit Ticker(std::function<void()> tick);
    Ticker(const Ticker&) = delete;
    Ticker& operator=(const Ticker&) = delete;
    ~Ticker();

    /// May be called by the function itself.
    void Stop();

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD);

    std::function<void()> m_tick;
    UINT_PTR m_timer = 0;      // 0: stopped.
    Ticker* m_older = nullptr; // The next one of this thread's.
};

} // namespace umbra::testing
