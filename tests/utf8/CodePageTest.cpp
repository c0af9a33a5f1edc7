// A narrow program whose manifest asks for UTF-8 as its code page; the tests of four scripts run in
// it, too.
#include "tests/FourScripts.h"
#include "tests/mfc/ControlHost.h"

#include "testing/DialogTemplate.h"
#include "testing/Page.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

/// What the system shows, without a conversion.
std::wstring WideTextOf(HWND window)
{
    wchar_t text[64] = L"";
    ::GetWindowTextW(window, text, _countof(text));
    return text;
}

const std::wstring wideScripts = L"\u65E5\u672C\u8A9E za\u017C\u00F3\u0142\u0107 "
                                 L"\u0645\u0631\u062D\u0628\u0627 \U0001F600\U0001F408";

} // namespace

TEST_CASE("the manifest gives the program UTF-8 as its code page")
{
    CHECK(::GetACP() == CP_UTF8);
}

TEST_CASE("the system shows what the program gives it as UTF-8")
{
    ControlHost host;
    host.SetWindowText(fourScripts);
    CHECK(WideTextOf(host.m_hWnd) == wideScripts);
}

TEST_CASE("what others write into a window is read as UTF-8")
{
    ControlHost host;
    CEdit edit;
    REQUIRE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &host, 1));
    ::SetWindowTextW(edit.m_hWnd, wideScripts.c_str());
    CString text;
    edit.GetWindowText(text);
    CHECK(text == fourScripts);
}

// In a control with an object of the library each letter is a message of narrow characters, which
// not every system puts together.
TEST_CASE("letters of every script are typed into a control without an object")
{
    DialogTemplate source(0, 0, 100, 50);
    source.Edit(100, "", 5, 5, 80, 14);
    CDialog dialog;
    const Page page(dialog, source);
    for (const wchar_t letter : std::wstring(L"\u0142\u65E5"))
        ::SendMessageW(page.Control(100), WM_CHAR, letter, 0);
    CString text;
    dialog.GetDlgItemText(100, text);
    CHECK(text == "\u0142\u65E5");
    CHECK(text.GetLength() == 5); // Bytes.
}

TEST_CASE("string resources are read as UTF-8")
{
    CString text;
    REQUIRE(text.LoadString(1));
    CHECK(text == fourScripts);
}

TEST_CASE("narrow and wide strings convert into each other whole")
{
    CHECK(CStringW(fourScripts) == wideScripts.c_str());
    CHECK(CStringA(wideScripts.c_str()) == fourScripts);
}
