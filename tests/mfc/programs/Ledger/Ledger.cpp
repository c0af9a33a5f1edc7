// Ledger.cpp : Defines the class behaviors for the application.
//
#include "StdAfx.h"
#include "LedgerDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

class CLedgerApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
};

// The one and only CLedgerApp object

CLedgerApp theApp;

BOOL CLedgerApp::InitInstance()
{
    CLedgerDlg dlg;
    m_pMainWnd = &dlg;
    dlg.m_strFile = m_lpCmdLine;
    dlg.m_strFile.Trim(_T("\" "));
    dlg.DoModal();
    return FALSE;
}
