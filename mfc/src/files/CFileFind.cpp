#include <classes/CException.h>
#include <classes/CFileFind.h>

#include "files/FilePaths.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::CFileFind()
    : m_hContext(INVALID_HANDLE_VALUE), m_bHasFound(FALSE), m_bHasNext(FALSE), m_found(), m_next()
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
    return m_strRoot + Found().cFileName;
}

CString CFileFind::GetFileTitle() const
{
    return afxint::TitleOf(GetFileName());
}

CString CFileFind::GetFileURL() const
{
    CString path = GetFilePath();
    path.Replace('\\', '/');
    return "file://" + path;
}

CString CFileFind::GetRoot() const
{
    CString root = m_strRoot;
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
    return IsDirectory() && (name == "." || name == "..");
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
    m_bHasFound = FALSE;
    m_bHasNext = FALSE;
    m_strRoot.Empty();
    CloseContext();
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD /*dwUnused*/)
{
    Close();
    if (pstrName == nullptr)
        pstrName = "*.*";
    m_hContext = ::FindFirstFile(pstrName, &m_next);
    if (m_hContext == INVALID_HANDLE_VALUE)
        return FALSE;
    m_bHasNext = TRUE;
    const CString pattern = afxint::FullPathOf(pstrName);
    m_strRoot = pattern.Left(static_cast<int>(::PathFindFileName(pattern) - pattern.GetString()));
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (!m_bHasNext) {
        ::SetLastError(m_hContext == INVALID_HANDLE_VALUE ? ERROR_INVALID_HANDLE
                                                          : ERROR_NO_MORE_FILES);
        return FALSE;
    }
    m_found = m_next;
    m_bHasFound = TRUE;
    m_bHasNext = ::FindNextFile(m_hContext, &m_next);
    return m_bHasNext;
}

void CFileFind::CloseContext()
{
    if (m_hContext != INVALID_HANDLE_VALUE)
        ::FindClose(std::exchange(m_hContext, INVALID_HANDLE_VALUE));
}

const WIN32_FIND_DATA& CFileFind::Found() const
{
    if (!m_bHasFound)
        AfxThrowInvalidArgException();
    return m_found;
}

BOOL CFileFind::GetTime(FILETIME WIN32_FIND_DATA::*which, FILETIME* result) const
{
    if (!m_bHasFound || result == nullptr)
        return FALSE;
    *result = m_found.*which;
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
