#include "FaultCheck.h"

#include <algorithm>
#include <ctype.h>

using umbra::testing::Import;

namespace {

/// Windows, graphics, pictures and resources. Memory is the run-time's, and its lack is thrown.
bool IsOfWindows(const Import& import)
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

} // namespace

TEST_CASE("part: lives with failing calls of umbra-mfc.dll" * doctest::skip())
{
    LiveWithFailures("umbra-mfc.dll", IsOfWindows);
}

TEST_CASE("whichever call of umbra-mfc.dll fails: nothing crashes or hangs and nothing is lost")
{
    CheckReport(FailEachCall("umbra-mfc.dll", "part: lives with failing calls of umbra-mfc.dll"));
}
