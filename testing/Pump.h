// Lets the windows of the calling thread work off their messages.
#pragma once

#include <afxwin.h>

#include <chrono>
#include <functional>

namespace umbra::testing {

/// Takes every message that waits for the calling thread and dispatches it as the thread's own
/// loop would: CWinThread::PreTranslateMessage comes first, where there is such a thread object.
/// Keys in a message box do there what they do in its own loop.
/// A WM_QUIT is put back and ends the pumping. Returns the number of messages taken.
int PumpMessages();

/// Pumps until the predicate is true. Returns FALSE when the time is up first. It wakes with
/// each new message, and every few milliseconds for predicates that no message announces.
bool WaitUntil(const std::function<bool()>& predicate,
               std::chrono::milliseconds timeout = std::chrono::seconds(5));

} // namespace umbra::testing
