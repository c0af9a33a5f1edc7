#include <classes/CException.h>
#include <classes/CFileFind.h>

#include "files/FilePaths.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::CFileFind()
    : context_(INVALID_HANDLE_VALUE), hasFound_(FALSE), hasNext_(FALSE), found_(), next_()
{
}

CFileFind::~CFileFind()
{
    CFileFind::CloseContext();
}

ULONGLONG CFileFind::GetLength() const
{
    const WIN32_FIND_DATA& found = Found();
    return (static_cast<ULONGLONG>(found.nFileSizeHigh) << 32) | found.nFileSizeLow;
}

CString CFileFind::GetFileName() const
{
    return Found().cFileName;
}

CString CFileFind::GetFilePath() const
{
    return root_ + Found().cFileName;
}

CString CFileFind::GetFileTitle() const
{
    return afxint::TitleOf(GetFileName());
}

CString CFileFind::GetFileURL() const
{
    CString path = GetFilePath();
    path.Replace('\\', '/');
    return _T("file://") + path;
}

CString CFileFind::GetRoot() const
{
    CString root = root_;
    root.TrimRight('\\');
    return root;
}

BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const
{
    return GetTime(&WIN32_FIND_DATA::ftLastWriteTime, pTimeStamp);
}

BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const
{
    return GetTime(&WIN32_FIND_DATA::ftLastAccessTime, pTimeStamp);
}

BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const
{
    return GetTime(&WIN32_FIND_DATA::ftCreationTime, pTimeStamp);
}

BOOL CFileFind::GetLastWriteTime(CTime& refTime) const
{
    return GetTime(&WIN32_FIND_DATA::ftLastWriteTime, refTime);
}

BOOL CFileFind::GetLastAccessTime(CTime& refTime) const
{
    return GetTime(&WIN32_FIND_DATA::ftLastAccessTime, refTime);
}

BOOL CFileFind::GetCreationTime(CTime& refTime) const
{
    return GetTime(&WIN32_FIND_DATA::ftCreationTime, refTime);
}

BOOL CFileFind::MatchesMask(DWORD dwMask) const
{
    return (Found().dwFileAttributes & dwMask) != 0;
}

BOOL CFileFind::IsDots() const
{
    const CString name = GetFileName();
    return IsDirectory() && (name == _T(".") || name == _T(".."));
}

BOOL CFileFind::IsReadOnly() const
{
    return MatchesMask(FILE_ATTRIBUTE_READONLY);
}

BOOL CFileFind::IsDirectory() const
{
    return MatchesMask(FILE_ATTRIBUTE_DIRECTORY);
}

BOOL CFileFind::IsCompressed() const
{
    return MatchesMask(FILE_ATTRIBUTE_COMPRESSED);
}

BOOL CFileFind::IsSystem() const
{
    return MatchesMask(FILE_ATTRIBUTE_SYSTEM);
}

BOOL CFileFind::IsHidden() const
{
    return MatchesMask(FILE_ATTRIBUTE_HIDDEN);
}

BOOL CFileFind::IsTemporary() const
{
    return MatchesMask(FILE_ATTRIBUTE_TEMPORARY);
}

BOOL CFileFind::IsNormal() const
{
    return MatchesMask(FILE_ATTRIBUTE_NORMAL);
}

BOOL CFileFind::IsArchived() const
{
    return MatchesMask(FILE_ATTRIBUTE_ARCHIVE);
}

void CFileFind::Close()
{
    hasFound_ = FALSE;
    hasNext_ = FALSE;
    root_.Empty();
    CloseContext();
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD /*dwUnused*/)
{
    Close();
    if (pstrName == NULL)
        pstrName = _T("*.*");
    context_ = ::FindFirstFile(pstrName, &next_);
    if (context_ == INVALID_HANDLE_VALUE)
        return FALSE;
    hasNext_ = TRUE;
    const CString pattern = afxint::FullPathOf(pstrName);
    root_ = pattern.Left(static_cast<int>(::PathFindFileName(pattern) - pattern.GetString()));
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (!hasNext_) {
        ::SetLastError(context_ == INVALID_HANDLE_VALUE ? ERROR_INVALID_HANDLE
                                                        : ERROR_NO_MORE_FILES);
        return FALSE;
    }
    found_ = next_;
    hasFound_ = TRUE;
    hasNext_ = ::FindNextFile(context_, &next_);
    return hasNext_;
}

void CFileFind::CloseContext()
{
    if (context_ != INVALID_HANDLE_VALUE)
        ::FindClose(std::exchange(context_, INVALID_HANDLE_VALUE));
}

const WIN32_FIND_DATA& CFileFind::Found() const
{
    if (!hasFound_)
        AfxThrowInvalidArgException();
    return found_;
}

BOOL CFileFind::GetTime(FILETIME WIN32_FIND_DATA::*which, FILETIME* result) const
{
    if (!hasFound_ || result == NULL)
        return FALSE;
    *result = found_.*which;
    return TRUE;
}

BOOL CFileFind::GetTime(FILETIME WIN32_FIND_DATA::*which, CTime& result) const
{
    FILETIME time;
    if (!GetTime(which, &time))
        return FALSE;
    result = afxint::TimeOfFile(time);
    return TRUE;
}
