// Counts the exceptions that the library hands to the thread's object instead of telling the user.
#pragma once

// Looks inside the class library: the object takes the place of the calling thread's own.
#include "mfc/src/threads/ThreadState.h"

#include <afxwin.h>

#include <utility>

/// The calling thread's object while it lives.
class FailureCount : public CWinThread
{
public:
    FailureCount() : former_(std::exchange(afxint::CurrentThread().thread, this)) {}
    ~FailureCount() override { afxint::CurrentThread().thread = former_; }

    int failures = 0;
    UINT lastMessage = 0; ///< The message that was being handled.

    LRESULT ProcessWndProcException(CException*, const MSG* message) override
    {
        ++failures;
        lastMessage = message->message;
        return message->message == WM_CREATE ? -1 : 0;
    }

private:
    CWinThread* former_;
};
