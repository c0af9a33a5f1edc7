// A buffered file of the C library, with lines of text.
//
// Without CFile::typeBinary, text mode: lines end in a carriage return and a newline in the file
// and in a newline in the program. Duplicate, LockRange and UnlockRange throw
// CNotSupportedException.
#pragma once

#include <classes/CFile.h>

#include <stdio.h>

class AFX_EXPORTED CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    /// Takes over an open stream, but does not close it at its own end.
    CStdioFile(FILE* pOpenStream);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    FILE* m_pStream; ///< NULL while no file is open.

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL) override;

    /// Up to nMax - 1 characters of a line, with its newline when there is room for it. NULL at the
    /// end of the file.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// A line without its newline. FALSE at the end of the file.
    virtual BOOL ReadString(CString& rString);
    /// Writes the text as it is; a newline is its own matter.
    virtual void WriteString(LPCTSTR lpsz);

    CFile* Duplicate() const override;
    ULONGLONG GetPosition() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void Abort() override;
    void Flush() override;
    void Close() override;
    void Dump(CDumpContext& dc) const override;

private:
    void CheckStream(bool succeeded) const;
    FILE* OpenStream() const;
    FILE* ReleaseStream();

    bool closesStream_ = false;
};
