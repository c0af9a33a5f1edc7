#include <afxcontrolbars.h>

#include <uxtheme.h>

#include <doctest/doctest.h>

TEST_CASE("the manager of the system's theme knows whether there is one")
{
    const HMODULE themes = LoadLibrary(_T("uxtheme.dll"));
    REQUIRE(themes != NULL);
    const auto isActive = reinterpret_cast<BOOL(WINAPI*)()>(
        reinterpret_cast<INT_PTR>(GetProcAddress(themes, "IsThemeActive")));
    REQUIRE(isActive != NULL);
    CHECK(CMFCVisualManagerWindows::IsWinXPThemeAvailable() == isActive());
    FreeLibrary(themes);
}

TEST_CASE("the manager of the system's theme has menus of the kind that it is told")
{
    CMFCVisualManagerWindows manager(TRUE);
    CHECK(manager.IsWindowsThemingSupported());
    CHECK_FALSE(manager.IsOfficeXPStyleMenus());
    manager.SetOfficeStyleMenus();
    CHECK(manager.IsOfficeStyleMenus());
    CHECK(manager.IsOfficeXPStyleMenus());
}
