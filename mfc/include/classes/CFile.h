// A binary file without buffering. Operations throw CFileException, with its cause and the file's
// name; only Open reports failure by its result.
#pragma once

#include <classes/CFileException.h>
#include <classes/CObject.h>
#include <classes/CString.h>
#include <classes/CTime.h>
#include <classes/Platform.h>

struct CFileStatus
{
    CTime m_ctime;    ///< Creation.
    CTime m_mtime;    ///< Last change.
    CTime m_atime;    ///< Last access.
    ULONGLONG m_size; ///< Bytes.
    BYTE m_attribute; ///< A combination of CFile::Attribute.
    BYTE _m_padding;
    TCHAR m_szFullName[_MAX_PATH];
};

class AFX_EXPORTED CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        modeCreate = 0x01000,
        modeNoTruncate = 0x02000,
        typeText = 0x04000,
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20,
        device = 0x40,
        temporary = 0x80
    };
    enum SeekPosition { begin = 0x0, current = 0x1, end = 0x2 };
    enum BufferCommand { bufferRead, bufferWrite, bufferCommit, bufferCheck };
    static const HANDLE hFileNull;

    CFile();
    /// Takes over an open file.
    CFile(HANDLE hFile);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;
    void Dump(CDumpContext& dc) const override;

    operator HANDLE() const;

    virtual ULONGLONG GetPosition() const;
    BOOL GetStatus(CFileStatus& rStatus) const;
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    virtual void SetFilePath(LPCTSTR lpszNewName);

    /// FALSE on failure, told in pError when given.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL);

    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void PASCAL Remove(LPCTSTR lpszFileName);
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);
    static void PASCAL SetStatus(LPCTSTR lpszFileName, const CFileStatus& status);

    ULONGLONG SeekToEnd();
    void SeekToBegin();
    /// The caller owns the copy, which has a handle of its own.
    virtual CFile* Duplicate() const;
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG GetLength() const;
    /// The bytes read, fewer than wanted only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    /// Closes the file and ignores failure.
    virtual void Abort();
    virtual void Flush();
    virtual void Close();

    HANDLE m_hFile;

private:
    void Check(BOOL succeeded) const;

    CString fileName_;
    BOOL closesOnDelete_;
};
