#include <afxwin.h>

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap::CBitmap()
{
}

CBitmap::~CBitmap()
{
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return Attach(::LoadBitmap(module, lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap)
{
    return Attach(::LoadBitmap(NULL, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount,
                           const void* lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateDiscardableBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
}

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(GetSafeHandle());
}

int CBitmap::GetBitmap(BITMAP* pBitMap)
{
    return GetObject(sizeof(*pBitMap), pBitMap);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits)
{
    return ::SetBitmapBits(*this, dwCount, lpBits);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return ::GetBitmapBits(*this, dwCount, lpBits);
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    CSize former(0, 0);
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &former);
    return former;
}

CSize CBitmap::GetBitmapDimension() const
{
    CSize dimension(0, 0);
    ::GetBitmapDimensionEx(*this, &dimension);
    return dimension;
}
