// The order in which a button and its page get messages, recorded under real input.
#include "tests/robustness/Stage.h"

#include "controls/ShadeButton.h"
#include "dialogs/BaseDialog.h"

#include "testing/DialogTemplate.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Pump.h"

#include <commctrl.h>

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

/// One list for all windows that it listens to. Only what the order is about is written down: who
/// gets which input, changes of state, notifications and requests to draw.
class Record
{
public:
    Record() = default;
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    ~Record()
    {
        for (const Listener& listener : m_listeners)
            ::RemoveWindowSubclass(listener.window, Note, 1);
    }

    void ListenTo(HWND window, const char* name)
    {
        m_listeners.push_back({window, name});
        ::SetWindowSubclass(window, Note, 1, reinterpret_cast<DWORD_PTR>(this));
    }

    void LeaveFocusOut() { m_withFocus = false; }
    void Clear() { m_entries.clear(); }

    /// What has come since the last call, a comma between.
    std::string Take()
    {
        std::string text;
        for (const std::string& entry : m_entries)
            text += (text.empty() ? "" : ", ") + entry;
        Clear();
        return text;
    }

private:
    struct Listener
    {
        HWND window;
        const char* name;
    };

    std::string NameOf(HWND window) const
    {
        for (const Listener& listener : m_listeners) {
            if (listener.window == window)
                return listener.name;
        }
        return "?";
    }

    static std::string StateOf(const DRAWITEMSTRUCT& item)
    {
        std::string state;
        if (item.itemState & ODS_SELECTED)
            state += " selected";
        if (item.itemState & ODS_FOCUS)
            state += " focus";
        if (item.itemState & ODS_DISABLED)
            state += " disabled";
        return state;
    }

    std::string Describe(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const
    {
        const std::string name = NameOf(window);
        switch (message) {
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            return "draw " + NameOf(item.hwndItem) + StateOf(item);
        }
        case WM_COMMAND:
            if (HIWORD(wParam) != BN_CLICKED)
                return "";
            return "command " + NameOf(reinterpret_cast<HWND>(lParam));
        case BM_SETSTATE:
            return name + (wParam ? " pushed" : " raised");
        case WM_ENABLE:
            return name + (wParam ? " enabled" : " disabled");
        case BM_SETCHECK:
            return name + (wParam ? " checked" : " unchecked");
        case WM_SHADE_UNCHECK:
            return name + " is told to be unchecked";
        case WM_MOUSELEAVE:
            return name + " left";
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            return m_withFocus ? name + " " + MessageName(message) : "";
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
        case WM_MOUSEMOVE:
        case WM_CAPTURECHANGED:
        case WM_DESTROY:
        case WM_NCDESTROY:
            return name + " " + MessageName(message);
        }
        return "";
    }

    static LRESULT CALLBACK Note(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                 DWORD_PTR record)
    {
        auto* self = reinterpret_cast<Record*>(record);
        // With every move of the held mouse the system's own button is told its state again. Wine's
        // draws itself each time.
        const bool repeated =
            message == BM_SETSTATE &&
            (wParam != 0) == ((::SendMessage(window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0);
        const bool wasDeaf = self->m_deaf;
        self->m_deaf = wasDeaf || repeated;
        const std::string entry = self->Describe(window, message, wParam, lParam);
        if (!entry.empty() && !self->m_deaf)
            self->m_entries.push_back(entry);
        const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
        self->m_deaf = wasDeaf;
        return result;
    }

    std::vector<Listener> m_listeners;
    std::vector<std::string> m_entries;
    bool m_withFocus = true;
    bool m_deaf = false;
};

const POINT inside = {30, 20};
const POINT outside = {30, 60}; // Below the button.

/// A window with one button, in front, with the pointer and the focus away from it.
class OneButton
{
public:
    explicit OneButton(DWORD style = BS_PUSHBUTTON)
    {
        m_button.SubclassWindow(m_stage.AddButton(style));
        m_button.SetShade(SHADE_DIAGONAL, 0, 0, 100, RGB(180, 200, 230));
        ::SetForegroundWindow(m_stage.m_hWnd);
        TakeFocusAway();
        MovePointerAway();
        m_stage.Show();
        PumpMessages();
        m_record.ListenTo(m_stage.m_hWnd, "page");
        m_record.ListenTo(m_button.m_hWnd, "button");
    }

    HWND Button() const { return m_button.m_hWnd; }
    void TakeFocusAway() { ::SetFocus(m_other); }
    void Hover()
    {
        MovePointer(Button(), inside);
        PumpMessages();
    }
    void Press()
    {
        PressLeft();
        PumpMessages();
    }
    void Release()
    {
        ReleaseLeft();
        PumpMessages();
    }
    void MoveTo(POINT client)
    {
        MovePointer(Button(), client);
        PumpMessages();
    }
    std::string Take()
    {
        PumpMessages();
        return m_record.Take();
    }

private:
    Stage m_stage;
    HWND m_other = m_stage.Add(_T("Edit"), _T(""), WS_TABSTOP, CRect(20, 120, 140, 150));
    CxShadeButton m_button;
    Record m_record;
};

} // namespace

TEST_CASE("hovering over a button draws it once, leaving it draws it once")
{
    OneButton one;
    one.Hover();
    CHECK(one.Take() == "button WM_MOUSEMOVE, draw button");
    one.MoveTo({31, 21});
    CHECK(one.Take() == "button WM_MOUSEMOVE");
    MovePointerAway();
    std::string record;
    WaitUntil([&] { return !(record = one.Take()).empty(); });
    CHECK(record + ", " + one.Take() == "button left, draw button, ");
}

TEST_CASE("a click presses, draws, releases, draws and then tells the page")
{
    OneButton one;
    one.Hover();
    one.Take();
    one.Press();
    CHECK(one.Take() ==
          "button WM_LBUTTONDOWN, button WM_SETFOCUS, draw button focus, button pushed, "
          "draw button selected focus");
    one.Release();
    CHECK(one.Take() ==
          "button WM_LBUTTONUP, button raised, draw button focus, button WM_CAPTURECHANGED, "
          "command button, button WM_MOUSEMOVE, draw button focus");
}

TEST_CASE("dragging out raises the button and dragging in pushes it")
{
    OneButton one;
    one.Hover();
    one.Press();
    one.Take();
    // The system draws the new state at once, and then what the button has made invalid.
    one.MoveTo(outside);
    CHECK(one.Take() == "button WM_MOUSEMOVE, button raised, draw button focus, draw button focus");
    one.MoveTo({32, 62});
    CHECK(one.Take() == "button WM_MOUSEMOVE");
    one.MoveTo(inside);
    CHECK(one.Take() == "button WM_MOUSEMOVE, button pushed, draw button selected focus, "
                        "draw button selected focus");
    one.MoveTo(outside);
    one.Take();
    one.Release();
    CHECK(one.Take() == "button WM_LBUTTONUP, button WM_CAPTURECHANGED, page WM_MOUSEMOVE");
}

TEST_CASE("a double click is two presses and two commands")
{
    OneButton one;
    one.Hover();
    one.Take();
    DoubleClick(one.Button(), inside);
    CHECK(one.Take() ==
          "button WM_LBUTTONDOWN, button WM_SETFOCUS, draw button focus, button pushed, "
          "draw button selected focus, button WM_LBUTTONUP, button raised, draw button focus, "
          "button WM_CAPTURECHANGED, command button, button WM_MOUSEMOVE, draw button focus, "
          "button WM_LBUTTONDBLCLK, button WM_LBUTTONDOWN, button pushed, "
          "draw button selected focus, button WM_LBUTTONUP, button raised, draw button focus, "
          "button WM_CAPTURECHANGED, command button, button WM_MOUSEMOVE, draw button focus");
}

TEST_CASE("a button that loses the focus while it is held lets go without a command")
{
    OneButton one;
    one.Hover();
    one.Press();
    one.Take();
    one.TakeFocusAway();
    CHECK(one.Take() ==
          "button WM_KILLFOCUS, button WM_CAPTURECHANGED, button raised, draw button focus, "
          "draw button, draw button");
    one.Release();
    CHECK(one.Take() == "button WM_LBUTTONUP");
}

TEST_CASE("a check box checks itself before it tells the page")
{
    OneButton one(BS_AUTOCHECKBOX | BS_PUSHLIKE);
    one.Hover();
    one.Press();
    one.Take();
    one.Release();
    CHECK(one.Take() ==
          "button WM_LBUTTONUP, button checked, button raised, draw button focus, "
          "button WM_CAPTURECHANGED, command button, button WM_MOUSEMOVE, draw button focus");
}

TEST_CASE("nothing is drawn while nothing changes")
{
    OneButton one;
    one.Hover();
    one.Take();
    for (int i = 0; i < 10; ++i)
        one.MoveTo({30 + i, 20});
    for (int i = 0; i < 10; ++i)
        PumpMessages();
    CHECK(one.Take().find("draw") == std::string::npos);
    one.Press();
    one.Take();
    for (int i = 0; i < 10; ++i)
        one.MoveTo({30 + i, 20});
    CHECK(one.Take().find("draw") == std::string::npos);
    one.Release();
}

TEST_CASE("a radio button that is checked has the others unchecked after its own message")
{
    Stage stage;
    CxShadeButton buttons[3];
    Record record;
    static const char* const names[] = {"first", "second", "third"};
    for (int i = 0; i < 3; ++i) {
        const DWORD first = i == 0 ? WS_GROUP : 0;
        buttons[i].SubclassWindow(
            stage.AddButton(BS_AUTORADIOBUTTON | BS_PUSHLIKE | first, 10 + 45 * i));
    }
    buttons[0].SetCheck(BST_CHECKED);
    ::SetForegroundWindow(stage.m_hWnd);
    ::SetFocus(buttons[2].m_hWnd);
    MovePointerAway();
    stage.Show();
    PumpMessages();
    MovePointer(buttons[2].m_hWnd, inside);
    PressLeft();
    PumpMessages();
    record.ListenTo(stage.m_hWnd, "page");
    for (int i = 0; i < 3; ++i)
        record.ListenTo(buttons[i].m_hWnd, names[i]);
    ReleaseLeft();
    PumpMessages();
    CHECK(record.Take() ==
          "third WM_LBUTTONUP, third checked, third raised, draw third focus, "
          "third WM_CAPTURECHANGED, command third, first is told to be unchecked, "
          "second is told to be unchecked, third WM_MOUSEMOVE, draw first, draw third focus");
    stage.Close();
}

namespace {

/// A page that writes down what happens around its modal loop.
class ModalPage : public CBaseDialog
{
public:
    explicit ModalPage(Record& record)
        : CBaseDialog(0U, nullptr, false, false, true, false, false, false, false, false),
          m_record(record)
    {
    }

    BOOL OnInitDialog() override
    {
        const BOOL focus = CBaseDialog::OnInitDialog();
        m_record.ListenTo(m_hWnd, "page");
        m_record.ListenTo(m_btnCancel.m_hWnd, "button");
        ::PostMessage(m_hWnd, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                      reinterpret_cast<LPARAM>(m_btnCancel.m_hWnd));
        return focus;
    }

private:
    Record& m_record;
};

} // namespace

TEST_CASE("a modal page disables its owner before it shows and enables it before it goes")
{
    Stage owner;
    Record record;
    record.LeaveFocusOut(); // How dialogs pass it on is the system's.
    record.ListenTo(owner.m_hWnd, "owner");
    g_strImageDir = "no such folder";
    const DialogTemplate source =
        DialogTemplate(20, 20, 150, 100, WS_POPUP | WS_CAPTION, _T("A page"))
            .Button(IDCANCEL, _T("&Go on"), 10, 10, 50, 14);
    MovePointerAway();
    PumpMessages();
    record.Clear();
    ModalPage page(record);
    page.InitModalIndirect(source.Get(), &owner);
    CHECK(page.DoModal() == IDCANCEL);
    CHECK(record.Take() ==
          "owner disabled, command button, owner enabled, page WM_DESTROY, button WM_DESTROY, "
          "button WM_NCDESTROY, page WM_NCDESTROY");
    owner.Close();
}
