// A program as the wizard leaves it, started as a process and driven from outside.
#include <afxwin.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "tests/mfc/MessageBoxText.h"
#include "tests/mfc/application/Program.h"
#include "tests/mfc/programs/Frame/FrameResource.h"
#include "tests/mfc/programs/Wizard/resource.h"

#include <string>

namespace {

constexpr char settingsKey[] = "Software\\Umbra Wizard Test";

constexpr char frameTitle[] = "Frame program: first second";
constexpr char menuClass[] = "#32768";

/// The wizard's program.
class Wizard : public Program
{
public:
    Wizard() : Program("mfc-test-wizard.exe\"", "Wizard") {}
};

/// The program with a frame as its main window.
class Frame : public Program
{
public:
    Frame() : Program("mfc-test-frame.exe\" first second", frameTitle, nullptr) {}
    /// Waits until its loop has had idle time, which its exit code tells.
    bool HasBeenIdle()
    {
        return WaitFor([&] { return ::SendMessage(window, WM_FRAME_IDLE_CALLS, 0, 0) > 1; });
    }
};

struct CleanSettings
{
    CleanSettings() { ::SHDeleteKeyA(HKEY_CURRENT_USER, settingsKey); }
    ~CleanSettings() { ::SHDeleteKeyA(HKEY_CURRENT_USER, settingsKey); }
};

} // namespace

TEST_CASE("a wizard's program shows its data, runs its handlers and keeps its settings")
{
    const CleanSettings settings;
    {
        Wizard program;
        CHECK(program.Text(IDC_NAME) == "World");
        CHECK(program.Text(IDC_COUNT) == "1");
        program.Click(IDC_GREET);
        CHECK(program.Text(IDC_RESULT) == "Hello World");
        program.SetText(IDC_NAME, "Umbra");
        program.SetText(IDC_COUNT, "2");
        program.Click(IDC_LOUD);
        program.Click(IDC_GREET);
        CHECK(program.Text(IDC_RESULT) == "HELLO HELLO UMBRA");
        program.PostClick(IDOK);
        CHECK(program.ExitCode() == 40 + IDOK);
    }
    DWORD count = 0;
    DWORD size = sizeof(count);
    CHECK(::SHGetValueA(HKEY_CURRENT_USER,
                        (settingsKey + std::string("\\mfc-test-wizard\\Greeting")).c_str(), "Count",
                        nullptr, &count, &size) == ERROR_SUCCESS);
    CHECK(count == 2);
    Wizard again;
    CHECK(again.Text(IDC_NAME) == "Umbra");
    CHECK(again.Text(IDC_COUNT) == "2");
}

TEST_CASE("the wizard's program refuses wrong data and stays open")
{
    const CleanSettings settings;
    Wizard program;
    const auto complaintAbout = [&](const char* count) {
        program.SetText(IDC_COUNT, count);
        program.PostClick(IDOK);
        const HWND box = program.Find("mfc-test-wizard");
        REQUIRE(box != nullptr);
        const CString text = MessageBoxText(box);
        CHECK_FALSE(::IsWindowEnabled(program.window));
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
        CHECK(WaitFor([&] { return !::IsWindow(box); }));
        CHECK(WaitFor([&] { return ::IsWindowEnabled(program.window) != FALSE; }));
        return text;
    };
    CHECK(complaintAbout("two") == "Please enter a whole number.");
    CHECK(complaintAbout("4") == "Please enter a whole number from 1 to 3.");
    CHECK(::SendDlgItemMessage(program.window, IDC_COUNT, EM_GETSEL, 0, 0) == MAKELRESULT(0, 1));
    CHECK(::SendDlgItemMessage(program.window, IDC_NAME, EM_GETLIMITTEXT, 0, 0) == 20);
    ::PostMessage(program.window, WM_COMMAND, IDCANCEL, 0);
    CHECK(program.ExitCode() == 40 + IDCANCEL);
}

TEST_CASE("the system menu of the wizard's program opens the about box, which is modal")
{
    const CleanSettings settings;
    Wizard program;
    // By keyboard, because another process cannot look into the menu.
    ::PostMessage(program.window, WM_SYSCOMMAND, SC_KEYMENU, ' ');
    REQUIRE(program.Find("", menuClass) != nullptr);
    ::PostMessage(program.window, WM_KEYDOWN, VK_UP, 0); // From the first item to the last.
    ::PostMessage(program.window, WM_KEYDOWN, VK_RETURN, 0);
    const HWND about = program.Find("About Wizard");
    REQUIRE(about != nullptr);
    CHECK(::GetWindow(about, GW_OWNER) == program.window);
    CHECK_FALSE(::IsWindowEnabled(program.window));
    ::PostMessage(about, WM_COMMAND, IDOK, 0);
    CHECK(WaitFor([&] { return !::IsWindow(about); }));
    CHECK(WaitFor([&] { return ::IsWindowEnabled(program.window) != FALSE; }));

    ::PostMessage(program.window, WM_SYSCOMMAND, SC_CLOSE, 0);
    CHECK(program.ExitCode() == 40 + IDCANCEL);
}

TEST_CASE("the wizard's program is minimised and restored")
{
    const CleanSettings settings;
    Wizard program;
    ::ShowWindow(program.window, SW_MINIMIZE);
    CHECK(WaitFor([&] { return ::IsIconic(program.window) != FALSE; }));
    ::RedrawWindow(program.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    ::ShowWindow(program.window, SW_RESTORE);
    CHECK(WaitFor([&] { return ::IsIconic(program.window) == FALSE; }));
    program.Click(IDC_GREET);
    CHECK(program.Text(IDC_RESULT) == "Hello World");
    ::PostMessage(program.window, WM_COMMAND, IDCANCEL, 0);
    CHECK(program.ExitCode() == 40 + IDCANCEL);
}

TEST_CASE("a program with a frame runs its loop until the standard command ends it")
{
    Frame program;
    ::SendMessage(program.window, WM_COMMAND, ID_FRAME_COUNT, 0);
    CHECK(program.Title() == "Count 1");
    CHECK(program.HasBeenIdle());
    ::PostMessage(program.window, WM_COMMAND, ID_APP_EXIT, 0);
    CHECK(program.ExitCode() == 100); // 100 tells that there was idle time.
}

TEST_CASE("the exit code of a program is what it was told to quit with")
{
    Frame program;
    ::SendMessage(program.window, WM_COMMAND, ID_FRAME_COUNT, 0);
    CHECK(program.HasBeenIdle());
    ::PostMessage(program.window, WM_COMMAND, ID_FRAME_QUIT, 0);
    CHECK(program.ExitCode() == 107);
}
