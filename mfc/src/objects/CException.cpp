#include <classes/CException.h>

#include <afxres.h>
#include <classes/Application.h>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete)
{
}

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError != NULL && nMaxError != 0)
        lpszError[0] = '\0';
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    TCHAR text[512];
    if (GetErrorMessage(text, _countof(text)))
        return AfxMessageBox(text, nType);
    return AfxMessageBox(nMessageID != 0 ? nMessageID : AFX_IDP_NO_ERROR_AVAILABLE, nType);
}

CSimpleException::CSimpleException() : messageId_(0)
{
}

CSimpleException::CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete), messageId_(0)
{
}

CSimpleException::CSimpleException(BOOL bAutoDelete, UINT nMessageID)
    : CException(bAutoDelete), messageId_(nMessageID)
{
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (messageId_ == 0 || lpszError == NULL || nMaxError == 0)
        return FALSE;
    return AfxLoadString(messageId_, lpszError, nMaxError) > 0;
}

CMemoryException::CMemoryException() : CMemoryException(TRUE)
{
}

CMemoryException::CMemoryException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete, AFX_IDS_MEMORY_EXCEPTION)
{
}

CNotSupportedException::CNotSupportedException()
    : CSimpleException(TRUE, AFX_IDS_NOT_SUPPORTED_EXCEPTION)
{
}

CResourceException::CResourceException() : CSimpleException(TRUE, AFX_IDS_RESOURCE_EXCEPTION)
{
}

CUserException::CUserException()
{
}

CInvalidArgException::CInvalidArgException() : CSimpleException(TRUE, AFX_IDS_INVALID_ARG_EXCEPTION)
{
}

void AFXAPI AfxThrowMemoryException()
{
    // There may be no memory left for a new object.
    static CMemoryException exhausted(FALSE);
    throw &exhausted;
}

void AFXAPI AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowResourceException()
{
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException()
{
    throw new CUserException;
}

void AFXAPI AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}
