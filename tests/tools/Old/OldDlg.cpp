// OldDlg.cpp : implementation file

#include "StdAfx.h"
#include "Old.h"
#include "OldDlg.h"
#include "Common\Clock.h"

extern COldApp theApp;

COldDlg::COldDlg(CWnd* pParent /*=NULL*/)
	: CDialog(COldDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(COldDlg)
	m_strGreeting = _T("");
	//}}AFX_DATA_INIT
	m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void COldDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(COldDlg)
	DDX_Control(pDX, IDC_CHOICES, m_cboChoices);
	DDX_Text(pDX, IDC_GREETING, m_strGreeting);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(COldDlg, CDialog)
	//{{AFX_MSG_MAP(COldDlg)
	ON_WM_QUERYDRAGICON()
	//}}AFX_MSG
END_MESSAGE_MAP()

BOOL COldDlg::OnInitDialog()
{
	CDialog::OnInitDialog();
	SetIcon(m_hIcon, TRUE);			// Set big icon
	theApp.m_nFailures = 0;

	CString strText;
	theApp.Expect(m_hIcon != NULL, _T("the icon is there"));
	GetWindowText(strText);
	theApp.Expect(_tcsncmp(strText, _T("Gr\374\337e"), 5) == 0, _T("the caption is in German"));
	theApp.Expect(m_cboChoices.GetCount() == OLD_ITEMS, _T("the list has its items"));
	m_cboChoices.GetLBText(2, strText);
	theApp.Expect(strText == _T("Three"), _T("the last item is the third one"));
	strText.LoadString(IDS_GREETING);
	theApp.Expect(strText == _T("\304hnlich"), _T("the string is there"));
	strText.LoadString(IDS_EXTRA);
	theApp.Expect(strText == _T("from the second script"), _T("the second script is there"));
	theApp.Expect(_tcscmp(OLD_GREETING, _T("hello; world")) == 0, _T("the definition is kept"));
	theApp.Expect(ClockRuns(), _T("the library of the project is linked"));
	PostMessage(WM_COMMAND, IDOK);
	return TRUE;
}

HCURSOR COldDlg::OnQueryDragIcon()
{
	return (HCURSOR) m_hIcon;
}
