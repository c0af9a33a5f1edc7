// Failures say nothing to the user; a debug build tells the debugger.
#include "shell/PictureLoader.h"
#include "shell/ShellOpen.h"

#include "tests/LibraryFiles.h"
#include "tests/TraceOf.h"

#include "testing/CallFault.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <string>

using namespace umbra::testing;

namespace {

/// Whether the text is part of what was traced.
bool Tells(const TString& trace, const TString& text)
{
    return trace.find(text) != TString::npos;
}

} // namespace

TEST_CASE("a debug build names a picture file that does not load")
{
    CHECK(Tells(TraceOf([] { LoadPictureBitmap(_T("C:\\no such picture.gif")); }),
                _T("C:\\no such picture.gif")) == isTraced);
    const TString longPath(10000, 'p');
    CHECK(TraceOf([&] { LoadPictureBitmap(longPath.c_str()); }).size() < 1000);
}

TEST_CASE("a debug build names a target that nothing opens")
{
    const FailAlways shell(FindModule(UMBRA_DLL), "shell32", TEXT_FUNCTION("ShellExecute"), {2});
    REQUIRE(shell.IsInstalled());
    CHECK(Tells(TraceOf([] { ShellOpen(_T("a target"), SW_SHOWNORMAL, _T(".umbra-not-there")); }),
                _T("'a target' cannot be opened")) == isTraced);
}
