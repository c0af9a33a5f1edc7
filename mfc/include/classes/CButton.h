// A push button, check box, radio button or group box.
#pragma once

#include <classes/CWnd.h>

/// The system's "Button" control. Setters of pictures give back the former picture and take no
/// ownership of the new one.
class AFX_EXPORTED CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton();

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);

    UINT GetState() const;
    void SetState(BOOL bHighlight);
    int GetCheck() const;
    void SetCheck(int nCheck);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);

    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    // These five need the common controls of version 6 and fail without.
    BOOL GetIdealSize(LPSIZE psize);
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL SetTextMargin(LPRECT pmargin);
    BOOL GetTextMargin(LPRECT pmargin);

    /// Draws a button of style BS_OWNERDRAW; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
