// A frame that scrolls a window which is larger.
#pragma once

#include <classes/CWnd.h>

struct IDropTarget;

/// The common control "SysPager". The contained window is its child, and its notification
/// PGN_CALCSIZE asks the parent how large that is. Buttons are PGB_TOPORLEFT and
/// PGB_BOTTOMORRIGHT.
class AFX_EXPORTED CPagerCtrl : public CWnd
{
    DECLARE_DYNAMIC(CPagerCtrl)

public:
    CPagerCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// The window to scroll, which the control is to be the parent of.
    void SetChild(HWND hwndChild);
    /// Asks for the size of the contained window once more.
    void RecalcSize();
    /// Lets the contained window see where the mouse moves.
    void ForwardMouse(BOOL bForward);
    COLORREF SetBkColor(COLORREF clrBk);
    COLORREF GetBkColor() const;
    // Sizes are pixels; setters give the former one back.
    int SetBorder(int iBorder);
    int GetBorder() const;
    int SetButtonSize(int iButtonSize);
    int GetButtonSize() const;
    void SetScrollPos(int iPos);
    int GetScrollPos() const;
    /// Of a button: PGF_NORMAL, PGF_INVISIBLE, PGF_GRAYED, PGF_DEPRESSED or PGF_HOT.
    DWORD GetButtonState(int iButton) const;
    BOOL IsButtonDepressed(int iButton) const;
    BOOL IsButtonGrayed(int iButton) const;
    BOOL IsButtonHot(int iButton) const;
    BOOL IsButtonInvisible(int iButton) const;
    BOOL IsButtonNormal(int iButton) const;
    /// The caller releases it; NULL when the control has none.
    IDropTarget* GetDropTarget() const;
};
