// Wizard.cpp : Defines the class behaviors for the application.
//
#include "StdAfx.h"
#include "Wizard.h"
#include "WizardDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CWizardApp

BEGIN_MESSAGE_MAP(CWizardApp, CWinApp)
    //{{AFX_MSG_MAP(CWizardApp)
    //}}AFX_MSG
    ON_COMMAND(ID_HELP, CWinApp::OnHelp)
END_MESSAGE_MAP()

CWizardApp::CWizardApp()
{
    m_nResponse = 0;
}

// The one and only CWizardApp object

CWizardApp theApp;

BOOL CWizardApp::InitInstance()
{
    AfxEnableControlContainer();

#ifdef _AFXDLL
    Enable3dControls();         // Call this when using MFC in a shared DLL
#else
    Enable3dControlsStatic();   // Call this when linking to MFC statically
#endif

    SetRegistryKey(_T("Umbra Wizard Test"));
    LoadStdProfileSettings();

    CWizardDlg dlg;
    m_pMainWnd = &dlg;
    dlg.m_strName = GetProfileString(_T("Greeting"), _T("Name"), _T("World"));
    dlg.m_nCount = GetProfileInt(_T("Greeting"), _T("Count"), 1);
    m_nResponse = dlg.DoModal();
    if (m_nResponse == IDOK)
    {
        WriteProfileString(_T("Greeting"), _T("Name"), dlg.m_strName);
        WriteProfileInt(_T("Greeting"), _T("Count"), dlg.m_nCount);
    }
    else if (m_nResponse == IDCANCEL)
    {
        TRACE0("The dialog was cancelled\n");
    }

    // Since the dialog has been closed, return FALSE so that we exit the
    //  application, rather than start the application's message pump.
    return FALSE;
}

int CWizardApp::ExitInstance()
{
    return (int)m_nResponse + 40 + CWinApp::ExitInstance();
}
