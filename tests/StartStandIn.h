// Stands in for the function of the system with which the toolkit starts programs.
#pragma once

#include <windows.h>

/// `Answer` is told the command line and the show state, and answers as WinExec does: more than 31
/// for a success.
template <UINT (*Answer)(LPCTSTR command, UINT show)>
struct StartStandIn
{
#ifdef UNICODE
    static constexpr char function[] = "CreateProcessW";

    /// What the toolkit tells of a success: this function has no number for it.
    static constexpr UINT Told(UINT)
    {
        return 33;
    }

    static BOOL WINAPI Start(LPCWSTR, LPWSTR command, LPSECURITY_ATTRIBUTES, LPSECURITY_ATTRIBUTES,
                             BOOL, DWORD, LPVOID, LPCWSTR, LPSTARTUPINFOW start,
                             LPPROCESS_INFORMATION program)
    {
        *program = {};
        const UINT answer = Answer(command, start->wShowWindow);
        if (answer > 31)
            return TRUE;
        ::SetLastError(answer);
        return FALSE;
    }
#else
    static constexpr char function[] = "WinExec";

    static constexpr UINT Told(UINT answer)
    {
        return answer;
    }

    static UINT WINAPI Start(LPCSTR command, UINT show)
    {
        return Answer(command, show);
    }
#endif
};
