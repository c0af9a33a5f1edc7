#include "shell/HandCursor.h"

#include "tests/LibraryFiles.h"
#include "tests/programs/HelpProgram.h"
#include "tests/shell/ProcessOfItsOwn.h"

#include "testing/CallFault.h"
#include "testing/ImportHook.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

// The toolkit loads the hand once for the whole process, so one case tells the story of one
// process; that of a system without the help program is HandCursorMissingTest.cpp.

TEST_CASE("part: a process that borrows the hand from the help program" * doctest::skip())
{
    const HelpProgram help;
    REQUIRE(help.IsInstalled());
    const HMODULE umbra = FindModule(UMBRA_DLL);
    const CountCalls libraries(umbra, "kernel32", TEXT_FUNCTION("LoadLibrary"));
    const CountCalls copies(umbra, "user32", "CopyIcon");
    REQUIRE(libraries.IsInstalled());
    REQUIRE(copies.IsInstalled());

    HCURSOR hand;
    {
        // Short of memory once, the next time may be better.
        const FailNth noCopy(umbra, "user32", "CopyIcon", 1);
        CHECK(LoadHandCursor() == nullptr);
    }
    hand = LoadHandCursor();
    REQUIRE(hand != nullptr);
    const long long loaded = libraries.Calls();
    for (int i = 0; i < 1000; ++i)
        CHECK(LoadHandCursor() == hand);
    CHECK(libraries.Calls() == loaded);

    // A copy: the help program's module is not needed any more.
    CHECK(::GetModuleHandle(HelpProgram::Path().c_str()) == nullptr);
    ICONINFO info;
    REQUIRE(::GetIconInfo(hand, &info));
    CHECK_FALSE(info.fIcon);
    CHECK(info.xHotspot == 6);
    CHECK(info.yHotspot == 0);
    ::DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr)
        ::DeleteObject(info.hbmColor);
}

TEST_CASE("the hand is borrowed from the help program once, and every link shares it")
{
    CheckInProcessOfItsOwn("part: a process that borrows the hand from the help program");
}
