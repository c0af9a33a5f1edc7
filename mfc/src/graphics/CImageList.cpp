#include <afxcmn.h>

#include "graphics/DrawingHandles.h"
#include "objects/OwnedHandle.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

using afxint::CurrentThread;
using afxint::HandleOf;

CImageList* afxint::ImageListTraits::Wrap(HIMAGELIST handle)
{
    CImageList* list = new CImageList;
    list->m_hImageList = handle;
    return list;
}

void afxint::ImageListTraits::Unwrap(CImageList* list)
{
    list->m_hImageList = NULL;
    delete list;
}

CImageList::CImageList() : m_hImageList(NULL)
{
}

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList::operator HIMAGELIST() const
{
    return GetSafeHandle();
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    return this == NULL ? NULL : m_hImageList;
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    CImageList* list = CurrentThread().imageLists.FindOrWrap(hImageList);
    // A temporary object may have been emptied, and its handle be in use again.
    if (list != NULL && list->m_hImageList == NULL)
        list->m_hImageList = hImageList;
    return list;
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return CurrentThread().imageLists.FindPermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    CurrentThread().imageLists.DropTemporaries(afxint::DepthOfIdleTime());
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    return afxint::TakeHandle(CurrentThread().imageLists, hImageList, this, m_hImageList);
}

HIMAGELIST CImageList::Detach()
{
    return afxint::GiveHandle(CurrentThread().imageLists, this, m_hImageList);
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadImage(module, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2,
                        int dx, int dy)
{
    return Attach(::ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList)
{
    return Attach(::ImageList_Duplicate(pImageList->GetSafeHandle()));
}

BOOL CImageList::DeleteImageList()
{
    if (m_hImageList == NULL)
        return FALSE;
    return ::ImageList_Destroy(Detach());
}

int CImageList::GetImageCount() const
{
    return ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT uNewCount)
{
    return ::ImageList_SetImageCount(m_hImageList, uNewCount);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Add(m_hImageList, HandleOf(pbmImage), HandleOf(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return ::ImageList_AddMasked(m_hImageList, HandleOf(pbmImage), crMask);
}

int CImageList::Add(HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}

BOOL CImageList::Remove(int nImage)
{
    return ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Replace(m_hImageList, nImage, HandleOf(pbmImage), HandleOf(pbmMask));
}

int CImageList::Replace(int nImage, HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, pSrc->GetSafeHandle(), iSrc, uFlags);
}

HICON CImageList::ExtractIcon(int nImage)
{
    return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
{
    return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

COLORREF CImageList::SetBkColor(COLORREF cr)
{
    return ::ImageList_SetBkColor(m_hImageList, cr);
}

COLORREF CImageList::GetBkColor() const
{
    return ::ImageList_GetBkColor(m_hImageList);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
{
    return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                        UINT nStyle)
{
    return ::ImageList_DrawEx(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, sz.cx, sz.cy,
                              clrBk, clrFg, nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp)
{
    pimldp->cbSize = sizeof(*pimldp);
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle,
                              DWORD dwRop, COLORREF rgbBack, COLORREF rgbFore, DWORD fState,
                              DWORD Frame, COLORREF crEffect)
{
    IMAGELISTDRAWPARAMS drawing{};
    drawing.i = nImage;
    drawing.hdcDst = pDC->GetSafeHdc();
    drawing.x = pt.x;
    drawing.y = pt.y;
    drawing.cx = sz.cx;
    drawing.cy = sz.cy;
    drawing.xBitmap = ptOrigin.x;
    drawing.yBitmap = ptOrigin.y;
    drawing.rgbBk = rgbBack;
    drawing.rgbFg = rgbFore;
    drawing.fStyle = fStyle;
    drawing.dwRop = dwRop;
    drawing.fState = fState;
    drawing.Frame = Frame;
    drawing.crEffect = crEffect;
    return DrawIndirect(&drawing);
}

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}

void PASCAL CImageList::EndDrag()
{
    ::ImageList_EndDrag();
}

BOOL PASCAL CImageList::DragMove(CPoint pt)
{
    return ::ImageList_DragMove(pt.x, pt.y);
}

BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}

BOOL PASCAL CImageList::DragShowNolock(BOOL bShow)
{
    return ::ImageList_DragShowNolock(bShow);
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot)
{
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point)
{
    return ::ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock)
{
    return ::ImageList_DragLeave(pWndLock->GetSafeHwnd());
}
