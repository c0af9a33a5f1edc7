#include "gallery/WorkingPage.h"

BEGIN_MESSAGE_MAP(CWorkingDialog, CModellessDlg)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CWorkingPage, CGalleryPage)
    ON_BN_CLICKED(IDC_START_WORK, &CWorkingPage::OnStart)
END_MESSAGE_MAP()

namespace {

// The bar of progress in the working window, in dialog units.
const RECT progressPlace = {62, 128, 346, 140};

// The job: counting the prime numbers below a limit, in pieces of some milliseconds.
const unsigned firstNumber = 3;
const unsigned limit = 40000000;
const unsigned pieceSize = 20000;
const int percentMax = 100;
const int percentToCancel = 10;
const DWORD reportTime = 150; // Milliseconds from one report to the next.

bool IsPrime(unsigned odd)
{
    for (unsigned divisor = 3; divisor * divisor <= odd; divisor += 2) {
        if (odd % divisor == 0)
            return false;
    }
    return true;
}

} // namespace

CWorkingDialog::CWorkingDialog() : CModellessDlg(nullptr)
{
    m_bSolidFill = TRUE;
    m_crFill = palette::page;
}

BOOL CWorkingDialog::OnInitDialog()
{
    CModellessDlg::OnInitDialog();
    m_title.SetWindowText(_T("Counting prime numbers"));
    m_detail.SetWindowText(_T(""));
    m_hint.SetWindowText(
        _T("Drag this window, or press Tab: it answers between the pieces of work."));
    CRect place(progressPlace);
    MapDialogRect(&place);
    m_progress.Create(WS_CHILD | WS_VISIBLE | PBS_SMOOTH, place, this, IDC_WORK_PROGRESS);
    m_progress.SetRange(0, percentMax);
    return TRUE;
}

void CWorkingDialog::AllowCancel()
{
    if (m_btnCancel.IsWindowEnabled())
        return;
    m_btnCancel.EnableWindow(TRUE);
    SetLabelText(m_hint, _T("Cancel ends the work after the present piece."));
}

void CWorkingDialog::ShowProgress(int percent, const CString& detail)
{
    m_progress.SetPos(percent);
    SetLabelText(m_detail, detail);
}

void CWorkingDialog::OnOK()
{
}

void CWorkingDialog::OnCancel()
{
    // The Escape key comes here too, while the button is still disabled.
    if (m_btnCancel.IsWindowEnabled())
        m_cancelled = true;
}

CWorkingPage::CWorkingPage(CWnd* parent) : CGalleryPage(IDD_WORKING, parent)
{
}

BOOL CWorkingPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    ApplyButtonShade(m_btnStart);
    m_btnAllowCancel.SetShade(SHADE_DIAGONAL, 0, 30, 100, g_crShade);
    m_btnAllowCancel.SetCheck(BST_CHECKED);
    m_result.SetLabelTextColor(palette::text);
    return TRUE;
}

bool CWorkingPage::BeginWork()
{
    if (g_pModelessDlg != nullptr)
        return false;
    m_next = firstNumber;
    m_primes = 1; // The number 2.
    g_pModelessDlg = new CWorkingDialog;
    g_pModelessDlg->Create(CModellessDlg::IDD, nullptr);
    g_pModelessDlg->ShowWindow(SW_SHOW);
    g_pModelessDlg->InvalidateRect(nullptr, TRUE);
    g_pModelessDlg->PumpMessages();
    return true;
}

bool CWorkingPage::WorkOn()
{
    const unsigned end = min(m_next + pieceSize, limit);
    for (; m_next < end; m_next += 2)
        m_primes += IsPrime(m_next);

    if (::GetTickCount() - m_lastReport >= reportTime)
        Report();
    // Not at once: a click meant for the Start button is not to cancel the work.
    if (Percent() >= percentToCancel && m_btnAllowCancel.GetCheck() == BST_CHECKED)
        Dialog()->AllowCancel();
    g_pModelessDlg->PumpMessages();
    return m_next < limit && !Dialog()->IsCancelled();
}

void CWorkingPage::EndWork()
{
    const bool cancelled = Dialog()->IsCancelled();
    g_pModelessDlg->DestroyWindow();
    delete g_pModelessDlg;
    g_pModelessDlg = nullptr;
    AfxGetApp()->EndWaitCursor();

    CString text;
    text.Format(cancelled ? _T("Cancelled: %u prime numbers found below %u.")
                          : _T("Done: there are %u prime numbers below %u."),
                m_primes, min(m_next, limit));
    SetLabelText(m_result, text);
}

void CWorkingPage::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_START_WORK, m_btnStart);
    DDX_Control(pDX, IDC_ALLOW_CANCEL, m_btnAllowCancel);
    DDX_Control(pDX, IDC_RESULT, m_result);
}

void CWorkingPage::OnCancel()
{
    if (g_pModelessDlg == nullptr) // The page stays while its job runs.
        CGalleryPage::OnCancel();
}

void CWorkingPage::OnStart()
{
    if (!BeginWork())
        return;
    m_btnStart.EnableWindow(FALSE);
    m_btnCancel.EnableWindow(FALSE);
    while (WorkOn()) {
    }
    EndWork();
    m_btnStart.EnableWindow(TRUE);
    m_btnCancel.EnableWindow(TRUE);
    m_btnStart.SetFocus();
}

int CWorkingPage::Percent() const
{
    return static_cast<int>(100.0 * min(m_next, limit) / limit);
}

void CWorkingPage::Report()
{
    m_lastReport = ::GetTickCount();
    CString detail;
    detail.Format(_T("%u of %u tested: %u are prime."), min(m_next, limit), limit, m_primes);
    Dialog()->ShowProgress(Percent(), detail);
}
