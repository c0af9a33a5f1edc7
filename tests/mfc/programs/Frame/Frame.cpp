// A program whose main window is a frame with a menu and accelerators.
#include <afxwin.h>

#include "FrameResource.h"

class CMainFrame : public CFrameWnd
{
protected:
    int m_nCount = 0;

    afx_msg void OnCount()
    {
        CString strTitle;
        strTitle.Format(_T("Count %d"), ++m_nCount);
        SetWindowText(strTitle);
    }
    afx_msg LRESULT OnIdleCalls(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateQuit(CCmdUI* pCmdUI) { pCmdUI->Enable(m_nCount > 0); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_COMMAND(ID_FRAME_COUNT, OnCount)
    ON_UPDATE_COMMAND_UI(ID_FRAME_QUIT, OnUpdateQuit)
    ON_MESSAGE(WM_FRAME_IDLE_CALLS, OnIdleCalls)
END_MESSAGE_MAP()

class CFrameApp : public CWinApp
{
public:
    int m_nIdle = 0;

    virtual BOOL InitInstance()
    {
        CMainFrame* pFrame = new CMainFrame;
        m_pMainWnd = pFrame;
        if (!pFrame->LoadFrame(IDR_FRAME))
            return FALSE;
        pFrame->ShowWindow(m_nCmdShow);
        pFrame->UpdateWindow();
        pFrame->SetWindowText(CString(AfxGetAppName()) + _T(": ") + m_lpCmdLine);
        return TRUE;
    }
    virtual BOOL OnIdle(LONG lCount)
    {
        m_nIdle++;
        return CWinApp::OnIdle(lCount);
    }
    virtual int ExitInstance() { return CWinApp::ExitInstance() + (m_nIdle > 1 ? 100 : 0); }

protected:
    afx_msg void OnQuit() { PostQuitMessage(7); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CFrameApp, CWinApp)
    ON_COMMAND(ID_FRAME_QUIT, &CFrameApp::OnQuit)
END_MESSAGE_MAP()

CFrameApp theApp;

LRESULT CMainFrame::OnIdleCalls(WPARAM, LPARAM)
{
    return theApp.m_nIdle;
}
