// Planner.cpp : Defines the class behaviors for the application.
//
#include "StdAfx.h"
#include "Planner.h"
#include "PlannerDlg.h"

BEGIN_MESSAGE_MAP(CPlannerApp, CWinApp)
    ON_COMMAND(ID_HELP, CWinApp::OnHelp)
END_MESSAGE_MAP()

CPlannerApp theApp;

BOOL CPlannerApp::InitInstance()
{
    AfxInitRichEdit2();

    SetRegistryKey(_T("Umbra Planner Test"));

    // The notes go to the file of the command line.
    CPlannerDlg dlg;
    dlg.m_strFile = m_lpCmdLine;
    dlg.m_timeDue = CTime(2005, 11, 23, 12, 0, 0);
    m_pMainWnd = &dlg;
    m_nResponse = dlg.DoModal();
    if (m_nResponse == IDOK)
    {
        WriteProfileString(_T("Plan"), _T("Title"), dlg.m_strTitle);
        WriteProfileString(_T("Plan"), _T("Due"), dlg.m_timeDue.Format(_T("%Y-%m-%d")));
        WriteProfileString(_T("Plan"), _T("Shown"), dlg.m_timeShown.Format(_T("%Y-%m-%d")));
        WriteProfileInt(_T("Plan"), _T("Done"), dlg.m_nDone);
    }
    return FALSE;
}

int CPlannerApp::ExitInstance()
{
    CWinApp::ExitInstance();
    return 50 + m_nResponse;
}
