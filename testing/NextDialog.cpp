#include "testing/NextDialog.h"
#include "testing/OpenDialogs.h"

#include <algorithm>

namespace umbra::testing {

namespace {

/// Those of a thread that wait, as a list. No object with a destructor, as in Ticker.cpp.
thread_local NextDialog* oldest = nullptr;

} // namespace

NextDialog::NextDialog(std::function<void(HWND)> steps, std::function<bool(HWND)> condition)
    : m_steps(std::move(steps)), m_condition(std::move(condition)), m_old(FindShownDialogs()),
      m_ticker(Look)
{
    NextDialog** link = &oldest;
    while (*link != nullptr)
        link = &(*link)->m_newer;
    *link = this;
}

NextDialog::~NextDialog()
{
    StopWaiting();
}

void NextDialog::Look()
{
    for (HWND dialog : FindOpenDialogs()) {
        if (Offer(dialog))
            return;
    }
}

bool NextDialog::Offer(HWND dialog)
{
    NextDialog* taker = oldest;
    while (taker != nullptr && !taker->Awaits(dialog))
        taker = taker->m_newer;
    if (taker == nullptr)
        return false;
    for (NextDialog* other = oldest; other != nullptr; other = other->m_newer)
        other->m_old.push_back(dialog);
    taker->StopWaiting();
    taker->m_hasRun = true;
    taker->m_steps(dialog);
    return true;
}

bool NextDialog::Awaits(HWND dialog) const
{
    return std::find(m_old.begin(), m_old.end(), dialog) == m_old.end() &&
           (m_condition == nullptr || m_condition(dialog));
}

void NextDialog::StopWaiting()
{
    if (!m_isWaiting)
        return;
    m_isWaiting = false;
    m_ticker.Stop();
    NextDialog** link = &oldest;
    while (*link != this)
        link = &(*link)->m_newer;
    *link = m_newer;
}

} // namespace umbra::testing
