// The look of one command: a menu item or a control that an ON_UPDATE_COMMAND_UI handler sets up.
#pragma once

#include <classes/Platform.h>

class CCmdTarget;
class CFrameWnd;
class CMenu;
class CWnd;

/// A command's item while its state is being asked for.
class AFX_EXPORTED CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI();

    UINT m_nID;
    UINT m_nIndex;     ///< Position of the menu item, or number of the control.
    CMenu* m_pMenu;    ///< NULL when the item is not in a menu.
    CMenu* m_pSubMenu; ///< The menu that the item opens, else NULL.
    CWnd* m_pOther;    ///< NULL when the item is in a menu.

    virtual void Enable(BOOL bOn = TRUE);
    /// 0 unchecked, 1 checked, 2 undetermined.
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// The handler declines; the next target in the chain is asked.
    void ContinueRouting();

private:
    friend class CFrameWnd;
    friend class CWnd;
    friend class CCmdTarget;

    bool DoUpdate(CCmdTarget* target, bool disableWithoutHandler);

    bool enableChanged_ = false;
    bool continueRouting_ = false;
};
