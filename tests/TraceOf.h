// What a debug build tells the debugger.
#pragma once

#include "testing/ImportHook.h"

#include <doctest/doctest.h>

#include <string>

#ifdef _DEBUG
const bool isTraced = true;
#else
const bool isTraced = false; // A release build tells nothing.
#endif

/// What the debugger was told since the text was cleared.
inline std::string& TracedText()
{
    static std::string text;
    return text;
}

/// Stands in for the debugger.
inline void WINAPI NoteTrace(LPCSTR text)
{
    TracedText() += text;
}

/// What the toolkit tells while the steps run.
template <class Steps>
std::string TraceOf(Steps steps)
{
    const umbra::testing::ImportHook debugger(umbra::testing::FindModule("umbra-mfc.dll"),
                                              "kernel32", "OutputDebugStringA", NoteTrace);
    REQUIRE(debugger.IsInstalled());
    TracedText().clear();
    steps();
    return TracedText();
}
