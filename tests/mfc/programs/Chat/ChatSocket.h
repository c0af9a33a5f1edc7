// ChatSocket.h : the two kinds of sockets of this program
//
#pragma once

class CChatDlg;

// Waits for the other side.
class CListenSocket : public CSocket
{
public:
    CListenSocket(CChatDlg* pDlg) : m_pDlg(pDlg) {}

protected:
    virtual void OnAccept(int nErrorCode);

    CChatDlg* m_pDlg;
};

// A connection, with the file that lines are read from and written to.
class CChatSocket : public CSocket
{
public:
    CChatSocket(CChatDlg* pDlg) : m_pFile(NULL), m_pDlg(pDlg) {}
    virtual ~CChatSocket() { delete m_pFile; }

    void Init() { m_pFile = new CSocketFile(this, FALSE); }
    void SendLine(const CString& strLine);
    BOOL ReceiveLine(CString& strLine);

protected:
    virtual void OnReceive(int nErrorCode);
    virtual void OnClose(int nErrorCode);

    CSocketFile* m_pFile;
    CChatDlg* m_pDlg;
};
