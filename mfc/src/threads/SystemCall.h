// The edge to the system: what it calls lets no exception out, because its code cannot be unwound.
#pragma once

#include <classes/Platform.h>

namespace afxint {

/// The answer to a message whose handling ended in the exception that is being caught. The thread's
/// object is asked, as for every exception of the library; a foreign one is told to the user, too.
LRESULT AnswerException(const MSG& message) noexcept;

/// Runs what the system has called; `failed` is the answer when an exception comes out of it. The
/// message is the one that is being handled, or that stands for what is going on.
template <class Result, class Action>
Result CalledBySystem(const MSG& message, Result failed, Action action) noexcept
{
    try {
        return action();
    } catch (...) {
        AnswerException(message);
        return failed;
    }
}

} // namespace afxint
