#include "shell/HandCursor.h"

#include "tests/LibraryFiles.h"
#include "tests/programs/HelpProgram.h"
#include "tests/shell/ProcessOfItsOwn.h"

#include "testing/CallFault.h"
#include "testing/ImportHook.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

TEST_CASE("part: a process that looks for the hand where there is no help program" *
          doctest::skip())
{
    REQUIRE(::GetFileAttributes(HelpProgram::Path().c_str()) == INVALID_FILE_ATTRIBUTES);
    const CountCalls libraries(FindModule(UMBRA_DLL), "kernel32", TEXT_FUNCTION("LoadLibrary"));
    REQUIRE(libraries.IsInstalled());
    for (int i = 0; i < 100; ++i)
        CHECK(LoadHandCursor() == nullptr);
    CHECK(libraries.Calls() == 1);
}

TEST_CASE("without the help program there is no hand, and it is looked for only once")
{
    CheckInProcessOfItsOwn(
        "part: a process that looks for the hand where there is no help program");
}
