#include <classes/CSplitButton.h>

#include <classes/CMenu.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

IMPLEMENT_DYNAMIC(CSplitButton, CButton)

BEGIN_MESSAGE_MAP(CSplitButton, CButton)
    ON_NOTIFY_REFLECT(BCN_DROPDOWN, &CSplitButton::OnDropDown)
END_MESSAGE_MAP()

CSplitButton::CSplitButton() = default;

CSplitButton::CSplitButton(UINT nMenuId, UINT nSubMenuId)
{
    SetDropDownMenu(nMenuId, nSubMenuId);
}

CSplitButton::CSplitButton(CMenu* pMenu)
{
    SetDropDownMenu(pMenu);
}

CSplitButton::~CSplitButton()
{
    delete menu_;
}

BOOL CSplitButton::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CButton::Create(NULL, dwStyle, rect, pParentWnd, nID);
}

void CSplitButton::SetDropDownMenu(UINT nMenuId, UINT nSubMenuId)
{
    CMenu* menu = new CMenu;
    if (!menu->LoadMenu(nMenuId)) {
        delete menu;
        menu = NULL;
    }
    SetDropDownMenu(menu);
    subMenu_ = static_cast<int>(nSubMenuId);
}

void CSplitButton::SetDropDownMenu(CMenu* pMenu)
{
    if (menu_ != pMenu)
        delete menu_;
    menu_ = pMenu;
    subMenu_ = -1;
}

void CSplitButton::OnDropDown(NMHDR*, LRESULT* pResult)
{
    *pResult = 0;
    CMenu* shown = subMenu_ < 0 ? menu_ : menu_ == NULL ? NULL : menu_->GetSubMenu(subMenu_);
    if (shown->GetSafeHmenu() == NULL)
        return;
    CRect area;
    GetWindowRect(area);
    shown->TrackPopupMenu(TPM_LEFTALIGN | TPM_TOPALIGN, area.left, area.bottom, GetParent());
}
