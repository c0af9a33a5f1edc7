#include <classes/CArchiveException.h>

#include <afxres.h>
#include <classes/Modules.h>

IMPLEMENT_DYNAMIC(CArchiveException, CException)

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName)
{
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    const UINT cause =
        static_cast<UINT>(m_cause < none || m_cause > bufferFull ? +generic : m_cause);
    CString name = m_strFileName;
    if (name.IsEmpty())
        name.LoadString(AFX_IDS_UNTITLED);
    CString text;
    AfxFormatString1(text, AFX_IDP_ARCH_NONE + cause, name);
    lstrcpyn(lpszError, text, static_cast<int>(nMaxError));
    return TRUE;
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName);
}
