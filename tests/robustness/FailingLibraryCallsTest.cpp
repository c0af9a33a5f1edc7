#include "tests/robustness/FaultCheck.h"

TEST_CASE("part: lives with failing calls of umbra-mfc.dll" * doctest::skip())
{
    LiveWithFailures("umbra-mfc.dll", IsOfWindows, LivesOfClasses());
}

TEST_CASE("whichever call of umbra-mfc.dll fails: nothing crashes or hangs and nothing is lost")
{
    CheckReport(FailEachCall("umbra-mfc.dll", "part: lives with failing calls of umbra-mfc.dll"));
}
