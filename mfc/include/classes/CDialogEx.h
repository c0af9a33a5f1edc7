// A dialog with a background of its own.
#pragma once

#include <classes/CBrush.h>
#include <classes/CDialog.h>

/// A dialog with a background colour or image behind its controls.
class AFX_EXPORTED CDialogEx : public CDialog
{
    DECLARE_DYNAMIC(CDialogEx)

public:
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParent = NULL);
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    ~CDialogEx() override;

    /// Where an image is drawn.
    enum BackgroundLocation {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT,
    };

    /// The colour (COLORREF)-1 goes back to the system's background.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    /// NULL takes the image away. `bAutoDestroy` lets the dialog delete the bitmap.
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE,
                            BOOL bAutoDestroy = TRUE, BOOL bRepaint = TRUE);
    /// FALSE when there is no such bitmap.
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE,
                            BOOL bRepaint = TRUE);

protected:
    DECLARE_MESSAGE_MAP()

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

private:
    void DropImage();

    HBITMAP image_ = NULL;
    BackgroundLocation location_ = BACKGR_TILE;
    BOOL ownsImage_ = FALSE;
    CBrush background_;
};
