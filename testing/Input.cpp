#include "testing/Input.h"
#include "testing/Pump.h"
#include "testing/Text.h"

#include <optional>
#include <vector>

namespace umbra::testing {

namespace {

constexpr auto arrivalTime = std::chrono::seconds(2);

/// Counts the mouse or keyboard messages that the calling thread takes from its queue. The
/// system calls such a hook also for messages that a nested loop takes, and before it turns them
/// into messages of a window's frame. What it takes may lead to more input, as when a message box
/// comes up and is answered; one hook then counts for both.
class ArrivalCounter
{
public:
    explicit ArrivalCounter(int hookKind)
        : m_before(arrivals), m_users(hookKind == WH_MOUSE ? mouseUsers : keyUsers)
    {
        if (m_users++ > 0)
            return;
        m_hook = ::SetWindowsHookEx(hookKind, hookKind == WH_MOUSE ? CountMouse : CountKey, nullptr,
                                    ::GetCurrentThreadId());
    }
    ArrivalCounter(const ArrivalCounter&) = delete;
    ArrivalCounter& operator=(const ArrivalCounter&) = delete;
    ~ArrivalCounter()
    {
        --m_users;
        if (m_hook != nullptr)
            ::UnhookWindowsHookEx(m_hook);
    }

    int Buttons() const { return arrivals.buttons - m_before.buttons; }
    int Moves() const { return arrivals.moves - m_before.moves; }
    int Keys() const { return arrivals.keys - m_before.keys; }

private:
    struct Arrivals
    {
        int buttons = 0;
        int moves = 0;
        int keys = 0;
    };

    static LRESULT CALLBACK CountMouse(int code, WPARAM message, LPARAM details)
    {
        const bool isMove = message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
        if (code == HC_ACTION)
            ++(isMove ? arrivals.moves : arrivals.buttons);
        return ::CallNextHookEx(nullptr, code, message, details);
    }
    static LRESULT CALLBACK CountKey(int code, WPARAM key, LPARAM details)
    {
        if (code == HC_ACTION)
            ++arrivals.keys;
        return ::CallNextHookEx(nullptr, code, key, details);
    }

    static thread_local Arrivals arrivals;
    static thread_local int mouseUsers;
    static thread_local int keyUsers;

    Arrivals m_before;
    int& m_users;
    HHOOK m_hook = nullptr;
};

thread_local ArrivalCounter::Arrivals ArrivalCounter::arrivals;
thread_local int ArrivalCounter::mouseUsers = 0;
thread_local int ArrivalCounter::keyUsers = 0;

POINT Middle(HWND window)
{
    RECT client{};
    ::GetClientRect(window, &client);
    return {(client.left + client.right) / 2, (client.top + client.bottom) / 2};
}

bool MovePointerTo(POINT screen)
{
    POINT before{};
    ::GetCursorPos(&before);
    if (before.x == screen.x && before.y == screen.y) {
        PumpMessages();
        return true;
    }
    const ArrivalCounter arrivals(WH_MOUSE);
    if (!::SetCursorPos(screen.x, screen.y))
        return false;
    return WaitUntil([&] { return arrivals.Moves() > 0; }, arrivalTime);
}

struct Press
{
    POINT place;
    DWORD time;
};
thread_local std::optional<Press> lastPress;

/// The system takes a second press at the same place for a double click, if it comes soon enough.
void WaitOutDoubleClick()
{
    POINT pointer{};
    ::GetCursorPos(&pointer);
    if (!lastPress || lastPress->place.x != pointer.x || lastPress->place.y != pointer.y)
        return;
    WaitUntil([] { return ::GetTickCount() - lastPress->time > ::GetDoubleClickTime(); });
}

bool SendButton(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    const ArrivalCounter arrivals(WH_MOUSE);
    if (::SendInput(1, &input, sizeof input) != 1)
        return false;
    return WaitUntil([&] { return arrivals.Buttons() > 0; }, arrivalTime);
}

INPUT KeyInput(WORD virtualKey, WORD scanCode, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = scanCode;
    input.ki.dwFlags = flags;
    return input;
}

void AddKey(std::vector<INPUT>& inputs, WORD virtualKey, DWORD flags)
{
    const WORD scanCode = static_cast<WORD>(::MapVirtualKey(virtualKey, MAPVK_VK_TO_VSC));
    inputs.push_back(KeyInput(virtualKey, scanCode, flags));
}

void AddCharacter(std::vector<INPUT>& inputs, TCHAR character)
{
    const SHORT key = ::VkKeyScan(character);
    const WORD virtualKey = LOBYTE(key);
    const int modifiers = HIBYTE(key);
    constexpr int shiftOnly = 1;
    if (key == -1 || (modifiers & ~shiftOnly) != 0) {
        const wchar_t wide = Widened(TString(1, character))[0];
        inputs.push_back(KeyInput(0, wide, KEYEVENTF_UNICODE));
        inputs.push_back(KeyInput(0, wide, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
        return;
    }
    if (modifiers == shiftOnly)
        AddKey(inputs, VK_SHIFT, 0);
    AddKey(inputs, virtualKey, 0);
    AddKey(inputs, virtualKey, KEYEVENTF_KEYUP);
    if (modifiers == shiftOnly)
        AddKey(inputs, VK_SHIFT, KEYEVENTF_KEYUP);
}

/// Keys that follow the one that closed the window go to whichever window of this thread has the
/// focus then; where none has, they are lost.
KeyResult SendKeys(std::vector<INPUT>& inputs)
{
    const UINT count = static_cast<UINT>(inputs.size());
    if (count == 0)
        return keyTaken;
    HWND window = ::GetAncestor(::GetFocus(), GA_ROOT);
    const auto isClosed = [&] { return window != nullptr && !::IsWindowVisible(window); };
    const ArrivalCounter arrivals(WH_KEYBOARD);
    if (::SendInput(count, inputs.data(), sizeof(INPUT)) != count)
        return keyNotTaken;
    const auto areGone = [&] {
        return arrivals.Keys() >= static_cast<int>(count) ||
               (isClosed() && ::GetFocus() == nullptr);
    };
    const bool haveArrived = WaitUntil(areGone, arrivalTime);
    if (isClosed())
        return keyClosedWindow;
    return haveArrived ? keyTaken : keyNotTaken;
}

} // namespace

bool MovePointer(HWND window, POINT client)
{
    POINT screen = client;
    return ::ClientToScreen(window, &screen) && MovePointerTo(screen);
}

bool MovePointer(HWND window)
{
    return MovePointer(window, Middle(window));
}

bool MovePointerAway()
{
    const POINT corner{::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1};
    if (!::SetCursorPos(corner.x, corner.y))
        return false;
    PumpMessages();
    return true;
}

bool PressLeft()
{
    POINT pointer{};
    ::GetCursorPos(&pointer);
    lastPress = Press{pointer, ::GetTickCount()};
    return SendButton(MOUSEEVENTF_LEFTDOWN);
}

bool ReleaseLeft()
{
    return SendButton(MOUSEEVENTF_LEFTUP);
}

bool PressRight()
{
    return SendButton(MOUSEEVENTF_RIGHTDOWN);
}

bool ReleaseRight()
{
    return SendButton(MOUSEEVENTF_RIGHTUP);
}

bool Click(HWND window, POINT client)
{
    if (!MovePointer(window, client))
        return false;
    WaitOutDoubleClick();
    return PressLeft() && ReleaseLeft();
}

bool Click(HWND window)
{
    return Click(window, Middle(window));
}

bool DoubleClick(HWND window, POINT client)
{
    return Click(window, client) && PressLeft() && ReleaseLeft();
}

bool DoubleClick(HWND window)
{
    return DoubleClick(window, Middle(window));
}

bool Drag(HWND window, POINT from, POINT to)
{
    // A window that follows the pointer moves its client area too, so the way is measured on the
    // screen.
    POINT end = to;
    ::ClientToScreen(window, &end);
    POINT start = from;
    ::ClientToScreen(window, &start);
    return MovePointerTo(start) && PressLeft() &&
           MovePointerTo({(start.x + end.x) / 2, (start.y + end.y) / 2}) && MovePointerTo(end) &&
           ReleaseLeft();
}

KeyResult PressKey(WORD virtualKey, WORD modifier)
{
    std::vector<INPUT> inputs;
    if (modifier != 0)
        AddKey(inputs, modifier, 0);
    AddKey(inputs, virtualKey, 0);
    AddKey(inputs, virtualKey, KEYEVENTF_KEYUP);
    if (modifier != 0)
        AddKey(inputs, modifier, KEYEVENTF_KEYUP);
    return SendKeys(inputs);
}

bool TypeText(LPCTSTR text)
{
    std::vector<INPUT> inputs;
    for (; *text != '\0'; ++text)
        AddCharacter(inputs, *text);
    return SendKeys(inputs) != keyNotTaken;
}

} // namespace umbra::testing
