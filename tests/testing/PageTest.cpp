#include "testing/DialogTemplate.h"
#include "testing/Page.h"

#include <doctest/doctest.h>

using namespace umbra::testing;

namespace {

constexpr int checkId = 100;
constexpr int editId = 101;
constexpr int listId = 102;
constexpr int comboId = 103;

/// A page with one control of each kind.
DialogTemplate MakePage()
{
    DialogTemplate page(10, 10, 200, 120, DialogTemplate::popup, _T("A page"));
    page.Font(8, _T("Tahoma"))
        .Button(checkId, _T("Check"), 10, 10, 60, 12, DialogTemplate::tabStop | BS_AUTOCHECKBOX)
        .Edit(editId, _T("before"), 10, 30, 80, 14)
        .ListBox(listId, 10, 50, 80, 40)
        .ComboBox(comboId, 100, 50, 80, 60)
        .Add(_T("msctls_progress32"), 104, _T(""), 10, 100, 80, 10)
        .Label(-1, _T("Label"), 100, 10, 50, 8);
    return page;
}

/// The name of a window's class.
TString ClassOf(HWND window)
{
    TCHAR name[64] = _T("");
    ::GetClassName(window, name, _countof(name));
    return name;
}

} // namespace

TEST_CASE("a template has the controls, texts, places and font that it was given")
{
    CDialog dialog;
    const Page page(dialog, MakePage());
    REQUIRE(page.IsOpen());
    CHECK(page.Title() == _T("A page"));
    CHECK(page.Text(editId) == _T("before"));
    CHECK(ClassOf(page.Control(checkId)) == _T("Button"));
    CHECK(ClassOf(page.Control(listId)) == _T("ListBox"));
    CHECK(ClassOf(page.Control(comboId)) == _T("ComboBox"));
    CHECK(ClassOf(page.Control(104)) == _T("msctls_progress32"));

    RECT expected{10, 30, 90, 44};
    ::MapDialogRect(page.Handle(), &expected);
    RECT place{};
    ::GetWindowRect(page.Control(editId), &place);
    ::MapWindowPoints(nullptr, page.Handle(), reinterpret_cast<POINT*>(&place), 2);
    CHECK(place.left == expected.left);
    CHECK(place.top == expected.top);
    CHECK(place.right == expected.right);
    CHECK(place.bottom == expected.bottom);

    LOGFONT font{};
    const auto handle = reinterpret_cast<HFONT>(::SendMessage(page.Handle(), WM_GETFONT, 0, 0));
    REQUIRE(::GetObject(handle, sizeof font, &font) > 0);
    CHECK(TString(font.lfFaceName) == _T("Tahoma"));
}

TEST_CASE("a page is clicked and typed into as by a user")
{
    CDialog dialog;
    Page page(dialog, MakePage());
    CHECK_FALSE(page.IsChecked(checkId));
    CHECK(page.Click(checkId));
    CHECK(page.IsChecked(checkId));
    CHECK(page.Type(editId, _T("After")));
    CHECK(page.Text(editId) == _T("After"));
}

TEST_CASE("a page shows its pixels, and those of a control")
{
    CDialog dialog;
    Page page(dialog, MakePage());
    const Picture whole = page.Show();
    CHECK(whole.Contains(::GetSysColor(COLOR_3DFACE)));
    RECT client{};
    ::GetClientRect(page.Control(editId), &client);
    const Picture edit = page.Show(editId);
    CHECK(edit.Width() == client.right);
    CHECK(edit.Contains(::GetSysColor(COLOR_WINDOW)));
    CHECK(edit.Contains(::GetSysColor(COLOR_WINDOWTEXT)));
}

TEST_CASE("a page closes its window at its end and leaves the object usable")
{
    CDialog dialog;
    for (int i = 0; i < 2; ++i) {
        HWND window = nullptr;
        {
            Page page(dialog, MakePage());
            REQUIRE(page.IsOpen());
            window = page.Handle();
        }
        CHECK_FALSE(::IsWindow(window));
        CHECK(dialog.GetSafeHwnd() == nullptr);
    }
}

TEST_CASE("a page knows that it was closed meanwhile")
{
    CDialog dialog;
    Page page(dialog, MakePage());
    dialog.DestroyWindow();
    CHECK_FALSE(page.IsOpen());
}

TEST_CASE("a page that has ended its dialog is open no more, and its window goes with it")
{
    CDialog dialog;
    HWND window = nullptr;
    {
        DialogTemplate source = MakePage();
        source.Button(IDOK, _T("OK"), 110, 90, 40, 14);
        Page page(dialog, source);
        window = page.Handle();
        CHECK(page.Click(IDOK));
        CHECK_FALSE(page.IsOpen());
        CHECK(::IsWindow(window)); // Hidden: a modeless dialog of MFC's own does no more.
    }
    CHECK_FALSE(::IsWindow(window));
}

TEST_CASE("a page off the screen is no place for the pointer")
{
    CDialog dialog;
    Page page(dialog, MakePage());
    page.MoveOffScreen();
    RECT place{};
    ::GetWindowRect(page.Handle(), &place);
    CHECK(place.right <= 0);
    CHECK(page.IsOpen());
}

TEST_CASE("a page without a template does not open")
{
    CDialog dialog;
    const Page page(dialog, 65000u);
    CHECK_FALSE(page.IsOpen());
}
