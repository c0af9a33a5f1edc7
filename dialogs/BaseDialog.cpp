#include "dialogs/BaseDialog.h"

#include "dialogs/BufferedPaint.h"

#include "shell/WorkingFolder.h"

#include "controls/FollowLayout.h"
#include "controls/PrintClient.h"
#include "controls/ScopedSelect.h"
#include "faces/ShadeGenerator.h"
#include "resources/resource.h"

CString g_strImageDir;
COLORREF g_crShade = RGB(192, 192, 192);

BEGIN_MESSAGE_MAP(CBaseDialog, CDialogTS)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CBaseDialog::OnPrintClient)
END_MESSAGE_MAP()

namespace {

const int iconExtent = 19;                   // Pixels, both ways.
const COLORREF imageKey = RGB(0, 0, 0);      // Transparent in all images of the toolkit.
const RECT pictureBox = {540, 15, 620, 115}; // Client pixels.
const UINT pictureId = 0xFFFF;

} // namespace

CBaseDialog::CBaseDialog(UINT templateId, CWnd* parent, bool confirm, bool ok, bool cancel,
                         bool next, bool back, bool closeCaption, bool proceedCaption,
                         bool cancelIcon)
    : CDialogTS(templateId, parent), m_bBack(back), m_bNext(next), m_bCancel(cancel), m_bOk(ok),
      m_bConfirm(confirm), m_bCloseCaption(closeCaption), m_bProceedCaption(proceedCaption),
      m_bCancelIcon(cancelIcon)
{
}

CBaseDialog::~CBaseDialog()
{
}

BOOL CBaseDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_strImageDir = g_strImageDir;
    // The last byte may be the second one of a character, which a backslash looks like.
    if (m_strImageDir.IsEmpty() || m_strImageDir.ReverseFind('\\') != m_strImageDir.GetLength() - 1)
        m_strImageDir += '\\';

    // Where two flags name one button, the later step wins.
    if (m_bConfirm) {
        SetButton(m_btnOk, _T("Confirm"));
        SetButtonIcon(m_btnOk, IDS_IMAGE_CONFIRM);
    }
    if (m_bOk) {
        SetButton(m_btnCancel, _T("OK")); // Kept: "OK" is a caption of the IDCANCEL button.
        SetButtonIcon(m_btnCancel, IDS_IMAGE_OK);
    }
    if (m_bCancel) {
        SetButton(m_btnCancel, m_bCloseCaption ? _T("Close") : _T("Cancel"));
        if (m_bCancelIcon)
            SetButtonIcon(m_btnCancel, IDS_IMAGE_CLOSE);
    }
    if (m_bNext) {
        SetButton(m_btnOk, m_bProceedCaption ? _T("Proceed") : _T("Next"));
        SetButtonIcon(m_btnOk, IDS_IMAGE_NEXT);
    }
    if (m_bBack) {
        SetButton(m_btnBack, _T("Back"));
        SetButtonIcon(m_btnBack, IDS_IMAGE_BACK);
    }
    return TRUE;
}

void CBaseDialog::ApplyButtonShade(CxShadeButton& button)
{
    button.SetShade(SHADE_DIAGONAL, 0, 0, 100, g_crShade);
}

void CBaseDialog::ShowPicture(UINT stringId)
{
    const WorkingFolder folder(m_strImageDir);
    if (m_picture.GetSafeHwnd() == nullptr)
        m_picture.Create(_T(""), 0, pictureBox, this, pictureId);
    m_picture.SetTransparentColor(imageKey);
    m_picture.LoadPicture(PathOfStringImage(stringId));
    m_picture.ShowWindow(SW_SHOWNORMAL);
}

void CBaseDialog::SetBufferedPainting(bool on)
{
    if (on != (m_bufferedPaint != nullptr))
        m_bufferedPaint.reset(on ? new umbra::BufferedPaint : nullptr);
    if (GetSafeHwnd() != nullptr)
        Invalidate();
}

void CBaseDialog::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    if (m_bConfirm || m_bNext)
        DDX_Control(pDX, IDOK, m_btnOk);
    if (m_bBack)
        DDX_Control(pDX, IDC_BACK, m_btnBack);
}

LRESULT CBaseDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_bufferedPaint != nullptr && !m_bShaped) {
        if (message == WM_PAINT) {
            m_bufferedPaint->Paint(*this);
            return 0;
        }
        if (message == WM_ERASEBKGND &&
            m_bufferedPaint->PutsErasingOff(*this, reinterpret_cast<HDC>(wParam)))
            return TRUE;
    }
    return CDialogTS::WindowProc(message, wParam, lParam);
}

void CBaseDialog::OnPaint()
{
    CPaintDC dc(this);
    DrawStrip(dc);
}

LRESULT CBaseDialog::OnPrintClient(WPARAM wParam, LPARAM)
{
    return umbra::PrintClient(wParam, [this](CDC& dc) { DrawStrip(dc); });
}

void CBaseDialog::DrawStrip(CDC& dc)
{
    CBitmap strip;
    strip.LoadBitmap(IDB_STRIP);
    BITMAP record = {};
    strip.GetBitmap(&record);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    const ScopedSelect selected(memory, strip.GetSafeHandle());
    umbra::FollowLayout(memory, dc);
    dc.BitBlt(0, 0, record.bmWidth, record.bmHeight, &memory, 0, 0, SRCCOPY);
}

CString CBaseDialog::PathOfStringImage(UINT stringId) const
{
    CString name;
    name.LoadString(stringId);
    return m_strImageDir + name;
}

void CBaseDialog::SetButton(CxShadeButton& button, LPCTSTR caption)
{
    button.SetWindowText(caption);
    ApplyButtonShade(button);
}

void CBaseDialog::SetButtonIcon(CxShadeButton& button, UINT stringId)
{
    button.SetPicture(PathOfStringImage(stringId), CxShadeButton::alignLeft, iconExtent, iconExtent,
                      imageKey);
}
