#include "tests/robustness/FaultCheck.h"

TEST_CASE("part: lives with failing calls of umbra.dll" * doctest::skip())
{
    LiveWithFailures(UMBRA_DLL, IsOfSystem, LivesOfClasses(), {everyCall});
}

TEST_CASE("whichever call of umbra.dll fails: nothing crashes or hangs and nothing is lost")
{
    CheckReport(FailEachCall(UMBRA_DLL, "part: lives with failing calls of umbra.dll"));
}
