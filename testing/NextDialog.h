// Acts on a modal dialog, which keeps its caller waiting until it is closed.
#pragma once

#include "testing/Ticker.h"

#include <windows.h>

#include <functional>
#include <vector>

namespace umbra::testing {

/// Waits for the next dialog box or message box that the calling thread shows, and calls the steps
/// inside its message loop. The steps must close it, or the caller waits for ever (DoModal.h has a
/// limit). Where several wait, each takes one dialog, in the order in which they were made.
///
///     NextDialog answer([](HWND box) { Page(box).Click(IDYES); });
///     CHECK(AfxMessageBox("Go on?", MB_YESNO) == IDYES);
///     CHECK(answer.HasRun());
class NextDialog
{
public:
    /// Waits for a dialog of which the condition holds; for any without one.
    explicit NextDialog(std::function<void(HWND)> steps,
                        std::function<bool(HWND)> condition = nullptr);
    NextDialog(const NextDialog&) = delete;
    NextDialog& operator=(const NextDialog&) = delete;
    ~NextDialog();

    bool HasRun() const { return m_hasRun; }

private:
    static void Look();
    static bool Offer(HWND dialog);
    bool Awaits(HWND dialog) const;
    void StopWaiting();

    std::function<void(HWND)> m_steps;
    std::function<bool(HWND)> m_condition;
    std::vector<HWND> m_old; // Dialogs that were there before, or that another one has taken.
    bool m_hasRun = false;
    bool m_isWaiting = true;
    NextDialog* m_newer = nullptr; // The next one of this thread's that waits.
    Ticker m_ticker;
};

} // namespace umbra::testing
