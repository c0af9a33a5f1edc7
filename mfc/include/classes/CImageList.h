// A list of pictures of one size.
#pragma once

#include <atltypes.h>
#include <classes/CObject.h>

class CBitmap;
class CDC;
class CWnd;

/// Holds an image list and owns it: the destructor destroys what is still held. Objects that
/// FromHandle makes for foreign lists are temporary and own nothing.
class AFX_EXPORTED CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    virtual ~CImageList();

    HIMAGELIST m_hImageList; ///< NULL while nothing is held.

    operator HIMAGELIST() const;
    /// The handle; NULL also for a NULL object.
    HIMAGELIST GetSafeHandle() const;

    /// The object that owns the list, else a temporary one that lives until the next idle time.
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    /// NULL when no object owns the list.
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. Only for objects that hold none. FALSE for a NULL handle.
    BOOL Attach(HIMAGELIST hImageList);
    /// Gives the handle up without destroying the list.
    HIMAGELIST Detach();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// Bitmap resources are looked up in all modules of the program (see AfxFindResourceHandle).
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx,
                int dy);
    BOOL Create(CImageList* pImageList);
    BOOL DeleteImageList();

    int GetImageCount() const;
    BOOL SetImageCount(UINT uNewCount);
    /// Each Add returns the index of the first new image, -1 on failure.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);
    /// The caller owns the icon.
    HICON ExtractIcon(int nImage);
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    COLORREF SetBkColor(COLORREF cr);
    COLORREF GetBkColor() const;
    BOOL SetOverlayImage(int nImage, int nOverlay);

    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin,
                      UINT fStyle = ILD_NORMAL, DWORD dwRop = SRCCOPY,
                      COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void PASCAL EndDrag();
    static BOOL PASCAL DragMove(CPoint pt);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    static BOOL PASCAL DragShowNolock(BOOL bShow);
    /// A temporary object; NULL when nothing is dragged.
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);
    /// A NULL window stands for the whole screen.
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
};
