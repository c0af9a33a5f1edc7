// Middle.cpp : 定义应用程序的类行为。

#include "stdafx.h"
#include "Resource.h"
#include "version.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

class CMiddleApp : public CWinApp
{
public:
	CMiddleApp() : m_nFailures(1) {}

	int m_nFailures;

	void Expect(BOOL bCondition, LPCTSTR lpszWhat)
	{
		if (bCondition)
			return;
		m_nFailures++;
		_ftprintf(stderr, _T("Middle: %s\n"), lpszWhat);
	}

	virtual BOOL InitInstance();
	virtual int ExitInstance() { CWinApp::ExitInstance(); return m_nFailures; }

	DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMiddleApp, CWinApp)
	ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()

CMiddleApp theApp;

class CMiddleDlg : public CDialog
{
public:
	CMiddleDlg(CWnd* pParent = NULL) : CDialog(CMiddleDlg::IDD, pParent) {}
	enum { IDD = IDD_MIDDLE_DIALOG };

protected:
	virtual BOOL OnInitDialog();
};

BOOL CMiddleDlg::OnInitDialog()
{
	CDialog::OnInitDialog();
	theApp.m_nFailures = 0;

	WCHAR szText[100] = L"";
	LoadStringW(AfxGetInstanceHandle(), IDS_GREETING, szText, _countof(szText));
	theApp.Expect(wcscmp(szText, L"\x4F60\x597D\xFF0C\\") == 0, _T("the string is in Chinese"));
	CComboBox* pChoices = (CComboBox*)GetDlgItem(IDC_CHOICES);
	theApp.Expect(pChoices->GetCount() == 2, _T("the list has its items"));
	CString strText;
	pChoices->GetLBText(1, strText);
	theApp.Expect(strText == _T("evening"), _T("the last item is the second one"));

	HRSRC hInfo = FindResource(NULL, MAKEINTRESOURCE(IDR_BYTES), RT_RCDATA);
	theApp.Expect(hInfo != NULL && SizeofResource(NULL, hInfo) == 11, _T("the raw data has its size"));
	if (hInfo != NULL)
	{
		const BYTE* pBytes = (const BYTE*)LockResource(LoadResource(NULL, hInfo));
		theApp.Expect(memcmp(pBytes, "\xC4\xE3\xFF\x01\x00\x02\x00\x03\x00\x00\x41", 11) == 0,
			_T("the raw data is in the code page of its script"));
	}

	theApp.Expect(AfxGetApp()->LoadIcon(IDR_MAINFRAME) != NULL, _T("the icon is there"));
	theApp.Expect(CompanyNameLength() == 4, _T("the company has a name of four characters"));
	theApp.Expect(timeGetTime() != 0, _T("the clock runs"));
	theApp.Expect(_tcscmp(MIDDLE_NAME, _T("Middle")) == 0, _T("the definition is kept"));
	PostMessage(WM_COMMAND, IDOK);
	return TRUE;  // 除非将焦点设置到控件，否则返回 TRUE
}

BOOL CMiddleApp::InitInstance()
{
	InitCommonControls();
	CWinApp::InitInstance();
	AfxEnableControlContainer();

	CMiddleDlg dlg;
	m_pMainWnd = &dlg;
	INT_PTR nResponse = dlg.DoModal();
	Expect(nResponse == IDOK, _T("the dialog ends with OK"));
	return FALSE;
}
