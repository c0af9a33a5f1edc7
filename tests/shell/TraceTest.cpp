// Failures say nothing to the user; a debug build tells the debugger.
#include "shell/PictureLoader.h"
#include "shell/ShellOpen.h"

#include "tests/TraceOf.h"

#include "testing/CallFault.h"

#include <doctest/doctest.h>

#include <string>

using namespace umbra::testing;

namespace {

/// Whether the text is part of what was traced.
bool Tells(const std::string& trace, const std::string& text)
{
    return trace.find(text) != std::string::npos;
}

} // namespace

TEST_CASE("a debug build names a picture file that does not load")
{
    CHECK(Tells(TraceOf([] { LoadPictureBitmap("C:\\no such picture.gif"); }),
                "C:\\no such picture.gif") == isTraced);
    const std::string longPath(10000, 'p');
    CHECK(TraceOf([&] { LoadPictureBitmap(longPath.c_str()); }).size() < 1000);
}

TEST_CASE("a debug build names a target that nothing opens")
{
    const FailAlways shell(FindModule("umbra.dll"), "shell32", "ShellExecuteA", {2});
    REQUIRE(shell.IsInstalled());
    CHECK(Tells(TraceOf([] { ShellOpen("a target", SW_SHOWNORMAL, ".umbra-not-there"); }),
                "'a target' cannot be opened") == isTraced);
}
