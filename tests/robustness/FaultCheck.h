// What the tests of failing calls have in common.
#pragma once

#include "tests/LibraryFiles.h"
#include "tests/robustness/FaultRun.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <ctype.h>
#include <stdio.h>

/// Of umbra.dll: all that the system and the run-time give.
inline bool IsOfSystem(const umbra::testing::Import& import)
{
    return import.dll != UMBRA_MFC_DLL;
}

/// Of umbra-mfc.dll: windows, graphics, pictures and resources. Memory is the run-time's, and its
/// lack is thrown.
inline bool IsOfWindows(const umbra::testing::Import& import)
{
    std::string dll = import.dll;
    std::transform(dll.begin(), dll.end(), dll.begin(), [](unsigned char c) { return tolower(c); });
    for (const char* name :
         {"user32.dll", "gdi32.dll", "comctl32.dll", "oleaut32.dll", "kernel32.dll"}) {
        if (dll == name)
            return true;
    }
    return false;
}

/// Every life with a failing call was survived.
inline void CheckReport(const FaultReport& report)
{
    printf("%d functions, %d lives with a failing call, %d survived\n", report.functions,
           report.tried, report.survived);
    for (const std::string& finding : report.findings)
        FAIL_CHECK(finding);
    CHECK(report.functions > 20); // Otherwise nothing was called.
    CHECK(report.survived == report.tried);
}
