// The arrow keys on the gallery's pages.
#include "testing/Pump.h"

#include <afxwin.h>

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace umbra::testing;

namespace {

BOOL CALLBACK Remember(HMODULE, LPCSTR, LPSTR name, LONG_PTR list)
{
    if (IS_INTRESOURCE(name))
        reinterpret_cast<std::vector<UINT>*>(list)->push_back(LOWORD(name));
    return TRUE;
}

INT_PTR CALLBACK TakeNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

std::string ClassOf(HWND window)
{
    char name[64] = "";
    ::GetClassNameA(window, name, sizeof name);
    return name;
}

} // namespace

TEST_CASE("an arrow key never takes the focus from a control to a label")
{
    std::vector<UINT> templates;
    ::EnumResourceNamesA(nullptr, RT_DIALOG, Remember, reinterpret_cast<LONG_PTR>(&templates));
    REQUIRE(templates.size() > 10);
    for (const UINT id : templates) {
        CAPTURE(id);
        const HWND page = ::CreateDialogParamA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id),
                                               nullptr, TakeNothing, 0);
        REQUIRE(page != nullptr);
        ::ShowWindow(page, SW_SHOW);
        int stops = 0;
        for (HWND control = ::GetTopWindow(page); control != nullptr;
             control = ::GetWindow(control, GW_HWNDNEXT)) {
            if ((::GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP) == 0)
                continue;
            ++stops;
            for (const BOOL previous : {FALSE, TRUE}) {
                const HWND next = ::GetNextDlgGroupItem(page, control, previous);
                const int from = ::GetDlgCtrlID(control), to = ::GetDlgCtrlID(next);
                CAPTURE(from);
                CAPTURE(to);
                CHECK(ClassOf(next) != "Static");
            }
        }
        CHECK(stops > 0);
        ::DestroyWindow(page);
    }
}
