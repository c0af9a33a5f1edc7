// A monkey at the keyboard. A few thousand messages are part of every test run; scripts/soak sends
// as many as one likes. A round that fails is repeated by itself:
//
//   UMBRA_MONKEY_SEED=17 UMBRA_MONKEY_ROUNDS=1 scripts/run-wine .../test-robustness.exe
//   --source-file=*MonkeyTest.cpp
//
// and UMBRA_MONKEY_TRACE=1 prints each of its messages.
#include "tests/robustness/Monkey.h"

#include "tests/Folders.h"

#include "testing/GdiObjects.h"
#include "testing/Input.h"

#include <doctest/doctest.h>

#include <malloc.h>

using namespace umbra::testing;

namespace {

const unsigned usualSeed = 1;
const unsigned usualRounds = 40;
const int messagesInRound = 500;

/// A number from the environment.
unsigned ReadNumber(const char* variable, unsigned usual)
{
    const char* value = getenv(variable);
    return value == nullptr ? usual : static_cast<unsigned>(strtoul(value, nullptr, 10));
}

/// How many top-level windows this thread has.
int CountThreadWindows()
{
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND, LPARAM counter) CALLBACK -> BOOL {
            ++*reinterpret_cast<int*>(counter);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

/// Lets go of the buttons and keys that a round may have left down.
void ReleaseInput()
{
    INPUT up[3] = {};
    up[0].type = INPUT_MOUSE;
    up[0].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    up[1].type = INPUT_MOUSE;
    up[1].mi.dwFlags = MOUSEEVENTF_MIDDLEUP;
    up[2].type = INPUT_KEYBOARD;
    up[2].ki.wVk = VK_SHIFT;
    up[2].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(3, up, sizeof(INPUT));
    PumpMessages();
}

/// One monkey's life.
void PlayRound(unsigned seed, int messages)
{
    Monkey monkey(seed);
    monkey.Play(messages);
}

/// The system makes some objects when they are wanted for the first time and keeps them: brushes
/// and pens of its colours, shared icons, device contexts that were in use at the same time.
void WarmUpSystem()
{
    for (int color = 0; color <= COLOR_MENUBAR; ++color)
        ::GetSysColorBrush(color);
    ::LoadIcon(nullptr, IDI_APPLICATION);
    ::LoadIcon(nullptr, IDI_WARNING);
    ::LoadCursor(nullptr, IDC_WAIT);
    const HDC memory = ::CreateCompatibleDC(nullptr);
    RECT area = {0, 0, 20, 20};
    for (const UINT edge : {EDGE_RAISED, EDGE_SUNKEN, EDGE_ETCHED, EDGE_BUMP}) {
        for (const UINT look : {0, BF_SOFT, BF_FLAT, BF_MONO})
            ::DrawEdge(memory, &area, edge, BF_RECT | look);
    }
    ::DeleteDC(memory);
    for (DWORD type = BS_PUSHBUTTON; type < BS_OWNERDRAW; ++type) { // Of its own looks.
        const HWND button = ::CreateWindow(_T("Button"), _T(""), WS_POPUP | WS_VISIBLE | type, 0, 0,
                                           50, 50, nullptr, nullptr, nullptr, nullptr);
        ::UpdateWindow(button);
        ::SendMessage(button, BM_SETSTATE, TRUE, 0);
        ::SetFocus(button);
        ::UpdateWindow(button);
        ::DestroyWindow(button);
    }
    WorkingWindow framed;
    framed.Create(CModellessDlg::IDD, nullptr);
    framed.ShowWindow(SW_SHOW);
    framed.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    for (const BOOL active : {FALSE, TRUE})
        framed.SendMessage(WM_NCACTIVATE, active);
    framed.DestroyWindow();
}

} // namespace

TEST_CASE("no storm of messages brings a page down, leaves a window or loses a graphics object")
{
    const unsigned seed = ReadNumber("UMBRA_MONKEY_SEED", usualSeed);
    const unsigned rounds = ReadNumber("UMBRA_MONKEY_ROUNDS", usualRounds);
    MESSAGE("seeds " << seed << " to " << seed + rounds - 1 << ", " << messagesInRound
                     << " messages each");
    g_strImageDir = ProgramFolder().c_str();

    Dice shellDice(seed);
    FakeShell shell(shellDice);
    Sweeper sweeper;
    REQUIRE(shell.IsInstalled());
    REQUIRE(sweeper.IsInstalled());
    WarmUpSystem();
    PlayRound(seed - 1, messagesInRound); // The system makes objects of its own for first pages.
    sweeper.Sweep();
    RefreshDeviceContexts();
    const int windows = CountThreadWindows();
    const BalancedGdi objects; // Of all rounds together.

    int swept = 0;
    for (unsigned round = 0; round < rounds; ++round) {
        CAPTURE(seed + round);
        PlayRound(seed + round, messagesInRound);
        swept += sweeper.Sweep();
        RefreshDeviceContexts();
        CHECK_MESSAGE(objects.Growth() <= 0, objects.Describe());
        CHECK(CountThreadWindows() == windows);
        CHECK_MESSAGE(Graveyard::IsQuiet(), "a deleted page was written to");
        REQUIRE(_heapchk() == _HEAPOK);
        ReleaseInput();
    }
    MovePointerAway();
    MESSAGE((rounds * messagesInRound) << " messages survived; targets opened: " << shell.Opened()
                                       << "; objects left on purpose: " << swept);
    if (rounds < usualRounds)
        return; // A repeated round need not reach everything.
    CHECK(shell.Opened() > 0);
    CHECK(swept > 0);
}
