// A file in memory that other programs can be given, such as on the clipboard.
#pragma once

#include <classes/CMemFile.h>

class AFX_EXPORTED CSharedFile : public CMemFile
{
    DECLARE_DYNAMIC(CSharedFile)

public:
    /// The flags are those of GlobalAlloc.
    CSharedFile(UINT nAllocFlags = GMEM_DDESHARE | GMEM_MOVEABLE, UINT nGrowBytes = 4096);
    ~CSharedFile() override;

    /// Closes the file and gives its memory to the caller, unlocked.
    HGLOBAL Detach();
    /// Uses that memory as the file, whose content it is, and owns it.
    void SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow = TRUE);

protected:
    BYTE* Alloc(SIZE_T nBytes) override;
    BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) override;
    void Free(BYTE* lpMem) override;

private:
    HGLOBAL memory_ = NULL;
    UINT allocFlags_;
    bool allowsGrowth_ = true;
};
