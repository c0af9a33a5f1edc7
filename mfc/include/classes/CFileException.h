// What went wrong with a file.
#pragma once

#include <classes/CException.h>
#include <classes/CString.h>
#include <classes/Platform.h>

class AFX_EXPORTED CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile,
        generic = genericException
    };

    CFileException(int cause = CFileException::none, LONG lOsError = -1,
                   LPCTSTR lpszArchiveName = NULL);

    /// The cause that stands for an error of the system, or of the C library.
    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = NULL);
    static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = NULL);

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                         PUINT pnHelpContext = NULL) const override;

    int m_cause;           ///< One of the causes above.
    LONG m_lOsError;       ///< The system's error code; -1 when there is none.
    CString m_strFileName; ///< May be empty.
};

[[noreturn]] AFX_EXPORTED void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                            LPCTSTR lpszFileName = NULL);
