// An object that gets what the library asks the test program's own thread object.
#pragma once

#include <afxwin.h>

/// While one lives, the program's application object hands its idle time, its message filter
/// and the exceptions of window procedures to it.
class ThreadStandIn
{
public:
    ThreadStandIn() { Current() = this; }
    virtual ~ThreadStandIn() { Current() = nullptr; }
    ThreadStandIn(const ThreadStandIn&) = delete;
    ThreadStandIn& operator=(const ThreadStandIn&) = delete;

    virtual BOOL OnIdle(LONG) { return FALSE; }
    virtual LRESULT ProcessWndProcException(CException*, const MSG*) { return 0; }
    virtual BOOL ProcessMessageFilter(int, LPMSG) { return FALSE; }

    /// nullptr: there is none.
    static ThreadStandIn*& Current()
    {
        static ThreadStandIn* current = nullptr;
        return current;
    }
};
