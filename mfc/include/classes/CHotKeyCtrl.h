// A field that takes a combination of keys.
#pragma once

#include <classes/CWnd.h>

/// The common control "msctls_hotkey32". A hot key is a virtual key in the low byte and modifiers
/// (HOTKEYF_ values) in the high byte, as WM_SETHOTKEY takes it.
class AFX_EXPORTED CHotKeyCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHotKeyCtrl)

public:
    CHotKeyCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// Combinations that are not allowed (HKCOMB_ values) get wModifiers added.
    void SetRules(WORD wInvalidComb, WORD wModifiers);
    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers);
    DWORD GetHotKey() const;
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const;
    /// As "Ctrl + Shift + A", in the keyboard's language; empty without a hot key.
    CString GetHotKeyName() const;
    /// The name of one key. Extended are those that a keyboard has twice, as the arrows.
    static CString GetKeyName(UINT vk, BOOL fExtended);
};
