// A search for files. FindFile starts it and FindNextFile steps to the next file, from the first
// one on; the attributes of a file may be asked after that.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>
#include <classes/CTime.h>
#include <classes/Platform.h>

class AFX_EXPORTED CFileFind : public CObject
{
    DECLARE_DYNAMIC(CFileFind)

public:
    CFileFind();
    ~CFileFind() override;

    ULONGLONG GetLength() const;
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFileURL() const;
    virtual CString GetRoot() const;

    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastWriteTime(CTime& refTime) const;
    virtual BOOL GetLastAccessTime(CTime& refTime) const;
    virtual BOOL GetCreationTime(CTime& refTime) const;

    /// True when any of the FILE_ATTRIBUTE_… bits is set.
    virtual BOOL MatchesMask(DWORD dwMask) const;
    /// True for "." and "..".
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const;
    BOOL IsDirectory() const;
    BOOL IsCompressed() const;
    BOOL IsSystem() const;
    BOOL IsHidden() const;
    BOOL IsTemporary() const;
    BOOL IsNormal() const;
    BOOL IsArchived() const;

    void Close();
    /// Starts a search; NULL means *.*. FALSE, with GetLastError, when there is nothing to find.
    virtual BOOL FindFile(LPCTSTR pstrName = NULL, DWORD dwUnused = 0);
    /// Steps to the next file; FALSE when that is the last one.
    virtual BOOL FindNextFile();

protected:
    virtual void CloseContext();

private:
    const WIN32_FIND_DATA& Found() const;
    BOOL GetTime(FILETIME WIN32_FIND_DATA::*which, FILETIME* result) const;
    BOOL GetTime(FILETIME WIN32_FIND_DATA::*which, CTime& result) const;

    HANDLE context_;
    BOOL hasFound_; ///< FindNextFile has been called.
    BOOL hasNext_;
    WIN32_FIND_DATA found_;
    WIN32_FIND_DATA next_;
    CString root_; ///< The directory of the search, with its backslash.
};
