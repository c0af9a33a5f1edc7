#include <classes/CFileException.h>

#include <errno.h>

IMPLEMENT_DYNAMIC(CFileException, CException)

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName)
{
}

int PASCAL CFileException::OsErrorToException(LONG lOsError)
{
    switch (lOsError) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_DIRECTORY:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_SHARING_BUFFER_EXCEEDED:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_CANNOT_MAKE:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_INVALID_ACCESS:
    case ERROR_NETWORK_ACCESS_DENIED:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_TARGET_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
    case ERROR_DIR_NOT_EMPTY:
        return removeCurrentDir;
    case ERROR_NO_MORE_FILES:
        return directoryFull;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK_ON_DEVICE:
        return badSeek;
    case ERROR_NOT_READY:
    case ERROR_CRC:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCK_FAILED:
    case ERROR_NOT_LOCKED:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

int PASCAL CFileException::ErrnoToException(int nErrno)
{
    switch (nErrno) {
    case 0:
        return none;
    case ENOENT:
        return fileNotFound;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EEXIST:
    case EROFS:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case ENOTDIR:
    case ENAMETOOLONG:
        return badPath;
    case EDEADLOCK:
        return sharingViolation;
    case ENOSPC:
        return diskFull;
    case EIO:
        return hardIO;
    default:
        return genericException;
    }
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName)
{
    if (lOsError != NO_ERROR)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName)
{
    if (nErrno != 0)
        AfxThrowFileException(ErrnoToException(nErrno), -1, lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    CString text = m_strFileName;
    if (!text.IsEmpty())
        text += _T(": ");
    CString reason;
    const DWORD length =
        m_lOsError <= 0
            ? 0
            : ::FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, NULL,
                              m_lOsError, 0, reason.GetBuffer(512), 512, NULL);
    reason.ReleaseBufferSetLength(static_cast<int>(length));
    if (reason.TrimRight().IsEmpty())
        reason.Format(_T("file error %d"), m_cause);
    lstrcpyn(lpszError, text + reason, static_cast<int>(nMaxError));
    return TRUE;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}
