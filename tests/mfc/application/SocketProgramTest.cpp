// Two instances of a program that talk to each other through sockets, driven from outside.
#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/application/Program.h"
#include "tests/mfc/programs/Chat/resource.h"

#include <string>

namespace {

class Chat : public Program
{
public:
    Chat() : Program("mfc-test-chat.exe\"", "Chat") {}

    std::string LastLine()
    {
        const LRESULT count = ::SendDlgItemMessageA(window, IDC_LINES, LB_GETCOUNT, 0, 0);
        wchar_t line[200] = L"";
        if (count > 0) {
            ::SendDlgItemMessageW(window, IDC_LINES, LB_GETTEXT, count - 1,
                                  reinterpret_cast<LPARAM>(line));
        }
        char text[200] = "";
        ::WideCharToMultiByte(CP_ACP, 0, line, -1, text, sizeof(text), nullptr, nullptr);
        return text;
    }
    bool Shows(const char* line)
    {
        const bool shown = WaitFor([&] { return LastLine() == line; });
        if (!shown)
            MESSAGE("instead of ", line, ": ", LastLine());
        return shown;
    }
    /// As a click does, whichever of the programs is in front.
    void Push(int button)
    {
        ::PostMessageA(window, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                       reinterpret_cast<LPARAM>(Control(button)));
    }
    /// Types the line and ends it with Enter, which is the default button.
    void Say(const char* line)
    {
        const HWND field = Control(IDC_LINE);
        for (const char* at = line; *at != '\0'; ++at)
            ::PostMessageA(field, WM_CHAR, static_cast<BYTE>(*at), 1);
        ::PostMessageA(field, WM_KEYDOWN, VK_RETURN, 1);
    }
    DWORD Leave()
    {
        ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
        return ExitCode();
    }
};

/// Lets the first one listen and the second one connect.
void Connect(Chat& first, Chat& second)
{
    first.SetText(IDC_PORT, "0");
    first.Push(IDC_LISTEN);
    REQUIRE(first.Shows("* Waiting"));
    const std::string port = first.Text(IDC_PORT);
    CHECK(port != "0");
    second.SetText(IDC_PORT, port.c_str());
    second.Push(IDC_CONNECT);
    REQUIRE(second.Shows("* Connected"));
    REQUIRE(first.Shows("* Somebody has come"));
}

} // namespace

TEST_CASE("two programs talk in both directions until one of them leaves")
{
    Chat first, second;
    Connect(first, second);
    second.Say("hello");
    CHECK(first.Shows("other: hello"));
    CHECK(second.Shows("me: hello"));
    first.Say("hello yourself");
    CHECK(second.Shows("other: hello yourself"));
    for (const char* line : {"one", "two", "three"})
        second.Say(line);
    CHECK(first.Shows("other: three"));
    CHECK(::SendDlgItemMessageA(first.window, IDC_LINES, LB_GETCOUNT, 0, 0) == 7);

    CHECK(second.Leave() == 0);
    CHECK(first.Shows("* The other one has left"));
    first.SetText(IDC_LINE, "anybody");
    first.Push(IDC_SEND);
    CHECK(first.Shows("* There is no connection."));
    CHECK(first.Leave() == 0);
}

TEST_CASE("a program that is left may be met again")
{
    Chat first, second;
    Connect(first, second);
    second.Push(IDC_DISCONNECT);
    REQUIRE(first.Shows("* The other one has left"));
    second.Push(IDC_CONNECT);
    REQUIRE(first.Shows("* Somebody has come"));
    first.Say("again");
    CHECK(second.Shows("other: again"));
}

TEST_CASE("a program is told that nobody listens, and that a port is taken")
{
    Chat first, second;
    Connect(first, second);
    const std::string port = first.Text(IDC_PORT);
    second.Push(IDC_LISTEN);
    CHECK(second.Shows("* The port is not free."));
    CHECK(first.Leave() == 0);
    CHECK(second.Shows("* The other one has left"));
    second.Push(IDC_CONNECT);
    CHECK(second.Shows("* Nobody listens there."));
}
