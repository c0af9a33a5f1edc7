// What the program writes for a debugger.
#pragma once

#include <windows.h>

#include <string>

namespace afxtest {

inline std::string debuggerText;

/// The system raises this exception for each text, also where there is no debugger.
inline LONG CALLBACK CatchDebuggerText(EXCEPTION_POINTERS* exception)
{
    constexpr DWORD debugText = 0x40010006; // DBG_PRINTEXCEPTION_C: length and address follow.
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode != debugText || record.NumberParameters < 2)
        return EXCEPTION_CONTINUE_SEARCH;
    debuggerText += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace afxtest

/// The texts that the action sends, one behind the other.
template <class Action>
std::string SentToDebugger(const Action& action)
{
    void* const handler = ::AddVectoredExceptionHandler(1, &afxtest::CatchDebuggerText);
    afxtest::debuggerText.clear();
    action();
    ::RemoveVectoredExceptionHandler(handler);
    return afxtest::debuggerText;
}
