#include <classes/CCmdUI.h>

#include <classes/CMenu.h>
#include <classes/CWnd.h>

namespace {

/// Where the item stands in its menu; a submenu has no command, so the position names it.
constexpr UINT ByPosition(UINT flags)
{
    return MF_BYPOSITION | flags;
}

bool IsButton(CWnd& control)
{
    return (control.SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0;
}

} // namespace

CCmdUI::CCmdUI() : m_nID(0), m_nIndex(0), m_pMenu(NULL), m_pSubMenu(NULL), m_pOther(NULL)
{
}

CCmdUI::~CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn)
{
    enableChanged_ = true;
    if (m_pMenu != NULL) {
        if (m_pSubMenu == NULL)
            m_pMenu->EnableMenuItem(m_nIndex, ByPosition(bOn ? MF_ENABLED : MF_GRAYED));
        return;
    }
    if (m_pOther == NULL)
        return;
    // A control that is to be disabled must not keep the focus, or the keyboard would be dead.
    if (!bOn && CWnd::GetFocus() == m_pOther) {
        if (CWnd* parent = m_pOther->GetParent())
            parent->SendMessage(WM_NEXTDLGCTL, 0, FALSE);
    }
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu != NULL) {
        if (m_pSubMenu == NULL)
            m_pMenu->CheckMenuItem(m_nIndex, ByPosition(nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
        return;
    }
    if (m_pOther != NULL && IsButton(*m_pOther))
        m_pOther->SendMessage(BM_SETCHECK, nCheck);
}

void CCmdUI::SetRadio(BOOL bOn)
{
    if (m_pMenu != NULL && bOn && m_pSubMenu == NULL) {
        m_pMenu->CheckMenuRadioItem(m_nIndex, m_nIndex, m_nIndex, MF_BYPOSITION);
        return;
    }
    SetCheck(bOn ? 1 : 0);
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (m_pMenu != NULL) {
        if (m_pSubMenu != NULL)
            return;
        const UINT state = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION);
        const UINT kept = state & ~static_cast<UINT>(MF_BITMAP | MF_OWNERDRAW | MF_SEPARATOR);
        m_pMenu->ModifyMenu(m_nIndex, ByPosition(MF_STRING | kept), m_nID, lpszText);
        return;
    }
    if (m_pOther != NULL)
        m_pOther->SetWindowText(lpszText);
}

void CCmdUI::ContinueRouting()
{
    continueRouting_ = true;
}

bool CCmdUI::DoUpdate(CCmdTarget* target, bool disableWithoutHandler)
{
    enableChanged_ = false;
    const bool handled =
        target->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, NULL) != FALSE;
    if (disableWithoutHandler && !enableChanged_) {
        AFX_CMDHANDLERINFO handler{};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &handler));
    }
    return handled;
}
