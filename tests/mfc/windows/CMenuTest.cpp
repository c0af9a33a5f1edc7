#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/GdiObjects.h"

using umbra::testing::BalancedGdi;

namespace {

CString TextOf(const CMenu& menu, UINT item, UINT flags = MF_BYCOMMAND)
{
    CString text;
    menu.GetMenuString(item, text, flags);
    return text;
}

void CALLBACK GiveUpMenu(HWND window, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(window, timer);
    ::EndMenu();
}

} // namespace

TEST_CASE("the destructor of a menu destroys what it still holds")
{
    HMENU kept;
    HMENU destroyed;
    {
        CMenu menu;
        REQUIRE(menu.CreateMenu());
        destroyed = menu;
        CMenu given;
        REQUIRE(given.CreatePopupMenu());
        kept = given.Detach();
        CHECK(given.m_hMenu == nullptr);
    }
    CHECK_FALSE(::IsMenu(destroyed));
    CHECK(::IsMenu(kept));
    ::DestroyMenu(kept);
}

TEST_CASE("a menu finds its owner; others get a temporary object")
{
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    CHECK(CMenu::FromHandle(menu) == &menu);
    CHECK(CMenu::FromHandle(nullptr) == nullptr);

    const HMENU foreign = ::CreatePopupMenu();
    CMenu* temporary = CMenu::FromHandle(foreign);
    CHECK(CMenu::FromHandle(foreign) == temporary);
    CHECK(*temporary != menu);
    CMenu::DeleteTempMap();
    CHECK(::IsMenu(foreign));
    CHECK(CMenu::FromHandle(foreign)->DestroyMenu());
    CHECK_FALSE(::IsMenu(foreign));

    CHECK(menu.DestroyMenu());
    CHECK_FALSE(menu.DestroyMenu());
    static CMenu* volatile none = nullptr;
    CHECK(none->GetSafeHmenu() == nullptr);
}

TEST_CASE("items are appended, inserted, changed and removed")
{
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    CHECK(menu.AppendMenu(MF_STRING, 101, _T("&One")));
    CHECK(menu.AppendMenu(MF_SEPARATOR));
    CHECK(menu.AppendMenu(MF_STRING, 103, CString("Th&ree")));
    CHECK(menu.InsertMenu(101, MF_BYCOMMAND | MF_STRING, 100, _T("&Zero")));
    CHECK(menu.GetMenuItemCount() == 4);
    CHECK(menu.GetMenuItemID(0) == 100);
    CHECK((menu.GetMenuState(2, MF_BYPOSITION) & MF_SEPARATOR));
    CHECK(TextOf(menu, 103) == "Th&ree");
    CHECK(TextOf(menu, 999).IsEmpty());
    TCHAR buffer[3];
    CHECK(menu.GetMenuString(101, buffer, 3, MF_BYCOMMAND) == 2);

    CHECK(menu.ModifyMenu(101, MF_BYCOMMAND | MF_STRING, 111, _T("&Eleven")));
    CHECK(TextOf(menu, 1, MF_BYPOSITION) == "&Eleven");
    CHECK(menu.RemoveMenu(111, MF_BYCOMMAND));
    CHECK(menu.DeleteMenu(1, MF_BYPOSITION));
    CHECK(menu.GetMenuItemCount() == 2);
}

TEST_CASE("items are checked, enabled and made the default")
{
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    for (UINT id = 1; id <= 3; ++id)
        menu.AppendMenu(MF_STRING, id, _T("Item"));
    CHECK(menu.CheckMenuItem(1, MF_CHECKED) == MF_UNCHECKED);
    CHECK((menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED));
    CHECK(menu.CheckMenuRadioItem(1, 3, 2, MF_BYCOMMAND));
    CHECK_FALSE((menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED));
    CHECK((menu.GetMenuState(2, MF_BYCOMMAND) & MF_CHECKED));
    CHECK(menu.EnableMenuItem(3, MF_GRAYED) == MF_ENABLED);
    CHECK((menu.GetMenuState(3, MF_BYCOMMAND) & MF_GRAYED));
    CHECK(menu.SetDefaultItem(2));
    CHECK(menu.GetDefaultItem(0) == 2);
    CHECK(menu.GetDefaultItem(0, TRUE) == 1);
}

TEST_CASE("item and menu information goes both ways")
{
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    MENUITEMINFO item{};
    item.cbSize = sizeof(item);
    item.fMask = MIIM_ID | MIIM_DATA | MIIM_STRING;
    item.wID = 7;
    item.dwItemData = 4711;
    item.dwTypeData = const_cast<LPTSTR>(_T("Seven"));
    CHECK(menu.InsertMenuItem(0, &item, TRUE));
    MENUITEMINFO read{};
    read.cbSize = sizeof(read);
    read.fMask = MIIM_DATA;
    CHECK(menu.GetMenuItemInfo(7, &read));
    CHECK(read.dwItemData == 4711);
    read.dwItemData = 42;
    CHECK(menu.SetMenuItemInfo(0, &read, TRUE));
    CHECK(menu.GetMenuItemInfo(0, &read, TRUE));
    CHECK(read.dwItemData == 42);

    CHECK(menu.GetMenuContextHelpId() == 0);
    CHECK(menu.SetMenuContextHelpId(1234));
    CHECK(menu.GetMenuContextHelpId() == 1234);
    MENUINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIM_HELPID;
    CHECK(menu.GetMenuInfo(&info));
    CHECK(info.dwContextHelpID == 1234);
}

TEST_CASE("an item shows a bitmap")
{
    BalancedGdi balance;
    {
        CBitmap bitmap;
        REQUIRE(bitmap.CreateBitmap(8, 8, 1, 32, nullptr));
        CMenu menu;
        REQUIRE(menu.CreatePopupMenu());
        CHECK(menu.AppendMenu(MF_ENABLED, 1, &bitmap));
        CHECK(menu.InsertMenu(0, MF_BYPOSITION, 2, &bitmap));
        CHECK(menu.AppendMenu(MF_STRING, 3, _T("Text")));
        CHECK(menu.ModifyMenu(3, MF_BYCOMMAND, 3, &bitmap));
        for (UINT position = 0; position < 3; ++position) {
            MENUITEMINFO item{};
            item.cbSize = sizeof(item);
            item.fMask = MIIM_BITMAP;
            CHECK(menu.GetMenuItemInfo(position, &item, TRUE));
            CHECK(item.hbmpItem == static_cast<HBITMAP>(bitmap));
        }
        CHECK(menu.SetMenuItemBitmaps(0, MF_BYPOSITION, nullptr, &bitmap));
        MENUITEMINFO marks{};
        marks.cbSize = sizeof(marks);
        marks.fMask = MIIM_CHECKMARKS;
        CHECK(menu.GetMenuItemInfo(0, &marks, TRUE));
        CHECK(marks.hbmpUnchecked == nullptr);
        CHECK(marks.hbmpChecked == static_cast<HBITMAP>(bitmap));
    }
    CHECK_MESSAGE(balance.IsBalanced(), balance.Describe());
}

TEST_CASE("a menu resource is loaded with its submenus")
{
    CMenu menu;
    REQUIRE(menu.LoadMenu(9102));
    CHECK(menu.GetMenuItemCount() == 2);
    CMenu* file = menu.GetSubMenu(0);
    REQUIRE(file != nullptr);
    CHECK(TextOf(*file, 202) == "E&xit");
    CHECK(menu.GetSubMenu(0) == file);
    CHECK(menu.GetSubMenu(1) == nullptr);

    CMenu missing;
    CHECK_FALSE(missing.LoadMenu(9199));
    CHECK_FALSE(missing.LoadMenu(_T("NoSuchMenu")));
}

TEST_CASE("a menu is made from a template in memory")
{
    const HRSRC place = ::FindResource(nullptr, MAKEINTRESOURCE(9102), RT_MENU);
    REQUIRE(place != nullptr);
    CMenu menu;
    CHECK(menu.LoadMenuIndirect(::LockResource(::LoadResource(nullptr, place))));
    CHECK(menu.GetMenuItemCount() == 2);
}

TEST_CASE("an item is chosen from a popup menu by keyboard")
{
    CMenu menu;
    REQUIRE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 301, _T("First"));
    menu.AppendMenu(MF_STRING, 302, _T("Second"));
    const HWND owner = ::CreateWindow(_T("STATIC"), _T(""), WS_POPUP | WS_VISIBLE, 10, 10, 60, 40,
                                      NULL, NULL, NULL, NULL);
    for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN})
        ::PostMessage(owner, WM_KEYDOWN, key, 0);
    ::SetTimer(owner, 1, 3000, &GiveUpMenu); // Should the keys not arrive.
    CHECK(menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, 20, 20, CWnd::FromHandle(owner)) ==
          302);

    for (const WPARAM key : {VK_DOWN, VK_RETURN})
        ::PostMessage(owner, WM_KEYDOWN, key, 0);
    CHECK(menu.TrackPopupMenuEx(TPM_RETURNCMD | TPM_NONOTIFY, 20, 20, CWnd::FromHandle(owner),
                                nullptr) == 301);
    ::DestroyWindow(owner);
}
