// A connection as a file.
#pragma once

#include <classes/CFile.h>

class CSocket;

/// Reads from a socket and writes to it, for an archive or alone. A socket has no position and no
/// length: what asks for these throws CNotSupportedException.
class AFX_EXPORTED CSocketFile : public CFile
{
    DECLARE_DYNAMIC(CSocketFile)

public:
    /// The socket stays the caller's. For an archive, Read gives what has come, one byte at least;
    /// otherwise it waits for all that is wanted. 0, or less than wanted, tells that the other end
    /// has closed the connection.
    explicit CSocketFile(CSocket* pSocket, BOOL bArchiveCompatible = TRUE);
    ~CSocketFile() override;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL) override;
    CFile* Duplicate() const override;
    ULONGLONG GetPosition() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;
    ULONGLONG GetLength() const override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    /// Lets go of the socket, which stays open.
    void Close() override;

private:
    CSocket& Connection() const;

    CSocket* socket_; ///< NULL after Close.
    BOOL archiveCompatible_;
};
