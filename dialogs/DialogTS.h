// CDialogTS: the dialog from which every dialog of the toolkit descends. It snaps itself to the
// dialog-unit grid when its window is created, and can paint its own background: shaped by a mask,
// filled with a colour, or from a bitmap with a caption line. Every mode is off at first; set the
// members before the window is shown.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

class UMBRA_API CDialogTS : public CDialog
{
public:
    explicit CDialogTS(UINT nIDTemplate, CWnd* pParent = nullptr);
    ~CDialogTS() override;

    INT_PTR DoModal() override;

    /// Shows a bitmap as the background, or, with a mask as m_bmpMask has it, a shape. Both stay
    /// the caller's, who keeps them until the dialog is gone or shows others. May be called again,
    /// at any time; NULL takes the background away. m_bSolidFill wins over a bitmap without a mask.
    void SetBackground(HBITMAP image, HBITMAP mask = nullptr);

    /// Gives up the background image and mask. While m_bHasBitmap is set the bitmaps stay with
    /// whoever supplied them: they are detached, not deleted.
    void FreeBitmaps();

    /// Draws the image through the mask at the origin of pDC, cx by cy pixels.
    void DrawShaped(CDC* pDC, int cx, int cy);

    // Read in this order when the background is erased: shaped, solid fill, bitmap.
    BOOL m_bShaped = FALSE;           ///< The background is m_bmpBack seen through m_bmpMask.
    BOOL m_bSolidFill = FALSE;        ///< The client area is filled with m_crFill.
    BOOL m_bCaptionText = FALSE;      ///< The window text is drawn over the bitmap, in white.
    BOOL m_bDragAnywhere = FALSE;     ///< A press anywhere in the client area moves the dialog.
    BOOL m_bMaskBuilt = FALSE;        ///< Cleared with m_bHasBitmap; not read by the toolkit.
    BOOL m_bHasBitmap = FALSE;        ///< m_bmpBack holds a background bitmap to be drawn.
    HBRUSH m_hBackBrush;              ///< The stock null brush; no painting uses it.
    COLORREF m_crFill = RGB(0, 0, 0); ///< Set it together with m_bSolidFill.
    CBitmap m_bmpBack;                ///< The image. Not stretched, not tiled.
    CBitmap m_bmpMask; ///< Black where the image shows; white (and the image black there)
                       ///< where the screen behind is kept.

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);

private:
    void DrawBackground(CDC* pDC, const CRect& client);
    void DrawCaptionLine(CDC* pDC);
};
