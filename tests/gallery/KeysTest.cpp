// The arrow keys on the gallery's pages.
#include "testing/Pump.h"
#include "testing/Text.h"

#include <afxwin.h>

#include <doctest/doctest.h>

#include <vector>

using namespace umbra::testing;

namespace {

BOOL CALLBACK Remember(HMODULE, LPCTSTR, LPTSTR name, LONG_PTR list)
{
    if (IS_INTRESOURCE(name))
        reinterpret_cast<std::vector<UINT>*>(list)->push_back(LOWORD(name));
    return TRUE;
}

INT_PTR CALLBACK TakeNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

TString ClassOf(HWND window)
{
    TCHAR name[64] = _T("");
    ::GetClassName(window, name, _countof(name));
    return name;
}

} // namespace

TEST_CASE("an arrow key never takes the focus from a control to a label")
{
    std::vector<UINT> templates;
    ::EnumResourceNames(nullptr, RT_DIALOG, Remember, reinterpret_cast<LONG_PTR>(&templates));
    REQUIRE(templates.size() > 10);
    for (const UINT id : templates) {
        CAPTURE(id);
        const HWND page = ::CreateDialogParam(::GetModuleHandle(nullptr), MAKEINTRESOURCE(id),
                                              nullptr, TakeNothing, 0);
        REQUIRE(page != nullptr);
        ::ShowWindow(page, SW_SHOW);
        int stops = 0;
        for (HWND control = ::GetTopWindow(page); control != nullptr;
             control = ::GetWindow(control, GW_HWNDNEXT)) {
            if ((::GetWindowLong(control, GWL_STYLE) & WS_TABSTOP) == 0)
                continue;
            ++stops;
            for (const BOOL previous : {FALSE, TRUE}) {
                const HWND next = ::GetNextDlgGroupItem(page, control, previous);
                const int from = ::GetDlgCtrlID(control), to = ::GetDlgCtrlID(next);
                CAPTURE(from);
                CAPTURE(to);
                CHECK(ClassOf(next) != _T("Static"));
            }
        }
        CHECK(stops > 0);
        ::DestroyWindow(page);
    }
}
