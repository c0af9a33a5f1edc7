#include "gallery/GalleryPage.h"

#include "gallery/Images.h"

BEGIN_MESSAGE_MAP(CGalleryPage, CBaseDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace {

// The background strip, in pixels, and how its last row goes on.
const int stripWidth = 72;
const int stripHeight = 367;

const TCHAR titleFace[] = _T("Arial"); // As the caption line of a bitmap background.

// The line under the head of a page, in dialog units.
const int ruleLeft = 58;
const int ruleTop = 47;
const int ruleWidth = 362;

// Glyphs can be drawn a little wider than they are measured, and from the second pixel on.
const int measuringSlack = 12; // Pixels.

} // namespace

CGalleryPage::CGalleryPage(UINT templateId, CWnd* parent)
    : CBaseDialog(templateId, parent, false, false, true, false, false, true, false, true)
{
    Prepare();
}

CGalleryPage::CGalleryPage(UINT templateId, CWnd* parent, bool confirm, bool ok, bool cancel,
                           bool next, bool back, bool closeCaption, bool proceedCaption,
                           bool cancelIcon)
    : CBaseDialog(templateId, parent, confirm, ok, cancel, next, back, closeCaption, proceedCaption,
                  cancelIcon)
{
    Prepare();
}

BOOL CGalleryPage::OnInitDialog()
{
    CBaseDialog::OnInitDialog();
    const HICON icon = AfxGetApp()->LoadIcon(IDI_GALLERY);
    SetIcon(icon, TRUE);
    SetIcon(icon, FALSE);

    LOGFONT description = {};
    GetFont()->GetLogFont(&description);
    description.lfHeight = description.lfHeight * 3 / 2;
    description.lfWeight = FW_BOLD;
    lstrcpy(description.lfFaceName, titleFace);
    m_titleFont.CreateFontIndirect(&description);
    m_title.SetFont(&m_titleFont);
    m_title.SetLabelTextColor(palette::title);
    m_intro.SetLabelTextColor(palette::muted);
    m_footnote.SetLabelTextColor(palette::muted);
    if (!HasImages()) {
        m_footnote.SetLabelTextColor(palette::ember);
        SetLabelText(m_footnote, _T("The image folder ") + ImageFolder() +
                                     _T(" is missing: pictures and icons are left out."));
    }
    AssistKeyboard(*this);
    return TRUE;
}

void CGalleryPage::DoDataExchange(CDataExchange* pDX)
{
    CBaseDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TITLE, m_title);
    DDX_Control(pDX, IDC_INTRO, m_intro);
    DDX_Control(pDX, IDC_FOOTNOTE, m_footnote);
}

void CGalleryPage::OnOK()
{
    if (m_bConfirm || m_bNext)
        CBaseDialog::OnOK();
}

void CGalleryPage::DrawBackdrop(CDC& dc)
{
    const CRect rule = Pixels(ruleLeft, ruleTop, ruleWidth, 0);
    dc.FillSolidRect(rule.left, rule.top, rule.Width(), 1, palette::line);
}

void CGalleryPage::FitToText(CStaticTS& label)
{
    FitToText(label, 0);
}

void CGalleryPage::FitToText(CHyperLink& label)
{
    FitToText(label, 1 - measuringSlack / 2); // Draws its text in the middle.
}

CRect CGalleryPage::PlaceOf(const CWnd& control) const
{
    CRect place;
    control.GetWindowRect(&place);
    ScreenToClient(&place);
    return place;
}

CRect CGalleryPage::PlaceOf(int controlId) const
{
    const CWnd* control = GetDlgItem(controlId);
    return control != nullptr ? PlaceOf(*control) : CRect();
}

CRect CGalleryPage::Pixels(int x, int y, int width, int height)
{
    CRect place(x, y, x + width, y + height);
    MapDialogRect(&place);
    return place;
}

BOOL CGalleryPage::OnEraseBkgnd(CDC* pDC)
{
    const BOOL answer = CBaseDialog::OnEraseBkgnd(pDC);
    DrawStripFoot(*pDC);
    DrawBackdrop(*pDC);
    return answer;
}

HBRUSH CGalleryPage::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const HBRUSH brush = CBaseDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (nCtlColor != CTLCOLOR_STATIC && nCtlColor != CTLCOLOR_BTN)
        return brush;
    pDC->SetBkColor(palette::page);
    pDC->SetTextColor(palette::text);
    return m_pageBrush;
}

void CGalleryPage::Prepare()
{
    m_bSolidFill = TRUE;
    m_crFill = palette::page;
    m_pageBrush.CreateSolidBrush(palette::page);
}

void CGalleryPage::FitToText(CWnd& label, int shift)
{
    CString text;
    label.GetWindowText(text);
    CClientDC dc(&label);
    CFont* before = dc.SelectObject(label.GetFont());
    const int width = dc.GetTextExtent(text).cx + measuringSlack;
    dc.SelectObject(before);
    CRect place = PlaceOf(label);
    place.left += shift;
    place.right = place.left + width;
    label.MoveWindow(&place);
}

void CGalleryPage::DrawStripFoot(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    const int height = client.Height() - stripHeight;
    if (height <= 0)
        return;
    // The strip's lowest row goes on downward.
    CBitmap strip;
    strip.LoadBitmap(IDB_STRIP);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* former = memory.SelectObject(&strip);
    dc.StretchBlt(0, stripHeight, stripWidth, height, &memory, 0, stripHeight - 1, stripWidth, 1,
                  SRCCOPY);
    memory.SelectObject(former);
}
