// A property sheet of common controls, driven by keys and pointer.
#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/application/Program.h"
#include "tests/mfc/programs/Tour/resource.h"

namespace {

constexpr char settingsKey[] = "Software\\Umbra Tour Test";
constexpr char tourKey[] = "Software\\Umbra Tour Test\\mfc-test-tour\\Tour";
constexpr int applyNow = 0x3021; // The system's identifier of the button.

/// The program, of which the window is its sheet.
class Tour : public Program
{
public:
    Tour() : Program("mfc-test-tour.exe\"", "Tour") { REQUIRE(BringToFront()); }
    ~Tour() { ::SHDeleteKeyA(HKEY_CURRENT_USER, settingsKey); }

    /// The control of a page that is shown.
    HWND OnPage(int id) const
    {
        HWND page = nullptr;
        while ((page = ::FindWindowExA(window, page, dialogClass, nullptr)) != nullptr) {
            const HWND control = ::GetDlgItem(page, id);
            if (control != nullptr && ::IsWindowVisible(page))
                return control;
        }
        return nullptr;
    }
    std::string TextOnPage(int id) const
    {
        char text[100] = "";
        ::SendMessageA(OnPage(id), WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
        return text;
    }
    bool Says(int id, const char* text) const
    {
        return WaitFor([&] { return TextOnPage(id) == text; });
    }
    bool CanApply() const { return ::IsWindowEnabled(Control(applyNow)) != FALSE; }
    /// To the next page, by its keys.
    bool Turn(int control) const
    {
        Press(VK_TAB, VK_CONTROL);
        return WaitFor([&] { return OnPage(control) != nullptr; });
    }
    bool Apply() const
    {
        if (!WaitFor([&] { return CanApply(); }))
            return false;
        ClickAt(Control(applyNow));
        return WaitFor([&] { return !CanApply(); });
    }
    static DWORD Number(const char* name)
    {
        DWORD number = 999, size = sizeof(number);
        ::SHGetValueA(HKEY_CURRENT_USER, tourKey, name, nullptr, &number, &size);
        return number;
    }
    static std::string Setting(const char* name)
    {
        char text[100] = "";
        DWORD size = sizeof(text);
        ::SHGetValueA(HKEY_CURRENT_USER, tourKey, name, nullptr, text, &size);
        return text;
    }
};

} // namespace

TEST_CASE("a slider moves a bar, arrows count, and Apply keeps both")
{
    Tour program;
    CHECK(program.Says(IDC_SLIDER_TEXT, "20"));
    CHECK_FALSE(program.CanApply());
    const HWND slider = program.OnPage(IDC_SLIDER);
    program.ClickAt(slider, {4, 40}); // Beside the channel: it takes the focus alone.
    CHECK(program.HasFocus(slider));
    program.Press(VK_RIGHT);
    program.Press(VK_RIGHT);
    CHECK(program.Says(IDC_SLIDER_TEXT, "22"));
    CHECK(::SendMessage(program.OnPage(IDC_PROGRESS), PBM_GETPOS, 0, 0) == 22);

    RECT arrows{};
    ::GetClientRect(program.OnPage(IDC_COUNT_SPIN), &arrows);
    program.ClickAt(program.OnPage(IDC_COUNT_SPIN), {arrows.right / 2, arrows.bottom / 4});
    CHECK(program.Says(IDC_COUNT, "6"));
    CHECK(program.Apply());
    CHECK(Tour::Number("Level") == 22);
    CHECK(Tour::Number("Count") == 6);
    program.ClickAt(program.Control(IDCANCEL));
    CHECK(program.ExitCode() == 60 + IDCANCEL);
}

TEST_CASE("a value out of its limits keeps the sheet open")
{
    Tour program;
    const HWND count = program.OnPage(IDC_COUNT);
    program.ClickAt(count);
    CHECK(program.HasFocus(count));
    program.Press(VK_END);
    program.Type("7");
    CHECK(program.Says(IDC_COUNT, "57"));
    program.ClickAt(program.Control(IDOK));
    const HWND box = program.Find("mfc-test-tour");
    REQUIRE(box != nullptr);
    program.Press(VK_RETURN);
    CHECK(WaitFor([&] { return !::IsWindow(box); }));
    CHECK(::IsWindowVisible(program.window));
    CHECK(Tour::Number("Count") == 999);
    CHECK(program.HasFocus(count));
    program.Press(VK_ESCAPE);
    CHECK(program.ExitCode() == 60 + IDCANCEL);
}

TEST_CASE("a date, a day, an address and a hot key are entered, and OK keeps them")
{
    Tour program;
    REQUIRE(program.Turn(IDC_DATE));
    const HWND date = program.OnPage(IDC_DATE);
    program.ClickAt(date, {8, 8});
    CHECK(program.HasFocus(date));
    program.Press(VK_DOWN);
    CHECK(program.Says(IDC_DATE, "22.11.2005"));
    program.ClickAt(program.OnPage(IDC_CALENDAR));
    CHECK(WaitFor([&] { return program.TextOnPage(IDC_DATES_TEXT).size() == 10; }));
    const std::string day = program.TextOnPage(IDC_DATES_TEXT);
    CHECK(day.substr(0, 8) == "2005-11-");

    program.ClickAt(program.OnPage(IDC_ADDRESS), {12, 8});
    program.Type("10.0.7.99");
    CHECK(program.Says(IDC_ADDRESS, "10.0.7.99"));
    program.ClickAt(program.OnPage(IDC_HOTKEY));
    CHECK(program.HasFocus(program.OnPage(IDC_HOTKEY)));
    program.Press('K', VK_CONTROL);
    CHECK(WaitFor(
        [&] { return program.TextOnPage(IDC_DATES_TEXT).find(" + K") != std::string::npos; }));
    program.ClickAt(program.Control(IDOK));
    CHECK(program.ExitCode() == 60 + IDOK);
    CHECK(Tour::Setting("Date") == "2005-11-22");
    CHECK(Tour::Setting("Day") == day);
    CHECK(Tour::Number("Address") == 0x0A000763);
    CHECK(Tour::Number("HotKey") == MAKEWORD('K', HOTKEYF_CONTROL));
    CHECK(Tour::Number("Count") == 5);
}

TEST_CASE("a list paints rows by itself, and tabs lead to a tree")
{
    Tour program;
    REQUIRE(program.Turn(IDC_DATE));
    REQUIRE(program.Turn(IDC_LIST));
    CHECK(program.Says(IDC_PAINTED, "2 red"));
    const HWND list = program.OnPage(IDC_LIST), tree = program.OnPage(IDC_TREE);
    CHECK(::IsWindowVisible(list));
    CHECK_FALSE(::IsWindowVisible(tree));
    program.ClickAt(list, {20, 30}); // Below the header.
    CHECK(program.Says(IDC_CHOICE, "Ann"));
    program.Press(VK_DOWN);
    CHECK(program.Says(IDC_CHOICE, "Bob"));

    const HWND tab = program.OnPage(IDC_TAB);
    program.ClickAt(tab, {10, 8});
    CHECK(program.HasFocus(tab));
    program.Press(VK_RIGHT);
    CHECK(WaitFor([&] { return ::IsWindowVisible(tree) && !::IsWindowVisible(list); }));
    program.ClickAt(tree, {40, 6});
    CHECK(program.Says(IDC_CHOICE, "Plants"));
    program.Press(VK_DOWN);
    CHECK(program.Says(IDC_CHOICE, "Moss"));
    program.ClickAt(program.Control(IDOK));
    CHECK(program.ExitCode() == 60 + IDOK);
}
