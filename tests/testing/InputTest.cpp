#include "testing/DialogTemplate.h"
#include "testing/Input.h"
#include "testing/MessageLog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

constexpr int buttonId = 100;
constexpr int editId = 101;
constexpr int labelId = 102;

/// A page with what can be pressed and typed into.
DialogTemplate MakePage()
{
    DialogTemplate page(20, 20, 200, 100);
    page.Button(buttonId, _T("Press"), 10, 10, 60, 20)
        .Edit(editId, _T(""), 10, 40, 100, 14)
        .Label(labelId, _T("double"), 10, 60, 60, 14, DialogTemplate::visibleChild | SS_NOTIFY);
    return page;
}

/// The page, shown, with the pointer somewhere else.
struct InputFixture
{
    CDialog dialog;
    Page page{dialog, MakePage()};
    InputFixture()
    {
        REQUIRE(page.IsOpen());
        MovePointerAway();
    }
};

} // namespace

TEST_CASE_FIXTURE(InputFixture, "a moved pointer is where it was sent and the window hears of it")
{
    MessageLog log(page.Control(buttonId));
    CHECK(MovePointer(page.Control(buttonId), {3, 4}));
    CHECK(log.Contains(WM_MOUSEMOVE));
    CHECK(log.Last(WM_MOUSEMOVE)->lParam == MAKELPARAM(3, 4));
    POINT pointer{};
    ::GetCursorPos(&pointer);
    ::ScreenToClient(page.Control(buttonId), &pointer);
    CHECK(pointer.x == 3);
    CHECK(pointer.y == 4);
}

TEST_CASE_FIXTURE(InputFixture, "a click presses and releases, and the page gets the command")
{
    MessageLog buttonLog(page.Control(buttonId));
    MessageLog pageLog(page.Handle());
    CHECK(Click(page.Control(buttonId)));
    CHECK(buttonLog.Count(WM_LBUTTONDOWN) == 1);
    CHECK(buttonLog.Count(WM_LBUTTONUP) == 1);
    REQUIRE(pageLog.Contains(WM_COMMAND));
    CHECK(pageLog.Last(WM_COMMAND)->wParam == MAKEWPARAM(buttonId, BN_CLICKED));
}

TEST_CASE_FIXTURE(InputFixture, "a pressed button stays down until it is released")
{
    REQUIRE(MovePointer(page.Control(buttonId)));
    REQUIRE(PressLeft());
    CHECK((::SendMessage(page.Control(buttonId), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0);
    CHECK(::GetCapture() == page.Control(buttonId));
    REQUIRE(ReleaseLeft());
    CHECK((::SendMessage(page.Control(buttonId), BM_GETSTATE, 0, 0) & BST_PUSHED) == 0);
    CHECK(::GetCapture() == nullptr);
}

TEST_CASE_FIXTURE(InputFixture, "a double click is one to a window that knows them")
{
    MessageLog log(page.Control(labelId));
    CHECK(DoubleClick(page.Control(labelId)));
    CHECK(log.Count(WM_LBUTTONDBLCLK) == 1);
}

TEST_CASE_FIXTURE(InputFixture, "two clicks at one place are no double click")
{
    MessageLog log(page.Control(labelId));
    CHECK(Click(page.Control(labelId)));
    CHECK(Click(page.Control(labelId)));
    CHECK(log.Count(WM_LBUTTONDOWN) == 2);
    CHECK(log.Count(WM_LBUTTONDBLCLK) == 0);
}

TEST_CASE_FIXTURE(InputFixture, "a drag moves the pointer while the button is down")
{
    MessageLog log(page.Control(editId));
    CHECK(Drag(page.Control(editId), {2, 5}, {40, 5}));
    REQUIRE(log.Contains(WM_MOUSEMOVE));
    bool movedWithButton = false;
    for (const MessageLog::Entry& entry : log.Entries())
        movedWithButton |= entry.message == WM_MOUSEMOVE && (entry.wParam & MK_LBUTTON) != 0;
    CHECK(movedWithButton);
    CHECK(log.Last(WM_LBUTTONUP)->lParam == MAKELPARAM(40, 5));
}

TEST_CASE_FIXTURE(InputFixture,
                  "typed text arrives in the focused edit, with its capitals and marks")
{
    ::SetFocus(page.Control(editId));
    CHECK(TypeText(_T("Say: \"Hello, World\" 100%!")));
    CHECK(page.Text(editId) == _T("Say: \"Hello, World\" 100%!"));
}

TEST_CASE_FIXTURE(InputFixture, "typed text may hold characters that the keyboard lacks")
{
    ::SetFocus(page.Control(editId));
    CHECK(TypeText(_T("na\xEFve")));
    CHECK(page.Text(editId) == _T("na\xEFve"));
}

TEST_CASE_FIXTURE(InputFixture, "keys reach the page: Tab moves the focus, with Shift back")
{
    ::SetFocus(page.Control(buttonId));
    CHECK(PressKey(VK_TAB) == keyTaken);
    CHECK(::GetFocus() == page.Control(editId));
    CHECK(PressKey(VK_TAB, VK_SHIFT));
    CHECK(::GetFocus() == page.Control(buttonId));
}

TEST_CASE_FIXTURE(InputFixture, "a key that closes the window of the focus is no key that was lost")
{
    ::SetFocus(page.Control(editId));
    CHECK(PressKey(VK_ESCAPE) == keyClosedWindow);
    CHECK_FALSE(page.IsOpen());
    CHECK(PressKey(VK_ESCAPE) == keyNotTaken);
}

TEST_CASE("input that no window of the thread gets is reported")
{
    HWND window = ::CreateWindow(_T("Static"), _T(""), WS_POPUP, 0, 0, 50, 50, nullptr, nullptr,
                                 nullptr, nullptr);
    ::SetFocus(nullptr);
    PumpMessages();
    CHECK_FALSE(Click(window, {10, 10}));
    ::DestroyWindow(window);
}
