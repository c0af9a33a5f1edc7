// What went wrong with an archive.
#pragma once

#include <classes/CException.h>
#include <classes/CString.h>

class AFX_EXPORTED CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)

public:
    enum {
        none,
        genericException,
        readOnly,   ///< Writing was tried in an archive that loads.
        endOfFile,  ///< The archive ended amid a value.
        writeOnly,  ///< Reading was tried in an archive that stores.
        badIndex,   ///< A reference to an object or a class that is not there.
        badClass,   ///< An object of an unknown class, or of another one than is wanted.
        badSchema,  ///< An object of another version than its class knows.
        bufferFull, ///< There is no more room for objects.
        generic = genericException
    };

    CArchiveException(int cause = CArchiveException::none, LPCTSTR lpszArchiveName = NULL);

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                         PUINT pnHelpContext = NULL) const override;

    int m_cause;           ///< One of the causes above.
    CString m_strFileName; ///< May be empty.
};

[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowArchiveException(int cause,
                                                               LPCTSTR lpszArchiveName = NULL);
