// What a control's class sends to its window: for messages that not every system answers.
#pragma once

#include <doctest/doctest.h>

#include "testing/MessageLog.h"

/// Checks that the last message of this number carried these words.
inline void CheckSent(const umbra::testing::MessageLog& log, UINT message, WPARAM wParam,
                      LPARAM lParam)
{
    const umbra::testing::MessageLog::Entry* entry = log.Last(message);
    REQUIRE(entry != nullptr);
    CHECK(entry->wParam == wParam);
    CHECK(entry->lParam == lParam);
}
