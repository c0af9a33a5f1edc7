#include <afxwin.h>

#include <doctest/doctest.h>

#include "testing/DialogTemplate.h"

using umbra::testing::DialogTemplate;

namespace {

constexpr UINT commandId = 0x8001;
constexpr int boxId = 101;
constexpr int fieldId = 102;

/// A menu of one command and one submenu, and the command that is being asked about.
struct MenuCommand
{
    CMenu menu;
    CCmdUI ui;

    MenuCommand()
    {
        CMenu below;
        REQUIRE(menu.CreatePopupMenu());
        REQUIRE(below.CreatePopupMenu());
        menu.AppendMenu(MF_STRING, commandId, _T("before"));
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), _T("below"));
        ui.m_nID = commandId;
        ui.m_pMenu = &menu;
    }
    UINT State(UINT position) const { return menu.GetMenuState(position, MF_BYPOSITION); }
    CString Text(UINT position) const
    {
        CString text;
        menu.GetMenuString(position, text, MF_BYPOSITION);
        return text;
    }
};

/// A dialog with a check box and a field.
struct Controls
{
    CDialog dialog;
    CCmdUI ui;

    Controls()
    {
        DialogTemplate page(0, 0, 100, 60);
        page.Button(boxId, _T("before"), 0, 0, 40, 12, DialogTemplate::tabStop | BS_CHECKBOX)
            .Edit(fieldId, _T("before"), 0, 20, 40, 12);
        REQUIRE(dialog.CreateIndirect(page.Get()));
        dialog.ShowWindow(SW_SHOW);
    }
    ~Controls() { dialog.DestroyWindow(); }
    CWnd& Ask(int id)
    {
        ui.m_nID = id;
        ui.m_pOther = dialog.GetDlgItem(id);
        REQUIRE(ui.m_pOther != nullptr);
        return *ui.m_pOther;
    }
};

CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

} // namespace

TEST_CASE("a fresh command stands for nothing, and takes no harm from being set")
{
    CCmdUI ui;
    CHECK(ui.m_nID == 0);
    CHECK(ui.m_nIndex == 0);
    CHECK(ui.m_pMenu == nullptr);
    CHECK(ui.m_pSubMenu == nullptr);
    CHECK(ui.m_pOther == nullptr);
    ui.Enable(FALSE);
    ui.SetCheck();
    ui.SetRadio();
    ui.SetText(_T("nothing"));
}

TEST_CASE("a menu item is disabled, checked and enabled again")
{
    MenuCommand command;
    command.ui.Enable(FALSE);
    command.ui.SetCheck();
    CHECK((command.State(0) & MF_GRAYED) != 0);
    CHECK((command.State(0) & MF_CHECKED) != 0);
    command.ui.Enable();
    command.ui.SetCheck(0);
    CHECK((command.State(0) & (MF_GRAYED | MF_DISABLED)) == 0);
    CHECK((command.State(0) & MF_CHECKED) == 0);
}

TEST_CASE("a new text leaves the menu item its state and its command")
{
    MenuCommand command;
    command.ui.Enable(FALSE);
    command.ui.SetCheck();
    command.ui.SetText(_T("after"));
    CHECK(command.Text(0) == "after");
    CHECK((command.State(0) & MF_GRAYED) != 0);
    CHECK((command.State(0) & MF_CHECKED) != 0);
    CHECK(command.menu.GetMenuItemID(0) == commandId);
}

TEST_CASE("a radio item is marked with a bullet, and the mark is taken away")
{
    MenuCommand command;
    const auto kind = [&command] {
        MENUITEMINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_FTYPE;
        REQUIRE(command.menu.GetMenuItemInfo(0, &info, TRUE));
        return info.fType;
    };
    command.ui.SetRadio();
    CHECK((kind() & MFT_RADIOCHECK) != 0);
    CHECK((command.State(0) & MF_CHECKED) != 0);
    command.ui.SetRadio(FALSE);
    CHECK((command.State(0) & MF_CHECKED) == 0);
}

TEST_CASE("an item that opens a submenu is left as it is")
{
    MenuCommand command;
    command.ui.m_nIndex = 1;
    command.ui.m_pSubMenu = command.menu.GetSubMenu(1);
    REQUIRE(command.ui.m_pSubMenu != nullptr);
    const UINT before = command.State(1);
    command.ui.Enable(FALSE);
    command.ui.SetCheck();
    command.ui.SetRadio();
    command.ui.SetText(_T("after"));
    CHECK(command.State(1) == before);
    CHECK(command.Text(1) == "below");
}

TEST_CASE("a check box is disabled, checked and renamed")
{
    Controls controls;
    CWnd& box = controls.Ask(boxId);
    controls.ui.Enable(FALSE);
    controls.ui.SetCheck();
    controls.ui.SetText(_T("after"));
    CHECK_FALSE(box.IsWindowEnabled());
    CHECK(controls.dialog.IsDlgButtonChecked(boxId) == BST_CHECKED);
    CHECK(TextOf(box) == "after");
    controls.ui.Enable();
    controls.ui.SetRadio(FALSE);
    CHECK(box.IsWindowEnabled());
    CHECK(controls.dialog.IsDlgButtonChecked(boxId) == BST_UNCHECKED);
}

TEST_CASE("only buttons hear of the check mark")
{
    // The number of the message is another one's for other controls.
    class Listener : public CWnd
    {
    public:
        int checks = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            checks += message == BM_SETCHECK;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Controls controls;
    Listener field;
    Listener box;
    REQUIRE(field.SubclassDlgItem(fieldId, &controls.dialog));
    REQUIRE(box.SubclassDlgItem(boxId, &controls.dialog));
    controls.ui.m_pOther = &field;
    controls.ui.SetCheck();
    CHECK(field.checks == 0);
    controls.ui.m_pOther = &box;
    controls.ui.SetCheck();
    CHECK(box.checks == 1);
}

TEST_CASE("a control that is disabled hands the focus on")
{
    Controls controls;
    CWnd& box = controls.Ask(boxId);
    box.SetFocus();
    REQUIRE(::GetFocus() == box.m_hWnd);
    controls.ui.Enable(FALSE);
    CHECK(::GetFocus() == controls.dialog.GetDlgItem(fieldId)->m_hWnd);
}
