#include "testing/DialogTemplate.h"
#include "testing/NextDialog.h"
#include "testing/OpenDialogs.h"
#include "testing/Page.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace umbra::testing;

namespace {

bool Has(const std::vector<HWND>& windows, HWND window)
{
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

} // namespace

TEST_CASE("a dialog is open while it is shown and enabled")
{
    CDialog dialog;
    const Page page(dialog, DialogTemplate(0, 0, 100, 50));
    CHECK(Has(FindOpenDialogs(), page.Handle()));

    dialog.EnableWindow(FALSE);
    CHECK_FALSE(Has(FindOpenDialogs(), page.Handle()));
    CHECK(Has(FindShownDialogs(), page.Handle()));

    dialog.ShowWindow(SW_HIDE);
    CHECK_FALSE(Has(FindShownDialogs(), page.Handle()));
    CHECK(Has(FindDialogs(), page.Handle()));
}

TEST_CASE("a message box is told from a page of the class library")
{
    CDialog dialog;
    const Page page(dialog, DialogTemplate(0, 0, 100, 50));
    CHECK(IsDialog(page.Handle()));
    CHECK_FALSE(IsMessageBox(page.Handle()));

    bool isBox = false;
    const NextDialog answer([&](HWND box) {
        isBox = IsMessageBox(box);
        ::EndDialog(box, IDOK);
    });
    ::MessageBoxA(nullptr, "Text", "Title", MB_OK | MB_ICONINFORMATION);
    CHECK(isBox);
}

TEST_CASE("a window that is no dialog is none")
{
    HWND window =
        ::CreateWindowA("Static", "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    CHECK_FALSE(IsDialog(window));
    CHECK_FALSE(Has(FindDialogs(), window));
    ::DestroyWindow(window);
}
