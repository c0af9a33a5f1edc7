#include <classes/CHotKeyCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

constexpr afxint::CommonControl kind = {HOTKEY_CLASS, ICC_HOTKEY_CLASS};

} // namespace

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

CHotKeyCtrl::CHotKeyCtrl() = default;

BOOL CHotKeyCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CHotKeyCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

void CHotKeyCtrl::SetRules(WORD wInvalidComb, WORD wModifiers)
{
    Ask(m_hWnd, HKM_SETRULES, wInvalidComb, wModifiers);
}

void CHotKeyCtrl::SetHotKey(WORD wVirtualKeyCode, WORD wModifiers)
{
    Ask(m_hWnd, HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
}

DWORD CHotKeyCtrl::GetHotKey() const
{
    return Ask(m_hWnd, HKM_GETHOTKEY);
}

void CHotKeyCtrl::GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const
{
    const DWORD key = GetHotKey();
    wVirtualKeyCode = LOBYTE(key);
    wModifiers = HIBYTE(key);
}

CString CHotKeyCtrl::GetHotKeyName() const
{
    WORD key = 0;
    WORD modifiers = 0;
    GetHotKey(key, modifiers);
    CString name;
    if (key == 0)
        return name;
    constexpr struct
    {
        WORD modifier;
        UINT key;
    } parts[] = {{HOTKEYF_CONTROL, VK_CONTROL}, {HOTKEYF_SHIFT, VK_SHIFT}, {HOTKEYF_ALT, VK_MENU}};
    for (const auto& part : parts) {
        if ((modifiers & part.modifier) != 0)
            name += GetKeyName(part.key, FALSE) + _T(" + ");
    }
    return name + GetKeyName(key, (modifiers & HOTKEYF_EXT) != 0);
}

CString CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended)
{
    UINT code = ::MapVirtualKey(vk, MAPVK_VK_TO_VSC) << 16;
    if (fExtended)
        code |= KF_EXTENDED << 16;
    TCHAR name[100] = {};
    ::GetKeyNameText(static_cast<LONG>(code), name, _countof(name));
    return name;
}
