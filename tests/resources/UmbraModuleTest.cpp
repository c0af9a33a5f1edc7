// This program is not linked with umbra.dll: it loads the DLL as a host's plug-in would.
#include "resources/resource.h"

#include "tests/Folders.h"
#include "tests/LibraryFiles.h"

#include "testing/ImportHook.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

/// The modules in which the class library looks for a resource.
std::vector<HMODULE> asked;

/// Looks for the resource as it was asked for, and notes where.
HRSRC WINAPI NoteModule(HMODULE module, LPCTSTR name, LPCTSTR type)
{
    asked.push_back(module);
    return ::FindResource(module, name, type);
}

/// Which module the class library finds the toolkit's bitmap in.
HINSTANCE FindStrip()
{
    asked.clear();
    return AfxFindResourceHandle(MAKEINTRESOURCE(IDB_STRIP), RT_BITMAP);
}

/// How often a search for something that is nowhere comes by the module.
long long CountSearches(HMODULE module)
{
    asked.clear();
    AfxFindResourceHandle(MAKEINTRESOURCE(60000), RT_BITMAP);
    return std::count(asked.begin(), asked.end(), module);
}

} // namespace

TEST_CASE("the toolkit's resources are searched once while it is loaded, and not when it is gone")
{
    const ImportHook searches(FindModule(UMBRA_MFC_DLL), "kernel32", TEXT_FUNCTION("FindResource"),
                              NoteModule);
    REQUIRE(searches.IsInstalled());
    REQUIRE(FindModule(UMBRA_DLL) == nullptr);
    CHECK(FindStrip() == AfxGetResourceHandle());
    for (int round = 0; round < 3; ++round) {
        CAPTURE(round);
        const HMODULE toolkit = ::LoadLibrary(ProgramPath(_T(UMBRA_DLL)).c_str());
        REQUIRE(toolkit != nullptr);
        CHECK(FindStrip() == toolkit);
        CHECK(CountSearches(toolkit) == 1);
        ::FreeLibrary(toolkit);
        const bool isGone = FindModule(UMBRA_DLL) == nullptr;
        CHECK(CountSearches(toolkit) == (isGone ? 0 : 1));
        CHECK(FindStrip() == (isGone ? AfxGetResourceHandle() : toolkit));
    }
}
