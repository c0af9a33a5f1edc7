// Tour.cpp : Defines the class behaviors for the application.
//
#include "StdAfx.h"
#include "Tour.h"
#include "Pages.h"

CTourApp theApp;

BOOL CTourApp::InitInstance()
{
    SetRegistryKey(_T("Umbra Tour Test"));

    CPropertySheet sheet(_T("Tour"));
    CValuesPage values;
    CDatesPage dates;
    CListsPage lists;
    sheet.AddPage(&values);
    sheet.AddPage(&dates);
    sheet.AddPage(&lists);
    m_pMainWnd = &sheet;
    m_nResponse = (int)sheet.DoModal();
    return FALSE;
}

int CTourApp::ExitInstance()
{
    CWinApp::ExitInstance();
    return 60 + m_nResponse;
}
