#include <classes/CSharedFile.h>

#include <utility>

IMPLEMENT_DYNAMIC(CSharedFile, CMemFile)

CSharedFile::CSharedFile(UINT nAllocFlags, UINT nGrowBytes)
    : CMemFile(nGrowBytes), allocFlags_(nAllocFlags)
{
}

CSharedFile::~CSharedFile()
{
    Close();
}

HGLOBAL CSharedFile::Detach()
{
    const HGLOBAL memory = std::exchange(memory_, nullptr);
    if (memory != NULL)
        ::GlobalUnlock(memory);
    CMemFile::Detach();
    return memory;
}

void CSharedFile::SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow)
{
    BYTE* const data =
        hGlobalMemory == NULL ? NULL : static_cast<BYTE*>(::GlobalLock(hGlobalMemory));
    if (data == NULL)
        AfxThrowInvalidArgException();
    Close();
    memory_ = hGlobalMemory;
    data_ = data;
    capacity_ = length_ = ::GlobalSize(hGlobalMemory);
    allowsGrowth_ = bAllowGrow != FALSE;
}

BYTE* CSharedFile::Alloc(SIZE_T nBytes)
{
    ASSERT(memory_ == NULL);
    memory_ = ::GlobalAlloc(allocFlags_, nBytes);
    return memory_ == NULL ? NULL : static_cast<BYTE*>(::GlobalLock(memory_));
}

BYTE* CSharedFile::Realloc(BYTE*, SIZE_T nBytes)
{
    if (!allowsGrowth_ || memory_ == NULL)
        return NULL;
    ::GlobalUnlock(memory_);
    const HGLOBAL moved = ::GlobalReAlloc(memory_, nBytes, allocFlags_);
    if (moved == NULL) {
        ::GlobalLock(memory_); // As it was.
        return NULL;
    }
    memory_ = moved;
    return static_cast<BYTE*>(::GlobalLock(moved));
}

void CSharedFile::Free(BYTE*)
{
    const HGLOBAL memory = std::exchange(memory_, nullptr);
    if (memory == NULL)
        return;
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
}
