// Acts on a modal dialog, which keeps its caller waiting until it is closed.
#pragma once

#include <windows.h>

#include <functional>

namespace umbra::testing {

/// Waits for the next dialog box or message box that the calling thread shows, and calls the steps
/// inside its message loop. The steps must close it, or the caller waits for ever.
///
///     NextDialog answer([](HWND box) { Page(box).Click(IDYES); });
///     CHECK(AfxMessageBox("Go on?", MB_YESNO) == IDYES);
///     CHECK(answer.HasRun());
class NextDialog
{
public:
    explicit NextDialog(std::function<void(HWND)> steps);
    NextDialog(const NextDialog&) = delete;
    NextDialog& operator=(const NextDialog&) = delete;
    ~NextDialog();

    bool HasRun() const { return m_hasRun; }

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR timer, DWORD);
    void RunSteps(HWND dialog);
    void StopWaiting();

    std::function<void(HWND)> m_steps;
    std::function<bool(HWND)> m_isOld; // A dialog that was there before.
    UINT_PTR m_timer = 0;              // 0: waits no longer.
    NextDialog* m_older = nullptr;     // The next one of this thread's that waits.
    bool m_hasRun = false;
};

} // namespace umbra::testing
