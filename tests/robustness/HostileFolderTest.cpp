// The longest Windows directory that fits its buffer. The cursor is looked for once in a program's
// life, so this is a source of its own.
#include "shell/HandCursor.h"

#include "testing/ImportHook.h"

#include <doctest/doctest.h>

#include <string.h>
#include <string>

using namespace umbra::testing;

namespace {

const std::string folder(MAX_PATH - 1, 'w');
/// The path of the module that was to be loaded.
std::string asked;

/// Stands in for the Windows directory: one that is as long as can be.
UINT WINAPI AnswerFolder(LPSTR out, UINT capacity)
{
    if (capacity < folder.size() + 1)
        return static_cast<UINT>(folder.size() + 1);
    strcpy(out, folder.c_str());
    return static_cast<UINT>(folder.size());
}

/// Stands in for the loading of a module: there is none.
HMODULE WINAPI NoteModule(LPCSTR path)
{
    asked = path;
    return nullptr;
}

} // namespace

TEST_CASE("the help program is looked for in a Windows directory of 259 characters")
{
    const HMODULE umbra = FindModule("umbra.dll");
    const ImportHook windows(umbra, "kernel32", "GetWindowsDirectoryA", AnswerFolder);
    const ImportHook load(umbra, "kernel32", "LoadLibraryA", NoteModule);
    REQUIRE(windows.IsInstalled());
    REQUIRE(load.IsInstalled());
    CHECK(LoadHandCursor() == nullptr);
    CHECK(asked == folder + "\\winhlp32.exe");
}
