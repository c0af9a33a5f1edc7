// CGalleryPage: what all pages of the gallery look like. It adds to the base dialog a title line,
// an introduction and a footnote, and paints the strip down to the lower edge of taller pages.
#pragma once

#include "gallery/resource.h"

#include "gallery/LabelText.h"

#include <umbra.h>

/// The gallery's colours, taken from the drawings of the toolkit.
namespace palette {
const COLORREF page = RGB(240, 243, 248);
const COLORREF paper = RGB(253, 254, 255);
const COLORREF line = RGB(190, 202, 219);
const COLORREF faintLine = RGB(222, 229, 239);
const COLORREF title = RGB(28, 38, 59);
const COLORREF text = RGB(43, 56, 82);
const COLORREF muted = RGB(84, 99, 126);
const COLORREF accent = RGB(63, 95, 146);
const COLORREF ember = RGB(190, 104, 28);
const COLORREF tint = RGB(176, 198, 228);
} // namespace palette

class CGalleryPage : public CBaseDialog
{
public:
    /// A room: a page with a Close button.
    CGalleryPage(UINT templateId, CWnd* parent);
    /// A page with the standard buttons that the flags of CBaseDialog give.
    CGalleryPage(UINT templateId, CWnd* parent, bool confirm, bool ok, bool cancel, bool next,
                 bool back, bool closeCaption, bool proceedCaption, bool cancelIcon);

    BOOL OnInitDialog() override;

protected:
    CStaticTS m_title;
    CNoteStatic m_intro;
    CNoteStatic m_footnote; ///< Says at first what is wrong with the image folder, if anything is.

    void DoDataExchange(CDataExchange* pDX) override;
    /// Enter presses a button of the page that has the focus, and nothing else.
    void OnOK() override;

    /// A page's own painting, under its controls.
    virtual void DrawBackdrop(CDC& dc);

    /// Gives a label the width of its text, which then begins at the control's left edge.
    void FitToText(CStaticTS& label);
    void FitToText(CHyperLink& label);
    /// The rectangle of a control, in client coordinates.
    CRect PlaceOf(const CWnd& control) const;
    CRect PlaceOf(int controlId) const;
    /// Dialog units of this page as pixels.
    CRect Pixels(int x, int y, int width, int height);

    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

private:
    CFont m_titleFont;
    CBrush m_pageBrush;

    void Prepare();
    void FitToText(CWnd& label, int shift);
    void DrawStripFoot(CDC& dc);
};
