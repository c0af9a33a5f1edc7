// How each imported function fails on Windows.
#pragma once

#include "testing/CallFault.h"

/// FALSE for a function that cannot fail, or whose result is no sign of failure: leaving such a
/// call out would be no failure but another program.
BOOL CanFail(const umbra::testing::Import& import);

/// What the function gives back when it fails; 0 unless it is known to be something else.
umbra::testing::Failure FailureOf(const umbra::testing::Import& import);

/// How many GDI objects a failing call of the function cannot but leave behind: those that it was
/// to free.
int ObjectsLostBy(const umbra::testing::Import& import);
