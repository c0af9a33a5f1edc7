// CxShadeButton: an owner-drawn button whose faces are computed bitmaps. It follows the mouse with
// a hot face, can show an icon or a picture beside its caption, and can be a push button, a check
// box or a radio button while it keeps its own look.
//
// Subclass a button of a dialog with it (DDX_Control), then call SetShade, again after each change
// of size. The kind follows from the style that the button has then, bit by bit: BS_AUTOCHECKBOX
// gives a check box, BS_AUTORADIOBUTTON a radio button, and so do all styles that contain their
// bits (BS_OWNERDRAW and BS_GROUPBOX count as check boxes); everything else, the plain BS_CHECKBOX
// and BS_RADIOBUTTON included, gives a push button. The system sees an owner-drawn button in all of
// them: DDX_Check and GetCheckedRadioButton work, DDX_Radio does not.
#pragma once

#include "umbra_api.h"

#include "faces/PaletteDib.h"
#include "faces/ShadeStyle.h"

#include <afxcmn.h>
#include <afxwin.h>

/// Sent among the radio buttons of a group: be unchecked.
const UINT WM_SHADE_UNCHECK = WM_USER + 0x100;

class UMBRA_API CxShadeButton : public CButton
{
public:
    CxShadeButton();
    ~CxShadeButton() override;

    /// Where a picture or icon stands.
    enum Align : UINT {
        alignLeft = 0x100,
        alignRight = 0x200,
        alignTop = 0x300 ///< Above the caption, centred.
    };
    enum Kind : UINT { kindPush = 0, kindCheck = 2, kindRadio = 4 };

    /// Computes the faces for the button's present size: a SHADE_... style, the amplitude of the
    /// grain, how far (percent) the hot face goes towards the highlight colour, how far (percent)
    /// all faces go towards `colour`. Repaints nothing. Always TRUE.
    BOOL SetShade(UINT shade, BYTE granularity, BYTE highlight, BYTE coloring, COLORREF color);

    /// Makes the faces anew as the last SetShade asked for, for the button's present size and the
    /// system's present colours: to be called after a change of either. Repaints. FALSE: there was
    /// no SetShade yet.
    BOOL UpdateShade();

    /// Loads a picture file to be shown in width by height pixels, its mask colour transparent
    /// (CLR_NONE: none). It replaces the icons of all states, which are destroyed, and a former
    /// picture, which is let go, not deleted. A file that does not load leaves the button without a
    /// picture and without icons. Repaints nothing. Always TRUE.
    BOOL SetPicture(CString path, UINT align, int width, int height, COLORREF maskColor);

    /// Shows an icon of width by height pixels; the pressed and hot looks have the same one unless
    /// theirs is given. The button owns the icons from here on and destroys former ones, save those
    /// that are given again. An icon replaces a picture, which is deleted. NULL takes the icons
    /// away.
    void SetIcons(HICON hIcon, UINT align, int width, int height, HICON hIconDown = nullptr,
                  HICON hIconOver = nullptr);

    Kind GetKind() const { return static_cast<Kind>(m_buttonKind); }

    void SetTextColor(COLORREF color);
    BOOL SetTextFont(const LOGFONT& font); ///< FALSE: no such font; the default GUI font is used.
    void SetBorder(int border);            ///< Inset of focus lines and caption, in pixels.
    void SetFlat(BOOL bFlat);              ///< Flat: edges show only while the mouse is over it.
    void Set3dBorder(BOOL b3dBorder);      ///< FALSE: no edges, and no shift of the pressed face.

    /// Gives the button a tool tip, and makes its window when there is none yet. A check box or
    /// radio button can have another text while it is checked. FALSE: no tool tip window.
    BOOL SetToolTipText(const CString& text, const CString& textChecked = CString());

    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    BYTE m_pictureOwned = FALSE; ///< Destruction releases m_bmpImage and m_bmpMask.
    COLORREF m_maskColor = CLR_NONE;
    CBitmap m_bmpImage; ///< The picture, black where it had the mask colour.
    CBitmap m_bmpMask;
    CFont m_font;                  ///< Empty: the stock DEFAULT_GUI_FONT.
    void* m_pictureData = nullptr; ///< Released with free().
    CString m_toolTipText;         ///< Also while checked, unless that has a text of its own.
    CString m_toolTipTextChecked;
    BYTE m_checked = FALSE;
    BYTE m_pushLike = FALSE; ///< The content of the pressed button shifts by one pixel.
    UINT m_buttonKind = kindPush;
    PaletteDib m_dibNormal;
    PaletteDib m_dibDown;
    PaletteDib m_dibDisabled;
    PaletteDib m_dibOver;
    PaletteDib m_dibFocusH;
    PaletteDib m_dibFocusV;
    BYTE m_hover = FALSE;    ///< The mouse is over the button, and its leaving is watched.
    BYTE m_pressing = FALSE; ///< The left button went down here and is not up again.
    CToolTipCtrl m_toolTip;  ///< Without a window nothing is done with it.
    int m_border = 4;
    COLORREF m_textColor;
    int m_3dBorder = 1; ///< Edges are drawn; also the shift of the pressed face in pixels.
    HICON m_hIcon = nullptr;
    HICON m_hIconDown = nullptr; ///< May equal m_hIcon, and so may the next.
    HICON m_hIconOver = nullptr;
    HBITMAP m_hBitmap = nullptr; ///< The loaded picture: the handle that m_bmpImage holds.
    CRect m_rcIcon;              ///< Place of the icon or picture in the button.
    UINT m_textFormat = DT_CENTER;
    UINT m_iconAlign = alignTop;
    BYTE m_flat = FALSE;

    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnShadeUncheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetCheck(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetCheck(WPARAM wParam, LPARAM lParam);

    HBITMAP LoadPictureBitmap(LPCTSTR path);

private:
    /// What the last SetShade asked for.
    struct Shade
    {
        BOOL isSet = FALSE;
        UINT style = 0;
        BYTE granularity = 0;
        BYTE highlight = 0;
        BYTE coloring = 0;
        COLORREF color = 0;
    };
    Shade m_shade;

    /// What the steps of one paint share.
    struct Face
    {
        CDC& dc;
        CRect item;    ///< The whole button; shrinks as edges are drawn.
        CRect caption; ///< Where the caption goes.
        CString text;
        UINT state; ///< ODS_... bits.
    };

    void MakeFaces();
    void ReadStyle(DWORD style);
    void PlacePicture(UINT align, int width, int height);
    void ReplaceIcons(HICON normal, HICON down, HICON over);
    void DeletePicture();

    BOOL CorrectCapture();
    CRect GetCaptionArea(const CRect& item) const;
    void DrawButton(CDC& dc, const CRect& item, UINT state);
    void DrawFace(Face& face);
    void DrawDisabledFace(Face& face);
    void DrawRaisedFace(Face& face);
    void DrawPressedFace(Face& face);
    void DrawFocus(Face& face);
    void DrawCaption(Face& face);
    void DrawIcon(Face& face, HICON icon, int shift, UINT look);
    void DrawMaskedPicture(CDC& target, UINT state);

    BOOL IsOver(CPoint screen) const;
    BOOL IsCursorOver() const;
    BOOL IsPushed();
    BOOL HasCapture() const;
    void TrackLeaving();
    BOOL Toggle();
    BOOL Send(UINT message, WPARAM wParam);
    void UncheckGroup();
    void UpdateToolTipText();
    BOOL RelayToolTipEvent(UINT message, WPARAM wParam, LPARAM lParam);
};
