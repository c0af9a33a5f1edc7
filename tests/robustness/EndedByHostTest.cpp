// A host may end a control, and delete its object, in the middle of what the control is doing.
#include "tests/robustness/MonkeyPage.h"
#include "tests/robustness/Outside.h"

#include "testing/Input.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// A window that ends its controls' objects when it is notified of something.
class EndingHost : public CWnd
{
public:
    EndingHost()
    {
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), _T(""),
                 WS_POPUP | WS_VISIBLE, 50, 50, 300, 200, nullptr, nullptr);
    }
    ~EndingHost() override { DestroyWindow(); }

    HWND Add(LPCTSTR className, DWORD style)
    {
        return ::CreateWindow(className, _T("a text"), WS_CHILD | WS_VISIBLE | style, 10, 10, 100,
                              40, m_hWnd, reinterpret_cast<HMENU>(100), nullptr, nullptr);
    }

    /// Destroys the window, then the object, and fills its memory.
    template <class Control>
    static void End(Control*& control)
    {
        if (control == nullptr)
            return;
        Control* const ended = control;
        control = nullptr;
        ended->DestroyWindow();
        ended->~Control();
        memset(static_cast<void*>(ended), filling, sizeof(Control));
    }

    /// Whether an ended object's memory is as End has left it.
    template <class Control>
    static bool IsUntouched(const void* memory)
    {
        const BYTE* bytes = static_cast<const BYTE*>(memory);
        for (size_t i = 0; i < sizeof(Control); ++i) {
            if (bytes[i] != filling)
                return false;
        }
        return true;
    }

    UINT m_endOn = 0;   ///< The message that ends the button.
    UINT m_endCode = 0; ///< Of WM_NOTIFY.
    HastyButton* m_button = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const bool isCode =
            message != WM_NOTIFY || reinterpret_cast<NMHDR*>(lParam)->code == m_endCode;
        if (m_button != nullptr && message == m_endOn && isCode) {
            End(m_button);
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    static constexpr int filling = 0xDD;
};

/// Room for an object that is destroyed by hand.
template <class Control>
class Room
{
public:
    Room() : m_object(new (m_memory) Control) {}
    Control*& Get() { return m_object; }
    bool IsUntouched() const { return EndingHost::IsUntouched<Control>(m_memory); }

private:
    alignas(16) BYTE m_memory[sizeof(Control)];
    Control* m_object;
};

/// A check box whose tool tip comes up at once.
void AddTippedCheckBox(EndingHost& host, Room<HastyButton>& button)
{
    host.m_button = button.Get();
    REQUIRE(button.Get()->SubclassWindow(host.Add(_T("Button"), BS_AUTOCHECKBOX)));
    button.Get()->SetToolTipText("a tip");
    button.Get()->HurryToolTip();
}

} // namespace

TEST_CASE("a link label may be ended while the shell opens its target")
{
    Dice dice(1);
    const FakeShell shell(dice);
    EndingHost host;
    Room<CHyperLink> link;
    REQUIRE(link.Get()->SubclassWindow(host.Add(_T("Static"), SS_NOTIFY)));
    link.Get()->SetURL("http://example.invalid/");
    FakeShell::WhileOpening() = [&] { EndingHost::End(link.Get()); };
    ::SendMessage(link.Get()->m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    CHECK(link.Get() == nullptr);
    CHECK(link.IsUntouched());
}

TEST_CASE("a transparent label may be ended while the shell opens its target")
{
    Dice dice(1);
    const FakeShell shell(dice);
    EndingHost host;
    Room<CStaticTS> label;
    REQUIRE(label.Get()->SubclassWindow(host.Add(_T("Static"), SS_NOTIFY)));
    label.Get()->SetLinkTarget("http://example.invalid/");
    label.Get()->SetLink(TRUE);
    FakeShell::WhileOpening() = [&] { EndingHost::End(label.Get()); };
    ::SendMessage(label.Get()->m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    CHECK(label.Get() == nullptr);
    CHECK(label.IsUntouched());
}

TEST_CASE("a shaded button may be ended by the repaint that dragging out of it brings")
{
    EndingHost host;
    Room<HastyButton> button;
    host.m_button = button.Get();
    REQUIRE(button.Get()->SubclassWindow(host.Add(_T("Button"), BS_PUSHBUTTON)));
    const HWND window = button.Get()->m_hWnd;
    REQUIRE(MovePointer(window, {20, 20}));
    REQUIRE(PressLeft());
    host.m_endOn = WM_DRAWITEM;
    MovePointer(host, {250, 150});
    host.m_endOn = 0;
    ReleaseLeft();
    CHECK_FALSE(::IsWindow(window));
    CHECK(host.m_button == nullptr);
    CHECK(button.IsUntouched());
    MovePointerAway();
}

TEST_CASE("a shaded button may be ended when its tool tip comes or goes")
{
    for (const UINT code : {TTN_SHOW, TTN_POP}) {
        CAPTURE(static_cast<int>(code));
        EndingHost host;
        Room<HastyButton> button;
        AddTippedCheckBox(host, button);
        const HWND window = button.Get()->m_hWnd;
        host.m_endOn = WM_NOTIFY;
        host.m_endCode = code;
        REQUIRE(MovePointer(window, {20, 20}));
        WaitUntil([&] { return host.m_button == nullptr || button.Get()->IsToolTipShown(); });
        if (host.m_button != nullptr)
            ::SendMessage(window, BM_SETCHECK, TRUE, 0); // Pops it.
        CHECK(host.m_button == nullptr);
        CHECK_FALSE(::IsWindow(window));
        CHECK(button.IsUntouched());
        MovePointerAway();
    }
}

TEST_CASE("a shaded check box may be ended while the space bar toggles it")
{
    EndingHost host;
    Room<HastyButton> button;
    AddTippedCheckBox(host, button);
    const HWND window = button.Get()->m_hWnd;
    REQUIRE(MovePointer(window, {20, 20}));
    REQUIRE(WaitUntil([&] { return button.Get()->IsToolTipShown(); }));
    host.m_endOn = WM_NOTIFY;
    host.m_endCode = TTN_POP;
    ::SendMessage(window, WM_KEYDOWN, VK_SPACE, 1);
    CHECK(host.m_button == nullptr);
    CHECK_FALSE(::IsWindow(window));
    CHECK(button.IsUntouched());
    MovePointerAway();
}
