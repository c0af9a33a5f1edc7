// Wizard.h : main header file for the Wizard application
//
#ifndef __AFXWIN_H__
    #error include 'stdafx.h' before including this file for PCH
#endif

#include "resource.h"       // main symbols

class CWizardApp : public CWinApp
{
public:
    CWizardApp();

    //{{AFX_VIRTUAL(CWizardApp)
    public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CWizardApp)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()

private:
    INT_PTR m_nResponse;
};
