#include <classes/CStdioFile.h>

#include <classes/CDumpContext.h>

#include <errno.h>
#include <fcntl.h>
#include <io.h>

#include <utility>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

constexpr UINT accessFlags = CFile::modeWrite | CFile::modeReadWrite;

/// How a descriptor and a stream are opened over a file that is open already.
int DescriptorFlags(UINT flags)
{
    const int access = (flags & accessFlags) == CFile::modeWrite  ? _O_WRONLY
                       : (flags & accessFlags) == CFile::modeRead ? _O_RDONLY
                                                                  : _O_RDWR;
    return access | (flags & CFile::typeBinary ? _O_BINARY : _O_TEXT);
}

const char* StreamMode(UINT flags)
{
    const bool binary = (flags & CFile::typeBinary) != 0;
    switch (flags & accessFlags) {
    case CFile::modeRead:
        return binary ? "rb" : "rt";
    case CFile::modeWrite:
        return binary ? "wb" : "wt";
    default:
        return binary ? "r+b" : "r+t";
    }
}

} // namespace

CStdioFile::CStdioFile() : m_pStream(NULL)
{
}

CStdioFile::CStdioFile(FILE* pOpenStream) : m_pStream(pOpenStream)
{
    if (pOpenStream == NULL)
        AfxThrowInvalidArgException();
    m_hFile = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(pOpenStream)));
}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CStdioFile()
{
    CFileException failure;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    if (closesStream_)
        Abort();
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    ASSERT(m_pStream == NULL);
    if (!CFile::Open(lpszFileName, nOpenFlags & ~(typeText | typeBinary), pError))
        return FALSE;
    const int descriptor =
        ::_open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), DescriptorFlags(nOpenFlags));
    m_pStream = descriptor == -1 ? NULL : ::_fdopen(descriptor, StreamMode(nOpenFlags));
    if (m_pStream == NULL) {
        if (pError != NULL) {
            pError->m_cause = CFileException::ErrnoToException(errno);
            pError->m_lOsError = -1;
            pError->m_strFileName = lpszFileName;
        }
        if (descriptor != -1) {
            ::_close(descriptor); // It closes the file, too.
            m_hFile = hFileNull;
        }
        CFile::Abort();
        return FALSE;
    }
    closesStream_ = true;
    return TRUE;
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax)
{
    FILE* const stream = OpenStream();
    if (lpsz == NULL || nMax == 0)
        AfxThrowInvalidArgException();
    const LPTSTR line =
        ::_fgetts(lpsz, static_cast<int>(min(nMax, static_cast<UINT>(INT_MAX))), stream);
    CheckStream(line != NULL || !::ferror(stream));
    return line;
}

BOOL CStdioFile::ReadString(CString& rString)
{
    rString.Empty();
    TCHAR part[256];
    bool any = false;
    while (ReadString(part, _countof(part)) != NULL) {
        any = true;
        rString += part;
        if (!rString.IsEmpty() && rString[rString.GetLength() - 1] == '\n') {
            rString.Truncate(rString.GetLength() - 1);
            break;
        }
    }
    return any;
}

void CStdioFile::WriteString(LPCTSTR lpsz)
{
    FILE* const stream = OpenStream();
    if (lpsz == NULL)
        AfxThrowInvalidArgException();
    // Not every run-time library tells in its result that wide text could not be written.
    CheckStream(::_fputts(lpsz, stream) >= 0 && ::ferror(stream) == 0);
}

CFile* CStdioFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

ULONGLONG CStdioFile::GetPosition() const
{
    const __int64 position = ::_ftelli64(OpenStream());
    CheckStream(position >= 0);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    if (::_fseeki64(OpenStream(), lOff, static_cast<int>(nFrom)) != 0)
        AfxThrowFileException(CFileException::badSeek, -1, GetFilePath());
    return GetPosition();
}

ULONGLONG CStdioFile::GetLength() const
{
    const __int64 length = ::_filelengthi64(::_fileno(OpenStream()));
    CheckStream(length >= 0);
    // What was written last may be in the stream's buffer still.
    return max(static_cast<ULONGLONG>(length), GetPosition());
}

void CStdioFile::SetLength(ULONGLONG dwNewLen)
{
    CStdioFile::Seek(static_cast<LONGLONG>(dwNewLen), begin); // Writes the buffer out, too.
    if (!::SetEndOfFile(m_hFile))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), GetFilePath());
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount)
{
    FILE* const stream = OpenStream();
    if (nCount == 0)
        return 0;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    const size_t read = ::fread(lpBuf, 1, nCount, stream);
    CheckStream(read == nCount || !::ferror(stream));
    return static_cast<UINT>(read);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount)
{
    FILE* const stream = OpenStream();
    if (nCount == 0)
        return;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    CheckStream(::fwrite(lpBuf, 1, nCount, stream) == nCount);
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::Abort()
{
    FILE* const stream = ReleaseStream();
    if (stream != NULL)
        ::fclose(stream);
    CFile::Abort();
}

void CStdioFile::Flush()
{
    if (m_pStream != NULL)
        CheckStream(::fflush(m_pStream) == 0);
}

void CStdioFile::Close()
{
    const CString name = GetFilePath();
    FILE* const stream = ReleaseStream();
    const bool closed = stream == NULL || ::fclose(stream) == 0;
    const int error = errno;
    CFile::Close();
    if (!closed)
        CFileException::ThrowErrno(error, name);
}

void CStdioFile::Dump(CDumpContext& dc) const
{
    CFile::Dump(dc);
    dc << "with stream " << static_cast<const void*>(m_pStream) << "\n";
}

/// Throws what the last call of the C library failed with.
void CStdioFile::CheckStream(bool succeeded) const
{
    if (succeeded)
        return;
    if (m_pStream != NULL)
        ::clearerr(m_pStream);
    CFileException::ThrowErrno(errno == 0 ? EIO : errno, GetFilePath());
}

FILE* CStdioFile::OpenStream() const
{
    if (m_pStream == NULL)
        AfxThrowFileException(CFileException::invalidFile, -1, GetFilePath());
    errno = 0; // So that an error is told from that of an earlier call.
    return m_pStream;
}

/// Gives up the stream, and the file's handle, which belongs to the stream.
FILE* CStdioFile::ReleaseStream()
{
    m_hFile = hFileNull;
    closesStream_ = false;
    return std::exchange(m_pStream, nullptr);
}
