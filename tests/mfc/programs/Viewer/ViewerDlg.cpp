// ViewerDlg.cpp : implementation file
//

#include "pch.h"
#include "framework.h"
#include "Viewer.h"
#include "ViewerDlg.h"
#include "afxdialogex.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

// CAboutDlg dialog used for App About

class CAboutDlg : public CDialogEx
{
public:
    CAboutDlg();

#ifdef AFX_DESIGN_TIME
    enum { IDD = IDD_ABOUTBOX };
#endif

    protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support

protected:
    DECLARE_MESSAGE_MAP()
};

CAboutDlg::CAboutDlg() : CDialogEx(IDD_ABOUTBOX)
{
}

void CAboutDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
}

BEGIN_MESSAGE_MAP(CAboutDlg, CDialogEx)
END_MESSAGE_MAP()

// CViewerDlg dialog

CViewerDlg::CViewerDlg(CWnd* pParent /*=nullptr*/)
    : CDialogEx(IDD_VIEWER_DIALOG, pParent), m_strInfo(_T("No picture"))
{
    m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CViewerDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_INFO, m_strInfo);
}

BEGIN_MESSAGE_MAP(CViewerDlg, CDialogEx)
    ON_WM_SYSCOMMAND()
    ON_WM_PAINT()
    ON_WM_QUERYDRAGICON()
    ON_BN_CLICKED(IDC_OPEN, &CViewerDlg::OnBnClickedOpen)
    ON_BN_CLICKED(IDC_SAVE, &CViewerDlg::OnBnClickedSave)
END_MESSAGE_MAP()

BOOL CViewerDlg::OnInitDialog()
{
    CDialogEx::OnInitDialog();

    // Add "About..." menu item to system menu.

    // IDM_ABOUTBOX must be in the system command range.
    ASSERT((IDM_ABOUTBOX & 0xFFF0) == IDM_ABOUTBOX);
    ASSERT(IDM_ABOUTBOX < 0xF000);

    CMenu* pSysMenu = GetSystemMenu(FALSE);
    if (pSysMenu != nullptr)
    {
        BOOL bNameValid;
        CString strAboutMenu;
        bNameValid = strAboutMenu.LoadString(IDS_ABOUTBOX);
        ASSERT(bNameValid);
        if (!strAboutMenu.IsEmpty())
        {
            pSysMenu->AppendMenu(MF_SEPARATOR);
            pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAboutMenu);
        }
    }

    SetIcon(m_hIcon, TRUE);         // Set big icon
    SetIcon(m_hIcon, FALSE);        // Set small icon

    return TRUE;  // return TRUE  unless you set the focus to a control
}

void CViewerDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
    if ((nID & 0xFFF0) == IDM_ABOUTBOX)
    {
        CAboutDlg dlgAbout;
        dlgAbout.DoModal();
    }
    else
    {
        CDialogEx::OnSysCommand(nID, lParam);
    }
}

void CViewerDlg::OnPaint()
{
    if (IsIconic())
    {
        CPaintDC dc(this); // device context for painting

        SendMessage(WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);

        // Center icon in client rectangle
        int cxIcon = GetSystemMetrics(SM_CXICON);
        int cyIcon = GetSystemMetrics(SM_CYICON);
        CRect rect;
        GetClientRect(&rect);
        int x = (rect.Width() - cxIcon + 1) / 2;
        int y = (rect.Height() - cyIcon + 1) / 2;

        dc.DrawIcon(x, y, m_hIcon);
    }
    else
    {
        CPaintDC dc(this);
        if (!m_image.IsNull())
            m_image.Draw(dc.m_hDC, GetPictureRect());
    }
}

HCURSOR CViewerDlg::OnQueryDragIcon()
{
    return static_cast<HCURSOR>(m_hIcon);
}

CRect CViewerDlg::GetPictureRect() const
{
    CRect rect;
    GetDlgItem(IDC_PICTURE)->GetWindowRect(&rect);
    ScreenToClient(&rect);
    return rect;
}

void CViewerDlg::OnBnClickedOpen()
{
    CString strFilter;
    CSimpleArray<GUID> aguidFileTypes;
    CImage::GetImporterFilterString(strFilter, aguidFileTypes, _T("All pictures"));
    CFileDialog dlg(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, strFilter, this);
    if (dlg.DoModal() != IDOK)
        return;
    HRESULT hr = m_image.Load(dlg.GetPathName());
    if (FAILED(hr))
    {
        AfxMessageBox(_T("This is not a picture."));
        return;
    }
    m_strInfo.Format(_T("%s: %d x %d"), dlg.GetFileName(), m_image.GetWidth(), m_image.GetHeight());
    UpdateData(FALSE);
    GetDlgItem(IDC_SAVE)->EnableWindow();
    Invalidate();
}

void CViewerDlg::OnBnClickedSave()
{
    CFileDialog dlg(FALSE, _T("png"), _T("copy"), OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY,
        _T("PNG (*.png)|*.png||"), this);
    if (dlg.DoModal() == IDOK && FAILED(m_image.Save(dlg.GetPathName())))
        AfxMessageBox(_T("The picture could not be saved."));
}
