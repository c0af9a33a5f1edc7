#include "gallery/WizardPages.h"

#include "gallery/Images.h"

#include <shlobj.h>

BEGIN_MESSAGE_MAP(CWizardPage, CGalleryPage)
    ON_BN_CLICKED(IDC_BACK, &CWizardPage::OnBack)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CWizardFolderPage, CWizardPage)
    ON_EN_CHANGE(IDC_FOLDER, &CWizardFolderPage::OnFolder)
    ON_BN_CLICKED(IDC_BROWSE, &CWizardFolderPage::OnBrowse)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CWizardPicturesPage, CWizardPage)
    ON_LBN_SELCHANGE(IDC_PICTURES, &CWizardPicturesPage::OnPicture)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CWizardConfirmPage, CWizardPage)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CWizardResultPage, CWizardPage)
END_MESSAGE_MAP()

namespace {

// Where the page before was on the screen, and of which dialog it was a page.
CPoint lastPlace;
HWND lastParent = nullptr;

CString Count(size_t number)
{
    CString text;
    if (number == 1)
        text = _T("1 picture");
    else
        text.Format(_T("%u pictures"), static_cast<UINT>(number));
    return text;
}

} // namespace

CWizardPage::CWizardPage(UINT templateId, WizardTask& task, CWnd* parent, bool confirm, bool ok,
                         bool cancel, bool next, bool back, bool closeCaption, bool proceedCaption)
    : CGalleryPage(templateId, parent, confirm, ok, cancel, next, back, closeCaption,
                   proceedCaption, cancel),
      m_task(task)
{
}

BOOL CWizardPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    const CWnd* parent = GetParent();
    if (parent != nullptr && parent->GetSafeHwnd() == lastParent)
        SetWindowPos(nullptr, lastPlace.x, lastPlace.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    return TRUE;
}

void CWizardPage::OnBack()
{
    EndDialog(IDC_BACK);
}

void CWizardPage::OnDestroy()
{
    CRect window;
    GetWindowRect(&window);
    lastPlace = window.TopLeft();
    lastParent = GetParent()->GetSafeHwnd();
    CGalleryPage::OnDestroy();
}

CWizardFolderPage::CWizardFolderPage(WizardTask& task, CWnd* parent)
    : CWizardPage(IDD_WIZARD_FOLDER, task, parent, false, false, true, true, false, false, false)
{
}

BOOL CWizardFolderPage::OnInitDialog()
{
    CWizardPage::OnInitDialog();
    ApplyButtonShade(m_btnBrowse);
    m_found.SetLabelTextColor(palette::text);
    SetDlgItemText(IDC_FOLDER, m_task.folder);
    ShowFound();
    return TRUE;
}

void CWizardFolderPage::DoDataExchange(CDataExchange* pDX)
{
    CWizardPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_BROWSE, m_btnBrowse);
    DDX_Control(pDX, IDC_FOUND, m_found);
}

void CWizardFolderPage::OnOK()
{
    m_task.folder = Folder();
    m_task.pictures = FindPictures(m_task.folder);
    if (!m_task.pictures.empty())
        CWizardPage::OnOK();
}

void CWizardFolderPage::OnFolder()
{
    if (m_found.GetSafeHwnd() != nullptr)
        ShowFound();
}

void CWizardFolderPage::OnBrowse()
{
    BROWSEINFO question = {};
    question.hwndOwner = m_hWnd;
    question.lpszTitle = _T("The folder with the pictures");
    question.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    const LPITEMIDLIST choice = ::SHBrowseForFolder(&question);
    if (choice == nullptr)
        return;
    TCHAR path[MAX_PATH] = _T("");
    if (::SHGetPathFromIDList(choice, path))
        SetDlgItemText(IDC_FOLDER, path);
    ::CoTaskMemFree(choice);
}

CString CWizardFolderPage::Folder() const
{
    CString folder;
    GetDlgItemText(IDC_FOLDER, folder);
    return EndWithBackslash(folder);
}

void CWizardFolderPage::ShowFound()
{
    const size_t count = FindPictures(Folder()).size();
    SetLabelText(m_found, count > 0
                              ? Count(count) + _T(" found there (bmp, gif and jpg files).")
                              : CString(_T("There are no pictures there: choose another folder.")));
    m_btnOk.EnableWindow(count > 0);
}

CWizardPicturesPage::CWizardPicturesPage(WizardTask& task, CWnd* parent)
    : CWizardPage(IDD_WIZARD_PICTURES, task, parent, false, false, true, true, true, false, true)
{
}

BOOL CWizardPicturesPage::OnInitDialog()
{
    CWizardPage::OnInitDialog();
    m_info.SetLabelTextColor(palette::text);
    for (const CString& picture : m_task.pictures)
        m_list.AddString(picture);
    m_list.SetCurSel(0);
    OnPicture();
    return TRUE;
}

void CWizardPicturesPage::Select(const CString& fileName)
{
    if (m_list.SelectString(-1, fileName) != LB_ERR)
        OnPicture();
}

void CWizardPicturesPage::DoDataExchange(CDataExchange* pDX)
{
    CWizardPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PICTURES, m_list);
    DDX_Control(pDX, IDC_PREVIEW, m_preview);
    DDX_Control(pDX, IDC_PICTURE_INFO, m_info);
}

void CWizardPicturesPage::OnPicture()
{
    const int index = m_list.GetCurSel();
    if (index < 0)
        return;
    CString text = _T("This file cannot be shown.");
    if (m_preview.Show(m_task.folder + m_task.pictures[index])) {
        const CSize size = m_preview.PictureSize();
        text.Format(_T("%d x %d pixels"), static_cast<int>(size.cx), static_cast<int>(size.cy));
    }
    SetLabelText(m_info, text);
}

CWizardConfirmPage::CWizardConfirmPage(WizardTask& task, CWnd* parent)
    : CWizardPage(IDD_WIZARD_CONFIRM, task, parent, true, false, true, false, true, false, false)
{
}

BOOL CWizardConfirmPage::OnInitDialog()
{
    CWizardPage::OnInitDialog();
    m_summary.SetLabelTextColor(palette::text);
    m_summary.SetWindowText(_T("The page pictures.html will be written into the folder\n") +
                            m_task.folder + _T("\nand show its ") + Count(m_task.pictures.size()) +
                            _T(". A file of that name there is replaced."));
    if (m_task.heading.IsEmpty()) {
        m_task.heading = _T("My pictures");
        UpdateData(FALSE);
    }
    return TRUE;
}

void CWizardConfirmPage::DoDataExchange(CDataExchange* pDX)
{
    CWizardPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SUMMARY, m_summary);
    DDX_Text(pDX, IDC_HEADING, m_task.heading);
}

// OK after success; Back and Close after a failure.
CWizardResultPage::CWizardResultPage(WizardTask& task, CWnd* parent)
    : CWizardPage(IDD_WIZARD_RESULT, task, parent, false, !task.indexFile.IsEmpty(),
                  task.indexFile.IsEmpty(), false, true, true, false)
{
}

BOOL CWizardResultPage::OnInitDialog()
{
    CWizardPage::OnInitDialog();
    m_summary.SetLabelTextColor(palette::text);
    const bool done = !m_task.indexFile.IsEmpty();
    ShowPicture(done ? IDS_IMAGE_INFO : IDS_IMAGE_ERROR);
    m_btnBack.ShowWindow(done ? SW_HIDE : SW_SHOW);
    if (!done) {
        SetLabelText(m_intro, _T("Nothing was written."));
        m_summary.SetWindowText(_T("No file can be made in the folder\n") + m_task.folder +
                                _T("\nGo back and choose another one."));
        m_link.ShowWindow(SW_HIDE);
        return TRUE;
    }
    m_summary.SetWindowText(_T("The index of ") + Count(m_task.pictures.size()) +
                            _T(" was written. A click opens it:"));
    m_link.SetWindowText(m_task.indexFile);
    m_link.SetTextColor(palette::accent);
    m_link.SetURL(m_task.indexFile);
    FitToText(m_link);
    m_link.SetToolTipText(_T("Opens the page in the web browser"));
    return TRUE;
}

void CWizardResultPage::DoDataExchange(CDataExchange* pDX)
{
    CWizardPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SUMMARY, m_summary);
    DDX_Control(pDX, IDC_RESULT_LINK, m_link);
}
