// What a debug build tells the debugger.
#pragma once

#include "testing/ImportHook.h"
#include "testing/Text.h"

#include "tests/LibraryFiles.h"

#include <doctest/doctest.h>

#include <string>

#ifdef _DEBUG
const bool isTraced = true;
#else
const bool isTraced = false; // A release build tells nothing.
#endif

/// What the debugger was told since the text was cleared.
inline umbra::testing::TString& TracedText()
{
    static umbra::testing::TString text;
    return text;
}

/// Stands in for the debugger.
inline void WINAPI NoteTrace(LPCTSTR text)
{
    TracedText() += text;
}

/// What the toolkit tells while the steps run.
template <class Steps>
umbra::testing::TString TraceOf(Steps steps)
{
    const umbra::testing::ImportHook debugger(umbra::testing::FindModule(UMBRA_MFC_DLL), "kernel32",
                                              TEXT_FUNCTION("OutputDebugString"), NoteTrace);
    REQUIRE(debugger.IsInstalled());
    TracedText().clear();
    steps();
    return TracedText();
}
