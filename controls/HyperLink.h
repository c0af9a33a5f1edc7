// CHyperLink: a label that can act as a link. It paints its window text over an optional
// colour-keyed picture, shows a tool tip, has the hand cursor over it and opens its target when it
// is pressed. Subclass a static control of a template with it, then use the setters, the key colour
// before the picture. The control needs the style SS_NOTIFY to be clickable. The system's static
// control draws a new window text at once in its own way: after SetWindowText, invalidate the
// parent under the label, erasing.
#pragma once

#include "umbra_api.h"

#include <afxcmn.h>
#include <afxwin.h>

class UMBRA_API CHyperLink : public CStatic
{
public:
    CHyperLink();
    ~CHyperLink() override;

    void SetTextColor(COLORREF color); ///< Repaints nothing.

    /// Sets the picture's key colour for the next SetBitmapFile; with CLR_NONE no picture is drawn.
    void SetTransparentColor(COLORREF color);

    /// Shows a picture file. The former bitmap is let go, not deleted. Always TRUE; a picture that
    /// cannot be loaded changes nothing.
    BOOL SetBitmapFile(CString path);

    BOOL SetToolTipText(CString text); ///< Creates or updates the tool tip. Always TRUE.

    /// Makes the label a link, underlined; an empty target means its text. The text colour stays.
    void SetURL(CString target);
    bool IsLink() const { return m_bIsLink; }

    /// Gives the control an underlined copy of its font when the label is a link, a semibold one
    /// otherwise. Each call leaves one font object behind.
    void ApplyLinkFont();

    /// Passes a mouse message of this control on to the tool tip.
    void RelayToolTipEvent(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    CToolTipCtrl m_ToolTip;
    int m_nBitmapWidth = 0;  ///< Pixels.
    int m_nBitmapHeight = 0; ///< Pixels.
    BOOL m_bBitmapLoaded = FALSE;
    COLORREF m_crTransparent = CLR_NONE;
    CBitmap m_bmpPicture; ///< Black where it had the key colour.
    CBitmap m_bmpMask;
    bool m_bIsLink = false;
    bool m_bToolTip = false; ///< A tool tip text has been set.
    COLORREF m_crText = RGB(0, 0, 0);
    CString m_strURL;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);

    void BuildTransparencyMask();
    LONG QueryRegistryDefault(HKEY root, LPCTSTR subKey, LPTSTR out);

private:
    void DrawLabel(CDC& dc);
    void CreateToolTip();
};
