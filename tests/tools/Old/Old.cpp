// Old.cpp : Defines the class behaviors for the application.

#include "stdafx.h"
#include "Old.h"
#include "oldDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

BEGIN_MESSAGE_MAP(COldApp, CWinApp)
	//{{AFX_MSG_MAP(COldApp)
	//}}AFX_MSG
	ON_COMMAND(ID_HELP, CWinApp::OnHelp)
END_MESSAGE_MAP()

COldApp::COldApp()
{
	m_nFailures = 1; // Until the dialog has shown.
}

COldApp theApp;

void COldApp::Expect(BOOL bCondition, LPCTSTR lpszWhat)
{
	if (bCondition)
		return;
	m_nFailures++;
	_ftprintf(stderr, _T("Old: %s\n"), lpszWhat);
}

BOOL COldApp::InitInstance()
{
#ifdef _AFXDLL
	Enable3dControls();			// Call this when using MFC in a shared DLL
#else
	Enable3dControlsStatic();	// Call this when linking to MFC statically
#endif

	COldDlg dlg;
	m_pMainWnd = &dlg;
	int nResponse = dlg.DoModal();
	Expect(nResponse == IDOK, _T("the dialog ends with OK"));
	return FALSE;
}

int COldApp::ExitInstance()
{
	CWinApp::ExitInstance();
	return m_nFailures;
}
