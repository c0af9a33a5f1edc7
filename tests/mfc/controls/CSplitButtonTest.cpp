#include <afxcmn.h>

#include <doctest/doctest.h>

#include "testing/Pump.h"
#include "testing/Ticker.h"

#include "tests/mfc/ControlHost.h"
#include "tests/mfc/Resources.h"

using namespace umbra::testing;

namespace {

const UINT dropDown =
    0U - 1250U + 2U; // BCN_DROPDOWN, which the headers leave out for older systems.

/// Tells the parent that the arrow was clicked, as the control does, and chooses the first item of
/// the menu that opens.
void ClickArrow(CSplitButton& button)
{
    Ticker ticker([] {
        const HWND menu = ::FindWindow(_T("#32768"), NULL);
        if (menu == NULL || !::IsWindowVisible(menu))
            return;
        ::PostMessage(menu, WM_KEYDOWN, VK_DOWN, 0);
        ::PostMessage(menu, WM_KEYDOWN, VK_RETURN, 0);
    });
    NMHDR header = {button.m_hWnd, (UINT_PTR)button.GetDlgCtrlID(), dropDown};
    button.GetParent()->SendMessage(WM_NOTIFY, header.idFrom, (LPARAM)&header);
    ticker.Stop();
    PumpMessages();
}

class CMenuHost : public ControlHost
{
public:
    std::vector<UINT> commands;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (lParam == 0)
            commands.push_back(LOWORD(wParam));
        return ControlHost::OnCommand(wParam, lParam);
    }
};

CMenu* MakeMenu()
{
    CMenu* menu = new CMenu;
    menu->CreatePopupMenu();
    menu->AppendMenu(MF_STRING, 501, _T("&Five"));
    return menu;
}

} // namespace

TEST_CASE("the menu of a split button is one of a resource")
{
    CMenuHost host;
    CSplitButton button(IDR_FRAME, 0);
    REQUIRE(button.Create(shownChild | 0xC, CRect(10, 10, 110, 40), &host, 60));
    ClickArrow(button);
    CHECK(host.commands == std::vector<UINT>{ID_ACTION});
}

TEST_CASE("the menu of a split button is an object that it deletes")
{
    CMenuHost host;
    CMenu* menu = MakeMenu();
    const HMENU handle = menu->m_hMenu;
    {
        CSplitButton button(menu);
        REQUIRE(button.Create(shownChild | 0xC, CRect(10, 10, 110, 40), &host, 60));
        ClickArrow(button);
        CHECK(host.commands == std::vector<UINT>{501});
        CHECK(::IsMenu(handle));
        button.SetDropDownMenu(menu); // The same one stays.
        CHECK(::IsMenu(handle));
        button.SetDropDownMenu(IDR_FRAME, 0);
        CHECK_FALSE(::IsMenu(handle));
    }
}

TEST_CASE("a split button without a menu opens none")
{
    CMenuHost host;
    CSplitButton button;
    REQUIRE(button.Create(shownChild | 0xC, CRect(10, 10, 110, 40), &host, 60));
    NMHDR header = {button.m_hWnd, 60, dropDown};
    host.SendMessage(WM_NOTIFY, 60, (LPARAM)&header);
    button.SetDropDownMenu(64999, 0); // No such resource.
    host.SendMessage(WM_NOTIFY, 60, (LPARAM)&header);
    button.SetDropDownMenu(IDR_FRAME, 9); // No such submenu.
    host.SendMessage(WM_NOTIFY, 60, (LPARAM)&header);
    CHECK(host.commands.empty());
}
