// A bitmap in the format of some device: a drawing object that a memory context draws on.
#pragma once

#include <atltypes.h>
#include <classes/CGdiObject.h>

class CDC;

class AFX_EXPORTED CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();
    virtual ~CBitmap();

    /// Resources are looked up in all modules of the program (see AfxFindResourceHandle).
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    BOOL LoadOEMBitmap(UINT nIDBitmap);
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = NULL,
                          int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);

    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const;
    /// Returns 0 on failure.
    int GetBitmap(BITMAP* pBitMap);

    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    /// In tenths of a millimetre; returns the former dimension.
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
};
