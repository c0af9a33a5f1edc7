// The longest Windows directory that fits its buffer. The cursor is looked for once in a program's
// life, so this is a source of its own.
#include "shell/HandCursor.h"

#include "tests/LibraryFiles.h"

#include "testing/ImportHook.h"
#include "testing/Text.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

const TString folder(MAX_PATH - 1, _T('w'));
/// The path of the module that was to be loaded.
TString asked;

/// Stands in for the Windows directory: one that is as long as can be.
UINT WINAPI AnswerFolder(LPTSTR out, UINT capacity)
{
    if (capacity < folder.size() + 1)
        return static_cast<UINT>(folder.size() + 1);
    _tcscpy(out, folder.c_str());
    return static_cast<UINT>(folder.size());
}

/// Stands in for the loading of a module: there is none.
HMODULE WINAPI NoteModule(LPCTSTR path)
{
    asked = path;
    return nullptr;
}

} // namespace

TEST_CASE("the help program is looked for in a Windows directory of 259 characters")
{
    const HMODULE umbra = FindModule(UMBRA_DLL);
    const ImportHook windows(umbra, "kernel32", TEXT_FUNCTION("GetWindowsDirectory"), AnswerFolder);
    const ImportHook load(umbra, "kernel32", TEXT_FUNCTION("LoadLibrary"), NoteModule);
    REQUIRE(windows.IsInstalled());
    REQUIRE(load.IsInstalled());
    CHECK(LoadHandCursor() == nullptr);
    CHECK(asked == folder + _T("\\winhlp32.exe"));
}
