// Starts the program given on the command line, looks at its page and closes it. Answers 0 when all
// of it went as a user would expect, and says what did not.
#include <windows.h>

#include <stdio.h>
#include <string.h>

namespace {

const DWORD patience = 30000; // Milliseconds for each step.

template <class Condition>
bool Wait(Condition condition)
{
    for (DWORD waited = 0; waited < patience; waited += 50) {
        if (condition())
            return true;
        Sleep(50);
    }
    return false;
}

bool HasText(HWND page, int id, const char* expected)
{
    char text[100] = "";
    return Wait([&] {
        GetDlgItemTextA(page, id, text, sizeof(text));
        return strcmp(text, expected) == 0;
    });
}

int Fail(const char* what)
{
    printf("%s\n", what);
    return 1;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return Fail("usage: StarterDriver PROGRAM");
    STARTUPINFOA start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessA(arguments[1], nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process))
        return Fail("the program does not start");

    HWND page = nullptr;
    if (!Wait([&] { return (page = FindWindowA("#32770", "Starter")) != nullptr; }))
        return Fail("its page does not show");
    if (!HasText(page, IDOK, "&Confirm") || !HasText(page, IDCANCEL, "C&lose"))
        return Fail("its buttons are not captioned");
    if (!Wait([&] { return IsWindowVisible(page) != FALSE; }))
        return Fail("its page is hidden");

    PostMessageA(page, WM_COMMAND, IDCANCEL, 0);
    if (WaitForSingleObject(process.hProcess, patience) != WAIT_OBJECT_0) {
        TerminateProcess(process.hProcess, 1);
        return Fail("it does not end");
    }
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    return code == 0 ? 0 : Fail("it ends with an error");
}
