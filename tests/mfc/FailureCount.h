// Counts the exceptions that the library hands to the thread's object instead of telling the user.
#pragma once

#include "tests/ThreadStandIn.h"

class FailureCount : public ThreadStandIn
{
public:
    int failures = 0;
    UINT lastMessage = 0; ///< The message that was being handled.

    LRESULT ProcessWndProcException(CException*, const MSG* message) override
    {
        ++failures;
        lastMessage = message->message;
        return message->message == WM_CREATE ? -1 : 0;
    }
};
