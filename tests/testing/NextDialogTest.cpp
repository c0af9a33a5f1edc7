#include "testing/NextDialog.h"
#include "testing/Page.h"
#include "testing/Pump.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

TEST_CASE("a message box is answered by the real pointer")
{
    TString text;
    NextDialog answer([&](HWND box) {
        Page page(box);
        text = page.Title();
        CHECK(page.Click(IDNO));
    });
    CHECK(::MessageBox(nullptr, _T("Go on?"), _T("Question"), MB_YESNO) == IDNO);
    CHECK(answer.HasRun());
    CHECK(text == _T("Question"));
}

TEST_CASE("a message box is answered by the keyboard, and its keys do what they do in its own loop")
{
    NextDialog answer([&](HWND box) {
        Page page(box);
        CHECK(page.PressKey(VK_TAB) == keyTaken); // From Yes to No.
        CHECK(page.PressKey(VK_RETURN) == keyClosedWindow);
    });
    CHECK(::MessageBox(nullptr, _T("Go on?"), _T("Question"), MB_YESNO) == IDNO);
}

TEST_CASE("dialogs that were open before are not taken for the next one")
{
    CDialog open;
    DialogTemplate source(0, 0, 100, 50);
    const Page page(open, source);
    HWND met = nullptr;
    NextDialog answer([&](HWND box) {
        met = box;
        ::EndDialog(box, IDOK);
    });
    ::MessageBox(nullptr, _T("Text"), _T("Title"), MB_OK);
    CHECK(answer.HasRun());
    CHECK(met != page.Handle());
}

TEST_CASE("nothing runs when no dialog comes")
{
    bool hasRun = false;
    {
        const NextDialog answer([&](HWND) { hasRun = true; });
        WaitUntil([] { return false; }, std::chrono::milliseconds(60));
        CHECK_FALSE(answer.HasRun());
    }
    WaitUntil([] { return false; }, std::chrono::milliseconds(60));
    CHECK_FALSE(hasRun);
}

TEST_CASE("a dialog is taken once, by the one that has waited longest and awaits it")
{
    std::string order;
    const auto take = [&](const char* name) {
        return [&order, name](HWND box) {
            order += name;
            PumpMessages(); // The others look meanwhile.
            ::EndDialog(box, IDOK);
        };
    };
    const NextDialog never(take("never"), [](HWND) { return false; });
    const NextDialog first(take("first "));
    const NextDialog second(take("second "));
    ::MessageBox(nullptr, _T("Text"), _T("One"), MB_OK);
    CHECK_FALSE(second.HasRun());
    ::MessageBox(nullptr, _T("Text"), _T("Two"), MB_OK);
    CHECK(second.HasRun());
    CHECK(order == "first second ");
    CHECK_FALSE(never.HasRun());
}
