// ChatDlg.h : header file
//
#pragma once

#include "ChatSocket.h"

class CChatDlg : public CDialog
{
public:
    CChatDlg(CWnd* pParent = NULL);
    ~CChatDlg();

    enum { IDD = IDD_CHAT_DIALOG };

    void ProcessAccept();
    void ProcessReceive();
    void ProcessClose();

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    afx_msg void OnListen();
    afx_msg void OnConnect();
    afx_msg void OnDisconnect();
    afx_msg void OnSend();
    DECLARE_MESSAGE_MAP()

    void AddLine(LPCTSTR pszLine);
    void DropConnection();

    CListBox m_lines;
    UINT m_nPort;
    CString m_strLine;
    CListenSocket* m_pListener;
    CChatSocket* m_pConnection;
};
