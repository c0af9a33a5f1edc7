#include "dialogs/ModellessDlg.h"

#include "shell/WorkingFolder.h"

#include "resources/resource.h"

CModellessDlg* g_pModelessDlg = nullptr;

BEGIN_MESSAGE_MAP(CModellessDlg, CBaseDialog)
END_MESSAGE_MAP()

namespace {

const COLORREF labelColor = RGB(0, 0, 255);
const COLORREF iconKey = RGB(0, 0, 0);
const TCHAR iconFile[] = _T("\\images\\InfoIcon1.gif"); // Below the image folder.

} // namespace

CModellessDlg::CModellessDlg(CWnd* parent)
    : CBaseDialog(IDD, parent, false, false, true, false, false, false, false, false)
{
    AfxGetApp()->BeginWaitCursor();
}

CModellessDlg::~CModellessDlg()
{
}

BOOL CModellessDlg::OnInitDialog()
{
    CBaseDialog::OnInitDialog();
    m_title.SetWindowText(_T("Please wait while the program is working."));
    m_detail.SetWindowText(_T("This window stays until the work is done."));
    m_title.ApplyLinkFont(); // Not a link: semibold.
    for (CHyperLink* label : {&m_icon, &m_title, &m_detail, &m_hint})
        label->SetTextColor(labelColor);
    m_btnCancel.EnableWindow(FALSE);
    ShowPicture(IDS_IMAGE_INFO);

    const WorkingFolder folder(m_strImageDir);
    m_icon.SetTransparentColor(iconKey);
    m_icon.SetBitmapFile(iconFile);
    return TRUE;
}

void CModellessDlg::PumpMessages()
{
    // A handler of the host may end this window, and the object with it.
    const HWND dialog = GetSafeHwnd();
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (::IsWindow(dialog) && ::IsDialogMessage(dialog, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    AfxGetApp()->RestoreWaitCursor();
}

void CModellessDlg::DoDataExchange(CDataExchange* pDX)
{
    CBaseDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_MODELESS_ICON, m_icon);
    DDX_Control(pDX, IDC_MODELESS_TITLE, m_title);
    DDX_Control(pDX, IDC_MODELESS_DETAIL, m_detail);
    DDX_Control(pDX, IDC_MODELESS_HINT, m_hint);
}
