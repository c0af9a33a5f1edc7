// CStaticTS: a label that paints itself. It draws its window text in a colour of its own, plain,
// etched or as a link, over an opaque or colour-keyed picture; a click on a link opens its text or
// a stored target. A label whose window is created through the class snaps to the dialog-unit grid.
//
// A control of a dialog template needs the style SS_NOTIFY to be clickable. The system's static
// control draws a new window text at once in its own way: after SetWindowText, invalidate the
// parent under the label, erasing.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

class UMBRA_API CStaticTS : public CStatic
{
public:
    CStaticTS();
    ~CStaticTS() override;

    /// Makes the label a link, underlined and blue, or a plain label again, which stays blue.
    /// Gives the control a new font, which is not deleted. Answers what WM_SETFONT answered.
    LRESULT SetLink(BOOL bLink);

    /// Gives the control a font, which stays the caller's. From then on each paint derives, and
    /// leaves behind, a font of its own: one GDI object a paint, unless m_bOwnFont is set again.
    void SetLabelFont(HFONT hFont);

    /// Sets the text colour and repaints the parent under the label.
    void SetLabelTextColor(COLORREF color);

    /// Sets the picture's key colour for the next LoadPicture; CLR_NONE makes it opaque.
    void SetTransparentColor(COLORREF color);

    /// Shows a picture file. The former bitmap is let go, not deleted. Always TRUE; a picture that
    /// cannot be loaded changes nothing.
    BOOL LoadPicture(CString path);

    /// What a click opens: the target once one was set, else the window text.
    void SetLinkTarget(const CString& target);

    void SetTransparent(BOOL bTransparent) { m_bTransparent = bTransparent; }
    void SetEmbossed(BOOL bEmbossed) { m_bEmbossed = bEmbossed; }
    /// Offered to reflected colour requests; CLR_NONE lets the parent's colours stand.
    void SetBackColor(COLORREF color) { m_crBack = color; }

    CString m_strLinkTarget;     ///< Opened by a click while m_bUseLinkTarget is set.
    BOOL m_bTransparent = FALSE; ///< Colour requests answer with the null brush.
    BOOL m_bHasPicture = FALSE;  ///< m_bmpPicture holds a loaded picture.
    BOOL m_bEmbossed = FALSE;    ///< Etched text in the system's colours; m_crText is not used.
    BOOL m_bOwnFont = TRUE;      ///< Paint with the window's font exactly as it is.
    BOOL m_bStyleAlign = TRUE;   ///< Each paint takes m_nTextFormat from the window style.
    COLORREF m_crText = RGB(0, 0, 0);
    COLORREF m_crBack = CLR_NONE;
    COLORREF m_crTransparent = CLR_NONE;
    CBrush m_brBack; ///< What the last colour request was answered with.
    CBitmap m_bmpPicture;
    CBitmap m_bmpMask;
    UINT m_nTextFormat = DT_CENTER; ///< Horizontal alignment for DrawText.
    BYTE m_bLink = FALSE;
    BYTE m_bUseLinkTarget = FALSE;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnPaint();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);

    void FreeBitmaps();
    void BuildMask();
    void InvalidateParentArea();
    void DrawMasked(CDC* pDC, int cx, int cy);
    void DrawLabelText(CDC* pDC);

    /// Opens a document or address; the result is the shell's, or that of the program run instead.
    UINT ShellOpen(CString target, int showCommand);
    LONG QueryRegistryDefault(HKEY root, LPCTSTR subKey, LPTSTR out);

private:
    void DrawLabel(CDC* pDC);
    void DrawOpaquePicture(CDC* pDC);
    void SelectLabelFont(CDC* pDC);
    LOGFONT DescribeFont() const;
};
