// ChatSocket.cpp
//
#include "stdafx.h"
#include "resource.h"
#include "ChatSocket.h"
#include "ChatDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

void CListenSocket::OnAccept(int nErrorCode)
{
    CSocket::OnAccept(nErrorCode);
    m_pDlg->ProcessAccept();
}

void CChatSocket::SendLine(const CString& strLine)
{
    UINT nLength = strLine.GetLength() * sizeof(TCHAR);
    m_pFile->Write(&nLength, sizeof(nLength));
    m_pFile->Write((LPCTSTR)strLine, nLength);
    m_pFile->Flush();
}

BOOL CChatSocket::ReceiveLine(CString& strLine)
{
    UINT nLength = 0;
    if (m_pFile->Read(&nLength, sizeof(nLength)) != sizeof(nLength) || nLength > 10000)
        return FALSE;
    LPTSTR pszLine = strLine.GetBuffer(nLength / sizeof(TCHAR));
    UINT nRead = m_pFile->Read(pszLine, nLength);
    strLine.ReleaseBuffer(nRead / sizeof(TCHAR));
    return nRead == nLength;
}

void CChatSocket::OnReceive(int nErrorCode)
{
    CSocket::OnReceive(nErrorCode);
    m_pDlg->ProcessReceive();
}

void CChatSocket::OnClose(int nErrorCode)
{
    CSocket::OnClose(nErrorCode);
    m_pDlg->ProcessClose();
}
