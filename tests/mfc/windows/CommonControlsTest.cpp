// When the library of the common controls is loaded, which takes a process of its own to see. Some
// systems find their classes by themselves, so others are asked, too, whether they were registered.
#include <afxwin.h>

#include <afxcmn.h>

#include <doctest/doctest.h>

#include "tests/Folders.h"
#include "tests/LibraryFiles.h"

#include "testing/CallFault.h"
#include "testing/DialogTemplate.h"

#include <string>

using namespace umbra::testing;

namespace {

constexpr DWORD wasLoaded = 1, isLoaded = 2, hasWindow = 4;             // As the program ends.
constexpr DWORD atOnce = sizeof(void*) == 8 ? 0 : wasLoaded | isLoaded; // By 32-bit programs.

DWORD EndOf(LPCTSTR task)
{
    TString line = _T('"') + ProgramPath(_T("mfc-test-late-controls.exe")) + _T("\" ") + task;
    STARTUPINFO startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    REQUIRE(::CreateProcess(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process));
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

} // namespace

TEST_CASE("a dialog of plain controls does not load the common ones")
{
    CHECK(EndOf(_T("plain")) == (hasWindow | atOnce));
}

TEST_CASE("a dialog whose template names a common control shows it without further preparation")
{
    CHECK(EndOf(_T("template")) == (isLoaded | hasWindow | atOnce));
}

TEST_CASE("a window of a common control's class can be made without further preparation")
{
    CHECK(EndOf(_T("create")) == (isLoaded | hasWindow | atOnce));
}

TEST_CASE("an unknown class of a template has the common controls registered, a known one has not")
{
    const FailAlways unknown(FindModule(UMBRA_MFC_DLL), "user32", "GetClassInfoW");
    const CountCalls registered(FindModule(UMBRA_MFC_DLL), "comctl32", "InitCommonControls");
    REQUIRE(unknown.IsInstalled());
    REQUIRE(registered.IsInstalled());
    DialogTemplate page(0, 0, 100, 60);
    page.Add(WC_TREEVIEW, 5, _T(""), 0, 0, 10, 10);
    CDialog dialog;
    REQUIRE(dialog.CreateIndirect(page.Get()));
    dialog.DestroyWindow();
    CHECK(registered.Calls() == 1);

    DialogTemplate numbered(0, 0, 100, 60); // Names its classes by numbers only.
    numbered.Button(IDOK, _T("OK"), 0, 0, 10, 10).Edit(6, _T(""), 0, 20, 10, 10);
    CDialog second;
    REQUIRE(second.CreateIndirect(numbered.Get()));
    second.DestroyWindow();
    CHECK(registered.Calls() == 1);
}

TEST_CASE("an unknown class of a window has the common controls registered")
{
    const FailAlways unknown(FindModule(UMBRA_MFC_DLL), "user32", TEXT_FUNCTION("GetClassInfo"));
    const CountCalls registered(FindModule(UMBRA_MFC_DLL), "comctl32", "InitCommonControls");
    REQUIRE(registered.IsInstalled());
    CWnd window;
    REQUIRE(window.CreateEx(0, WC_TREEVIEW, _T(""), WS_POPUP, 0, 0, 9, 9, NULL, NULL));
    window.DestroyWindow();
    CHECK(unknown.Failed() == 1);
    CHECK(registered.Calls() == 1);
}
