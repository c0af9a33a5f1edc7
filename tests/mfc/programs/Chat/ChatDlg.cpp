// ChatDlg.cpp : implementation file
//
#include "stdafx.h"
#include "resource.h"
#include "ChatDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

CChatDlg::CChatDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CChatDlg::IDD, pParent), m_nPort(0), m_pListener(NULL), m_pConnection(NULL)
{
}

CChatDlg::~CChatDlg()
{
    delete m_pConnection;
    delete m_pListener;
}

void CChatDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LINES, m_lines);
    DDX_Text(pDX, IDC_PORT, m_nPort);
    DDX_Text(pDX, IDC_LINE, m_strLine);
}

BEGIN_MESSAGE_MAP(CChatDlg, CDialog)
    ON_BN_CLICKED(IDC_LISTEN, &CChatDlg::OnListen)
    ON_BN_CLICKED(IDC_CONNECT, &CChatDlg::OnConnect)
    ON_BN_CLICKED(IDC_DISCONNECT, &CChatDlg::OnDisconnect)
    ON_BN_CLICKED(IDC_SEND, &CChatDlg::OnSend)
END_MESSAGE_MAP()

BOOL CChatDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    GetDlgItem(IDC_LINE)->SetFocus();
    return FALSE;
}

void CChatDlg::OnListen()
{
    if (!UpdateData())
        return;
    delete m_pListener;
    m_pListener = new CListenSocket(this);
    if (!m_pListener->Create(m_nPort, SOCK_STREAM, _T("127.0.0.1")) || !m_pListener->Listen())
    {
        AddLine(_T("* The port is not free."));
        return;
    }
    CString strAddress;
    m_pListener->GetSockName(strAddress, m_nPort);
    UpdateData(FALSE);
    AddLine(_T("* Waiting"));
}

void CChatDlg::OnConnect()
{
    if (!UpdateData())
        return;
    DropConnection();
    m_pConnection = new CChatSocket(this);
    if (!m_pConnection->Create() || !m_pConnection->Connect(_T("127.0.0.1"), m_nPort))
    {
        DropConnection();
        AddLine(_T("* Nobody listens there."));
        return;
    }
    m_pConnection->Init();
    AddLine(_T("* Connected"));
}

void CChatDlg::OnDisconnect()
{
    DropConnection();
    AddLine(_T("* Disconnected"));
}

void CChatDlg::OnSend()
{
    if (!UpdateData() || m_strLine.IsEmpty())
        return;
    if (m_pConnection == NULL)
    {
        AddLine(_T("* There is no connection."));
        return;
    }
    try
    {
        m_pConnection->SendLine(m_strLine);
        AddLine(_T("me: ") + m_strLine);
        m_strLine.Empty();
        UpdateData(FALSE);
    }
    catch (CFileException* e)
    {
        e->Delete();
        AddLine(_T("* The line could not be sent."));
    }
}

void CChatDlg::ProcessAccept()
{
    DropConnection();
    m_pConnection = new CChatSocket(this);
    if (!m_pListener->Accept(*m_pConnection))
    {
        DropConnection();
        return;
    }
    m_pConnection->Init();
    AddLine(_T("* Somebody has come"));
}

void CChatDlg::ProcessReceive()
{
    CString strLine;
    if (m_pConnection->ReceiveLine(strLine))
        AddLine(_T("other: ") + strLine);
}

void CChatDlg::ProcessClose()
{
    DropConnection();
    AddLine(_T("* The other one has left"));
}

void CChatDlg::AddLine(LPCTSTR pszLine)
{
    m_lines.SetTopIndex(m_lines.AddString(pszLine));
}

void CChatDlg::DropConnection()
{
    delete m_pConnection;
    m_pConnection = NULL;
}
