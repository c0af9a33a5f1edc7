#include <classes/CSocketFile.h>

#include <classes/CSocket.h>

#include <limits>

IMPLEMENT_DYNAMIC(CSocketFile, CFile)

namespace {

/// What one call of the socket takes at most.
int Portion(UINT count)
{
    return static_cast<int>(min(count, static_cast<UINT>(std::numeric_limits<int>::max())));
}

[[noreturn]] void ThrowSocketError()
{
    AfxThrowFileException(CFileException::genericException, CAsyncSocket::GetLastError());
}

} // namespace

CSocketFile::CSocketFile(CSocket* pSocket, BOOL bArchiveCompatible)
    : socket_(pSocket), archiveCompatible_(bArchiveCompatible)
{
    ASSERT(pSocket != NULL);
}

CSocketFile::~CSocketFile() = default;

BOOL CSocketFile::Open(LPCTSTR, UINT, CFileException*)
{
    AfxThrowNotSupportedException();
}

CFile* CSocketFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

ULONGLONG CSocketFile::GetPosition() const
{
    AfxThrowNotSupportedException();
}

ULONGLONG CSocketFile::Seek(LONGLONG, UINT)
{
    AfxThrowNotSupportedException();
}

void CSocketFile::SetLength(ULONGLONG)
{
    AfxThrowNotSupportedException();
}

ULONGLONG CSocketFile::GetLength() const
{
    AfxThrowNotSupportedException();
}

UINT CSocketFile::Read(void* lpBuf, UINT nCount)
{
    char* const buffer = static_cast<char*>(lpBuf);
    UINT received = 0;
    while (received < nCount) {
        const int more = Connection().Receive(buffer + received, Portion(nCount - received));
        if (more == SOCKET_ERROR)
            ThrowSocketError();
        received += static_cast<UINT>(more);
        if (more == 0 || archiveCompatible_)
            break;
    }
    return received;
}

void CSocketFile::Write(const void* lpBuf, UINT nCount)
{
    const char* const data = static_cast<const char*>(lpBuf);
    for (UINT sent = 0; sent < nCount;) {
        const int more = Connection().Send(data + sent, Portion(nCount - sent));
        if (more == SOCKET_ERROR)
            ThrowSocketError();
        sent += static_cast<UINT>(more);
    }
}

void CSocketFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CSocketFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CSocketFile::Close()
{
    socket_ = NULL;
    CFile::Close();
}

CSocket& CSocketFile::Connection() const
{
    if (socket_ == NULL)
        AfxThrowFileException(CFileException::invalidFile);
    return *socket_;
}
