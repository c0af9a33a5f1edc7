#include "tests/robustness/FaultCheck.h"

TEST_CASE("part: lives with failing calls of umbra-mfc.dll" * doctest::skip())
{
    LiveWithFailures(UMBRA_MFC_DLL, IsOfWindows, LivesOfClasses());
}

TEST_CASE("whichever call of umbra-mfc.dll fails: nothing crashes or hangs and nothing is lost")
{
    CheckReport(FailEachCall(UMBRA_MFC_DLL, "part: lives with failing calls of umbra-mfc.dll"));
}
