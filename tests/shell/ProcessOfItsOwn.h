// Cases that need a process in which nothing has happened yet.
#pragma once

#include "tests/robustness/ChildProgram.h"

#include <doctest/doctest.h>

/// Runs a case that is skipped otherwise in a new process of this program; it passes there or it
/// fails here.
inline void CheckInProcessOfItsOwn(const char* testCase)
{
    const auto noProgress = [] { return 0L; };
    const ChildEnd end = RunChild(testCase, "", noProgress, INFINITE);
    INFO(end.Describe());
    CHECK(end.IsGood());
}
