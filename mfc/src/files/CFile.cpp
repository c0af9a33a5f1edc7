#include <classes/CFile.h>

#include <classes/CDumpContext.h>

#include "files/FilePaths.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

DWORD AccessOf(UINT flags)
{
    switch (flags & (CFile::modeWrite | CFile::modeReadWrite)) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD SharingOf(UINT flags)
{
    switch (flags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default: // Compatibility mode of old systems is exclusive use here.
        return 0;
    }
}

DWORD DispositionOf(UINT flags)
{
    if (!(flags & CFile::modeCreate))
        return OPEN_EXISTING;
    return flags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT flags)
{
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if (flags & CFile::osNoBuffer)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if (flags & CFile::osWriteThrough)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if (flags & CFile::osRandomAccess)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if (flags & CFile::osSequentialScan)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}

LARGE_INTEGER LargeInteger(ULONGLONG value)
{
    LARGE_INTEGER large;
    large.QuadPart = static_cast<LONGLONG>(value);
    return large;
}

/// Undoes CTime's reading of a file time.
FILETIME FileTimeOf(const CTime& time)
{
    const LONGLONG units = (time.GetTime() + 11'644'473'600) * 10'000'000;
    return {static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
}

void ThrowLastError(LPCTSTR file)
{
    CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), file);
}

} // namespace

CString afxint::FullPathOf(LPCTSTR name)
{
    CString path;
    const DWORD length = ::GetFullPathName(name, 0, NULL, NULL);
    const DWORD written =
        ::GetFullPathName(name, length, path.GetBuffer(static_cast<int>(length)), NULL);
    path.ReleaseBufferSetLength(written < length ? static_cast<int>(written) : 0);
    return path.IsEmpty() ? CString(name) : path;
}

CString afxint::TitleOf(const CString& fileName)
{
    return fileName.Left(static_cast<int>(::PathFindExtension(fileName) - fileName.GetString()));
}

CTime afxint::TimeOfFile(const FILETIME& time)
{
    return time.dwLowDateTime == 0 && time.dwHighDateTime == 0 ? CTime() : CTime(time);
}

CFile::CFile() : CFile(hFileNull)
{
}

CFile::CFile(HANDLE hFile) : m_hFile(hFile), closesOnDelete_(hFile != hFileNull)
{
}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CFile()
{
    CFileException failure;
    if (!CFile::Open(lpszFileName, nOpenFlags, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, failure.m_strFileName);
}

CFile::~CFile()
{
    if (closesOnDelete_)
        Abort();
}

void CFile::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with handle " << static_cast<const void*>(m_hFile) << " and name \"" << fileName_
       << "\"\n";
}

CFile::operator HANDLE() const
{
    return m_hFile;
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER position = {};
    Check(::SetFilePointerEx(m_hFile, LargeInteger(0), &position, FILE_CURRENT));
    return position.QuadPart;
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const
{
    rStatus = CFileStatus();
    BY_HANDLE_FILE_INFORMATION information;
    if (m_hFile == hFileNull || !::GetFileInformationByHandle(m_hFile, &information))
        return FALSE;
    rStatus.m_ctime = afxint::TimeOfFile(information.ftCreationTime);
    rStatus.m_mtime = afxint::TimeOfFile(information.ftLastWriteTime);
    rStatus.m_atime = afxint::TimeOfFile(information.ftLastAccessTime);
    rStatus.m_size =
        (static_cast<ULONGLONG>(information.nFileSizeHigh) << 32) | information.nFileSizeLow;
    rStatus.m_attribute = LOBYTE(information.dwFileAttributes & ~FILE_ATTRIBUTE_NORMAL);
    lstrcpyn(rStatus.m_szFullName, fileName_, _MAX_PATH);
    return TRUE;
}

CString CFile::GetFileName() const
{
    return ::PathFindFileName(fileName_);
}

CString CFile::GetFileTitle() const
{
    return afxint::TitleOf(GetFileName());
}

CString CFile::GetFilePath() const
{
    return fileName_;
}

void CFile::SetFilePath(LPCTSTR lpszNewName)
{
    fileName_ = lpszNewName;
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    ASSERT(m_hFile == hFileNull);
    SECURITY_ATTRIBUTES security = {sizeof(security), NULL, !(nOpenFlags & modeNoInherit)};
    const HANDLE file =
        lpszFileName == NULL || *lpszFileName == '\0'
            ? (::SetLastError(ERROR_INVALID_NAME), hFileNull)
            : ::CreateFile(lpszFileName, AccessOf(nOpenFlags), SharingOf(nOpenFlags), &security,
                           DispositionOf(nOpenFlags), AttributesOf(nOpenFlags), NULL);
    if (file == hFileNull) {
        if (pError != NULL) {
            pError->m_lOsError = static_cast<LONG>(::GetLastError());
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_hFile = file;
    closesOnDelete_ = TRUE;
    fileName_ = afxint::FullPathOf(lpszFileName);
    return TRUE;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName)
{
    if (!::MoveFile(lpszOldName, lpszNewName))
        ThrowLastError(lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName)
{
    if (!::DeleteFile(lpszFileName))
        ThrowLastError(lpszFileName);
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus)
{
    rStatus = CFileStatus();
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesEx(lpszFileName, GetFileExInfoStandard, &data))
        return FALSE;
    rStatus.m_ctime = afxint::TimeOfFile(data.ftCreationTime);
    rStatus.m_mtime = afxint::TimeOfFile(data.ftLastWriteTime);
    rStatus.m_atime = afxint::TimeOfFile(data.ftLastAccessTime);
    rStatus.m_size = (static_cast<ULONGLONG>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    rStatus.m_attribute = LOBYTE(data.dwFileAttributes & ~FILE_ATTRIBUTE_NORMAL);
    lstrcpyn(rStatus.m_szFullName, afxint::FullPathOf(lpszFileName), _MAX_PATH);
    return TRUE;
}

void PASCAL CFile::SetStatus(LPCTSTR lpszFileName, const CFileStatus& status)
{
    const DWORD present = ::GetFileAttributes(lpszFileName);
    if (present == INVALID_FILE_ATTRIBUTES)
        ThrowLastError(lpszFileName);
    // Times can be set only while the file may be written.
    if (present & FILE_ATTRIBUTE_READONLY && !(status.m_attribute & readOnly) &&
        !::SetFileAttributes(lpszFileName, status.m_attribute))
        ThrowLastError(lpszFileName);

    // A time of zero is left as it is.
    FILETIME times[3];
    const FILETIME* given[3] = {};
    const CTime* wanted[3] = {&status.m_ctime, &status.m_atime, &status.m_mtime};
    bool anyTime = false;
    for (int i = 0; i < 3; ++i) {
        if (wanted[i]->GetTime() == 0)
            continue;
        times[i] = FileTimeOf(*wanted[i]);
        given[i] = &times[i];
        anyTime = true;
    }
    if (anyTime) {
        CFile file(::CreateFile(lpszFileName, FILE_WRITE_ATTRIBUTES,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, NULL,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, NULL));
        if (file.m_hFile == hFileNull || !::SetFileTime(file, given[0], given[1], given[2]))
            ThrowLastError(lpszFileName);
    }
    if (status.m_attribute != (present & ~FILE_ATTRIBUTE_NORMAL) &&
        !::SetFileAttributes(lpszFileName, status.m_attribute))
        ThrowLastError(lpszFileName);
}

ULONGLONG CFile::SeekToEnd()
{
    return Seek(0, end);
}

void CFile::SeekToBegin()
{
    Seek(0, begin);
}

CFile* CFile::Duplicate() const
{
    HANDLE handle = hFileNull;
    const HANDLE process = ::GetCurrentProcess();
    Check(::DuplicateHandle(process, m_hFile, process, &handle, 0, FALSE, DUPLICATE_SAME_ACCESS));
    CFile* copy = new CFile(handle);
    copy->fileName_ = fileName_;
    return copy;
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    LARGE_INTEGER position = {};
    Check(::SetFilePointerEx(m_hFile, LargeInteger(lOff), &position, nFrom));
    return position.QuadPart;
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    Check(::SetEndOfFile(m_hFile));
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER length = {};
    Check(::GetFileSizeEx(m_hFile, &length));
    return length.QuadPart;
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return 0;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    DWORD read = 0;
    Check(::ReadFile(m_hFile, lpBuf, nCount, &read, NULL));
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    DWORD written = 0;
    Check(::WriteFile(m_hFile, lpBuf, nCount, &written, NULL));
    if (written != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, fileName_);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    const LARGE_INTEGER from = LargeInteger(dwPos);
    const LARGE_INTEGER count = LargeInteger(dwCount);
    Check(::LockFile(m_hFile, from.LowPart, from.HighPart, count.LowPart, count.HighPart));
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    const LARGE_INTEGER from = LargeInteger(dwPos);
    const LARGE_INTEGER count = LargeInteger(dwCount);
    Check(::UnlockFile(m_hFile, from.LowPart, from.HighPart, count.LowPart, count.HighPart));
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
        ::CloseHandle(std::exchange(m_hFile, hFileNull));
    fileName_.Empty();
}

void CFile::Flush()
{
    if (m_hFile != hFileNull)
        Check(::FlushFileBuffers(m_hFile));
}

void CFile::Close()
{
    const HANDLE file = std::exchange(m_hFile, hFileNull);
    const CString name = fileName_;
    closesOnDelete_ = FALSE;
    fileName_.Empty();
    if (file != hFileNull && !::CloseHandle(file))
        ThrowLastError(name);
}

/// Throws what the last system call failed with.
void CFile::Check(BOOL succeeded) const
{
    if (!succeeded)
        ThrowLastError(fileName_);
}
