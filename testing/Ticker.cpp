#include "testing/Ticker.h"

namespace umbra::testing {

namespace {

constexpr UINT tickMilliseconds = 10;

/// Those of a thread, as a list. No object with a destructor: this compiler's run-time library may
/// free the memory of such an object before it is destroyed.
thread_local Ticker* newest = nullptr;

} // namespace

Ticker::Ticker(std::function<void()> tick) : m_tick(std::move(tick))
{
    m_timer = ::SetTimer(nullptr, 0, tickMilliseconds, Tick);
    if (m_timer == 0)
        return;
    m_older = newest;
    newest = this;
}

Ticker::~Ticker()
{
    Stop();
}

void Ticker::Stop()
{
    if (m_timer == 0)
        return;
    ::KillTimer(nullptr, m_timer);
    m_timer = 0;
    Ticker** link = &newest;
    while (*link != this)
        link = &(*link)->m_older;
    *link = m_older;
}

void CALLBACK Ticker::Tick(HWND, UINT, UINT_PTR timer, DWORD)
{
    Ticker* self = newest;
    while (self != nullptr && self->m_timer != timer)
        self = self->m_older;
    if (self != nullptr)
        self->m_tick();
}

} // namespace umbra::testing
