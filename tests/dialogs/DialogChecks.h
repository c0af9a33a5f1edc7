// What the tests of all dialog classes do and check in the same way.
#pragma once

#include "testing/GdiObjects.h"

#include <doctest/doctest.h>

/// The steps, a dialog's life for instance, leave no graphics object behind. The first run, which
/// is not counted, makes what the system keeps.
template <class Steps>
void CheckNothingStays(Steps steps, int times = 10)
{
    steps();
    const umbra::testing::BalancedGdi objects;
    for (int i = 0; i < times; ++i)
        steps();
    CHECK_MESSAGE(objects.IsBalanced(), objects.Describe());
}
