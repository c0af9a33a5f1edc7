// Chat.cpp : Defines the class behaviors for the application.
//
#include "stdafx.h"
#include "resource.h"
#include "ChatDlg.h"

class CChatApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        if (!AfxSocketInit())
        {
            AfxMessageBox(IDP_SOCKETS_INIT_FAILED);
            return FALSE;
        }
        CChatDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CChatApp theApp;
