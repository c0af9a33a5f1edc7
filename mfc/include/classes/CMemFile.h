// A file in memory.
//
// Duplicate, LockRange and UnlockRange throw CNotSupportedException.
#pragma once

#include <classes/CFile.h>

class AFX_EXPORTED CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

public:
    /// Memory grows in steps of nGrowBytes; 0 means that it does not grow.
    CMemFile(UINT nGrowBytes = 1024);
    /// As Attach.
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Uses the caller's block as the file. It is the file's content when nGrowBytes is 0; else the
    /// file begins empty, and the block, which then has to be one of malloc, may move as it grows.
    /// The block stays the caller's, where it has moved to, too: Detach tells.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Closes the file and gives its block to the caller, who frees it with free.
    BYTE* Detach();

    /// The memory itself: for reading, up to nCount bytes from the position, which moves on; for
    /// writing, room for nCount bytes, of which bufferCommit tells how many came. The result is the
    /// number of bytes; that of bufferCheck is whether there is memory to be had, TRUE.
    virtual UINT GetBufferPtr(UINT nCommand, UINT nCount = 0, void** ppBufStart = NULL,
                              void** ppBufMax = NULL);

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
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    /// Where the memory comes from; NULL when there is none.
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    /// Makes room for a file of that length. Throws CMemoryException when there is none.
    virtual void GrowFile(SIZE_T dwNewLen);

private:
    friend class CSharedFile;
    void ExtendTo(SIZE_T length);

    UINT growBytes_;
    SIZE_T position_ = 0;
    SIZE_T capacity_ = 0;
    SIZE_T length_ = 0;
    BYTE* data_ = NULL;
    bool ownsData_ = true;
};
