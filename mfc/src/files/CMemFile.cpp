#include <classes/CMemFile.h>

#include <classes/CDumpContext.h>

#include <utility>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes) : growBytes_(nGrowBytes)
{
}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : CMemFile(nGrowBytes)
{
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile()
{
    // Derived classes with memory of their own have freed it by now.
    if (ownsData_ && data_ != NULL)
        CMemFile::Free(data_);
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    ASSERT(data_ == NULL);
    if (lpBuffer == NULL && nBufferSize != 0)
        AfxThrowInvalidArgException();
    Close();
    growBytes_ = nGrowBytes;
    data_ = lpBuffer;
    capacity_ = nBufferSize;
    length_ = nGrowBytes == 0 ? nBufferSize : 0;
    ownsData_ = false;
}

BYTE* CMemFile::Detach()
{
    BYTE* const data = std::exchange(data_, nullptr);
    Close();
    return data;
}

UINT CMemFile::GetBufferPtr(UINT nCommand, UINT nCount, void** ppBufStart, void** ppBufMax)
{
    if (nCommand == bufferCheck)
        return TRUE;
    if (nCommand == bufferCommit) {
        if (nCount > capacity_ - min(position_, capacity_))
            AfxThrowInvalidArgException();
        position_ += nCount;
        length_ = max(length_, position_);
        return 0;
    }
    if ((nCommand != bufferRead && nCommand != bufferWrite) || ppBufStart == NULL ||
        ppBufMax == NULL)
        AfxThrowInvalidArgException();
    SIZE_T count = nCount;
    if (nCommand == bufferWrite) {
        if (position_ > SIZE_MAX - count)
            AfxThrowMemoryException();
        if (position_ + count > capacity_)
            GrowFile(position_ + count);
        if (position_ > length_)
            memset(data_ + length_, 0, position_ - length_);
    } else {
        count = position_ < length_ ? min(count, length_ - position_) : 0;
    }
    const SIZE_T start = min(position_, capacity_);
    *ppBufStart = data_ + start;
    *ppBufMax = data_ + start + count;
    if (nCommand == bufferRead)
        position_ += count;
    return static_cast<UINT>(count);
}

CFile* CMemFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

ULONGLONG CMemFile::GetPosition() const
{
    return position_;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    const LONGLONG from = nFrom == begin     ? 0
                          : nFrom == current ? static_cast<LONGLONG>(position_)
                          : nFrom == end     ? static_cast<LONGLONG>(length_)
                                             : -1;
    LONGLONG position = 0;
    if (from < 0 || __builtin_add_overflow(from, lOff, &position) || position < 0 ||
        static_cast<ULONGLONG>(position) > SIZE_MAX)
        AfxThrowFileException(CFileException::badSeek, -1, GetFilePath());
    position_ = static_cast<SIZE_T>(position);
    return position_;
}

ULONGLONG CMemFile::GetLength() const
{
    return length_;
}

void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    if (dwNewLen > SIZE_MAX)
        AfxThrowMemoryException();
    ExtendTo(static_cast<SIZE_T>(dwNewLen));
    length_ = static_cast<SIZE_T>(dwNewLen);
    position_ = min(position_, length_);
}

UINT CMemFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0 || position_ >= length_)
        return 0;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    const SIZE_T count = min<SIZE_T>(nCount, length_ - position_);
    Memcpy(static_cast<BYTE*>(lpBuf), data_ + position_, count);
    position_ += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    if (position_ > SIZE_MAX - nCount)
        AfxThrowMemoryException();
    ExtendTo(position_ + nCount);
    Memcpy(data_ + position_, static_cast<const BYTE*>(lpBuf), nCount);
    position_ += nCount;
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::Abort()
{
    Close();
}

void CMemFile::Flush()
{
}

void CMemFile::Close()
{
    BYTE* const data = std::exchange(data_, nullptr);
    if (ownsData_ && data != NULL)
        Free(data);
    position_ = capacity_ = length_ = 0;
    ownsData_ = true;
    SetFilePath(_T(""));
}

void CMemFile::AssertValid() const
{
    CFile::AssertValid();
    ASSERT((data_ == NULL) == (capacity_ == 0));
    ASSERT(length_ <= capacity_);
}

void CMemFile::Dump(CDumpContext& dc) const
{
    CFile::Dump(dc);
    dc << "with " << static_cast<ULONGLONG>(length_) << " bytes, position "
       << static_cast<ULONGLONG>(position_) << "\n";
}

BYTE* CMemFile::Alloc(SIZE_T nBytes)
{
    return static_cast<BYTE*>(malloc(nBytes));
}

BYTE* CMemFile::Realloc(BYTE* lpMem, SIZE_T nBytes)
{
    return static_cast<BYTE*>(realloc(lpMem, nBytes));
}

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes)
{
    return static_cast<BYTE*>(memcpy(lpMemTarget, lpMemSource, nBytes));
}

void CMemFile::Free(BYTE* lpMem)
{
    free(lpMem);
}

void CMemFile::GrowFile(SIZE_T dwNewLen)
{
    if (dwNewLen <= capacity_)
        return;
    // In whole steps, and by half at least, so that many small writes stay cheap.
    if (growBytes_ == 0 || dwNewLen > SIZE_MAX - growBytes_)
        AfxThrowMemoryException();
    SIZE_T capacity = (dwNewLen + growBytes_ - 1) / growBytes_ * growBytes_;
    if (capacity_ < SIZE_MAX / 2)
        capacity = max(capacity, capacity_ + capacity_ / 2);
    BYTE* const data = data_ == NULL ? Alloc(capacity) : Realloc(data_, capacity);
    if (data == NULL)
        AfxThrowMemoryException();
    data_ = data;
    capacity_ = capacity;
}

/// Makes the file at least that long. What it gets between its end and there is zero.
void CMemFile::ExtendTo(SIZE_T length)
{
    if (length > capacity_)
        GrowFile(length);
    if (length <= length_)
        return;
    memset(data_ + length_, 0, length - length_);
    length_ = length;
}
