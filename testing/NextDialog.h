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

    bool HasRun() const { return hasRun_; }

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR timer, DWORD);
    void RunSteps(HWND dialog);
    void StopWaiting();

    std::function<void(HWND)> steps_;
    std::function<bool(HWND)> isOld_; // A dialog that was there before.
    UINT_PTR timer_ = 0;              // 0: waits no longer.
    NextDialog* older_ = nullptr;     // The next one of this thread's that waits.
    bool hasRun_ = false;
};

} // namespace umbra::testing
