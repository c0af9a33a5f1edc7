// A push button with a menu behind an arrow.
#pragma once

#include <classes/CButton.h>

class CMenu;

/// A button of style BS_SPLITBUTTON or BS_DEFSPLITBUTTON, which needs a newer system than the
/// common controls of version 6; it is a push button without them. The commands of the menu go to
/// the parent.
class AFX_EXPORTED CSplitButton : public CButton
{
    DECLARE_DYNAMIC(CSplitButton)

public:
    CSplitButton();
    /// The menu with the submenu that drops down, counted from zero.
    CSplitButton(UINT nMenuId, UINT nSubMenuId);
    /// A menu that drops down itself; the object comes from new, and is deleted with the button.
    explicit CSplitButton(CMenu* pMenu);
    ~CSplitButton() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    void SetDropDownMenu(UINT nMenuId, UINT nSubMenuId);
    void SetDropDownMenu(CMenu* pMenu);

protected:
    /// Shows the menu under the button.
    afx_msg void OnDropDown(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    CMenu* menu_ = NULL; ///< Owned.
    int subMenu_ = -1;   ///< Which of its menus drops down; -1 is the menu itself.
};
