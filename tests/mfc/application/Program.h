// A program that a test starts and drives from outside.
#pragma once

#include <afxwin.h>

#include <doctest/doctest.h>

#include <functional>
#include <string>

constexpr DWORD longestWait = 40000; // For what must happen, on however busy a machine.

inline bool WaitFor(const std::function<bool()>& predicate)
{
    const DWORD start = ::GetTickCount();
    for (; ::GetTickCount() - start < longestWait; ::Sleep(10)) {
        if (predicate())
            return true;
    }
    return false;
}

constexpr char dialogClass[] = "#32770";

/// A program that stands beside this one. It is over at the end of the object.
class Program
{
public:
    /// Starts it with the command line given and waits for its window.
    Program(const char* command, const char* title, const char* className = dialogClass)
    {
        char path[MAX_PATH];
        ::GetModuleFileNameA(nullptr, path, MAX_PATH);
        ::PathRemoveFileSpecA(path);
        std::string line = '"' + std::string(path) + "\\" + command;
        STARTUPINFOA startup{};
        startup.cb = sizeof(startup);
        REQUIRE(::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                 &startup, &process_));
        window = Find(title, className);
        REQUIRE(window != nullptr);
    }
    ~Program()
    {
        if (::WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT)
            ::TerminateProcess(process_.hProcess, 99);
        ::CloseHandle(process_.hProcess);
        ::CloseHandle(process_.hThread);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Waits for a visible window of the program, a dialog unless another class is given.
    HWND Find(const char* title, const char* className = dialogClass)
    {
        HWND found = nullptr;
        WaitFor([&] {
            HWND at = nullptr;
            while ((at = ::FindWindowExA(nullptr, at, className, title)) != nullptr) {
                DWORD process = 0;
                ::GetWindowThreadProcessId(at, &process);
                if (process == process_.dwProcessId && at != window && ::IsWindowVisible(at)) {
                    found = at;
                    return true;
                }
            }
            return false;
        });
        return found;
    }
    DWORD ExitCode()
    {
        DWORD code = STILL_ACTIVE;
        if (::WaitForSingleObject(process_.hProcess, longestWait) == WAIT_OBJECT_0)
            ::GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

    void SetText(int id, const char* text)
    {
        ::SendDlgItemMessageA(window, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    std::string Text(int id)
    {
        char text[200] = "";
        ::SendDlgItemMessageA(window, id, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
        return text;
    }
    std::string Title() const
    {
        char text[200] = "";
        ::SendMessageA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
        return text;
    }
    LRESULT Click(int id) { return ::SendDlgItemMessageA(window, id, BM_CLICK, 0, 0); }
    /// For buttons that lead to a box, which keeps their click waiting.
    void PostClick(int id) { ::PostMessageA(::GetDlgItem(window, id), BM_CLICK, 0, 0); }

    // Real input: the pointer is moved to the window, keys go to the one in front. Nothing tells
    // when it has arrived; the caller waits for what comes of it.

    static void ClickAt(HWND control, POINT client)
    {
        ::ClientToScreen(control, &client);
        ::SetCursorPos(client.x, client.y);
        ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    }
    static void ClickAt(HWND control)
    {
        RECT client{};
        ::GetClientRect(control, &client);
        ClickAt(control, {client.right / 2, client.bottom / 2});
    }
    static void Press(BYTE key, BYTE modifier = 0)
    {
        if (modifier != 0)
            MoveKey(modifier, 0);
        MoveKey(key, 0);
        MoveKey(key, KEYEVENTF_KEYUP);
        if (modifier != 0)
            MoveKey(modifier, KEYEVENTF_KEYUP);
    }
    /// Digits, small letters, points and spaces.
    static void Type(const char* text)
    {
        for (; *text != 0; ++text)
            Press(*text == '.' ? VK_OEM_PERIOD : LOBYTE(::VkKeyScanA(*text)));
    }
    /// Whether the control of the program comes to have the focus.
    bool HasFocus(HWND control) const
    {
        return WaitFor([&] {
            GUITHREADINFO info{};
            info.cbSize = sizeof(info);
            ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
            return info.hwndFocus == control;
        });
    }
    bool BringToFront() const
    {
        ::SetForegroundWindow(window);
        return WaitFor([&] { return ::GetForegroundWindow() == window; });
    }
    HWND Control(int id) const { return ::GetDlgItem(window, id); }

    HWND window = nullptr;

private:
    static void MoveKey(BYTE key, DWORD flags)
    {
        ::keybd_event(key, LOBYTE(::MapVirtualKey(key, MAPVK_VK_TO_VSC)), flags, 0);
    }

    PROCESS_INFORMATION process_{};
};
