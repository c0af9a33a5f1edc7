// What the tests of failing calls have in common.
#pragma once

#include "FaultRun.h"

#include <doctest/doctest.h>

#include <stdio.h>

inline void CheckReport(const FaultReport& report)
{
    printf("%d functions, %d lives with a failing call, %d survived\n", report.functions,
           report.tried, report.survived);
    for (const std::string& finding : report.findings)
        FAIL_CHECK(finding);
    CHECK(report.functions > 20); // Otherwise nothing was called.
    CHECK(report.survived == report.tried);
}
