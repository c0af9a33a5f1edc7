#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Input.h"

#include "tests/mfc/ControlHost.h"

using namespace umbra::testing;

namespace {

struct HotKey
{
    ControlHost host;
    CHotKeyCtrl field;

    HotKey() { REQUIRE(field.Create(shownChild | WS_TABSTOP, CRect(10, 10, 210, 34), &host, 60)); }
};

} // namespace

TEST_CASE("a hot key is set, read and named")
{
    HotKey hotKey;
    CHECK(hotKey.field.GetHotKeyName() == _T(""));
    hotKey.field.SetHotKey('A', HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    CHECK(hotKey.field.GetHotKey() == MAKEWORD('A', HOTKEYF_CONTROL | HOTKEYF_SHIFT));
    WORD key = 0, modifiers = 0;
    hotKey.field.GetHotKey(key, modifiers);
    CHECK(key == 'A');
    CHECK(modifiers == (HOTKEYF_CONTROL | HOTKEYF_SHIFT));
    const CString plus = _T(" + ");
    CHECK(hotKey.field.GetHotKeyName() == CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE) + plus +
                                              CHotKeyCtrl::GetKeyName(VK_SHIFT, FALSE) + plus +
                                              CHotKeyCtrl::GetKeyName('A', FALSE));
    CHECK(CHotKeyCtrl::GetKeyName('A', FALSE) == _T("A"));
    CHECK_FALSE(CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE).IsEmpty());
    CHECK(CHotKeyCtrl::GetKeyName(VK_DOWN, TRUE) != CHotKeyCtrl::GetKeyName(VK_DOWN, FALSE));
}

TEST_CASE("a hot key is pressed, and the parent hears of it")
{
    HotKey hotKey;
    hotKey.field.SetFocus();
    REQUIRE(PressKey('K', VK_CONTROL));
    CHECK(hotKey.field.GetHotKey() == MAKEWORD('K', HOTKEYF_CONTROL));
    CHECK(hotKey.host.Heard(EN_CHANGE));
}

TEST_CASE("combinations that are not allowed get other modifiers")
{
    HotKey hotKey;
    hotKey.field.SetRules(HKCOMB_NONE, HOTKEYF_ALT);
    hotKey.field.SetFocus();
    REQUIRE(PressKey('K'));
    CHECK(hotKey.field.GetHotKey() == MAKEWORD('K', HOTKEYF_ALT));
}

TEST_CASE("CreateEx gives a hot key field an extended style")
{
    ControlHost host;
    CHotKeyCtrl field;
    REQUIRE(field.CreateEx(WS_EX_STATICEDGE, shownChild, CRect(0, 0, 150, 24), &host, 61));
    CHECK((field.GetExStyle() & WS_EX_STATICEDGE) != 0);
}
