#include <classes/CDialogEx.h>

#include <classes/CBitmap.h>
#include <classes/CDC.h>
#include <classes/Modules.h>

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

namespace {

/// Where the first copy of an image goes; further copies stand to the right and below.
CPoint PlaceImage(CDialogEx::BackgroundLocation location, CSize area, CSize image)
{
    CPoint place(0, 0);
    if (location == CDialogEx::BACKGR_TOPRIGHT || location == CDialogEx::BACKGR_BOTTOMRIGHT)
        place.x = area.cx - image.cx;
    if (location == CDialogEx::BACKGR_BOTTOMLEFT || location == CDialogEx::BACKGR_BOTTOMRIGHT)
        place.y = area.cy - image.cy;
    return place;
}

} // namespace

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd* pParent) : CDialog(nIDTemplate, pParent)
{
}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : CDialog(lpszTemplateName, pParentWnd)
{
}

CDialogEx::~CDialogEx()
{
    DropImage();
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint)
{
    background_.DeleteObject();
    if (color != static_cast<COLORREF>(-1))
        background_.CreateSolidBrush(color);
    if (bRepaint && GetSafeHwnd() != NULL)
        Invalidate();
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy,
                                   BOOL bRepaint)
{
    DropImage();
    image_ = hBitmap;
    location_ = location;
    ownsImage_ = bAutoDestroy;
    if (bRepaint && GetSafeHwnd() != NULL)
        Invalidate();
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint)
{
    const LPCTSTR name = MAKEINTRESOURCE(uiBmpResId);
    const HBITMAP bitmap = ::LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name);
    if (bitmap == NULL)
        return FALSE;
    SetBackgroundImage(bitmap, location, TRUE, bRepaint);
    return TRUE;
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC)
{
    if (background_.GetSafeHandle() == NULL && image_ == NULL)
        return CDialog::OnEraseBkgnd(pDC);

    CRect area;
    GetClientRect(area);
    if (background_.GetSafeHandle() != NULL)
        pDC->FillRect(area, &background_);
    else
        CDialog::OnEraseBkgnd(pDC);

    BITMAP info = {};
    CDC memory;
    if (::GetObject(image_, sizeof(info), &info) == 0 || !memory.CreateCompatibleDC(pDC))
        return TRUE;
    const CSize size(info.bmWidth, info.bmHeight);
    const CPoint place = PlaceImage(location_, area.Size(), size);
    const CSize span = location_ == BACKGR_TILE ? area.Size() : CSize(1, 1);
    const HGDIOBJ former = ::SelectObject(memory.GetSafeHdc(), image_);
    for (int x = 0; x < span.cx; x += size.cx) {
        for (int y = 0; y < span.cy; y += size.cy)
            pDC->BitBlt(place.x + x, place.y + y, size.cx, size.cy, &memory, 0, 0, SRCCOPY);
    }
    ::SelectObject(memory.GetSafeHdc(), former);
    return TRUE;
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const bool ownBackground = background_.GetSafeHandle() != NULL || image_ != NULL;
    if (!ownBackground || nCtlColor != CTLCOLOR_STATIC)
        return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);

    // A reflected request may be answered by the control itself.
    LRESULT answer = 0;
    if (pWnd->SendChildNotifyLastMsg(&answer))
        return reinterpret_cast<HBRUSH>(answer);
    pDC->SetBkMode(TRANSPARENT);
    if (image_ != NULL)
        return static_cast<HBRUSH>(::GetStockObject(HOLLOW_BRUSH));
    return static_cast<HBRUSH>(background_.GetSafeHandle());
}

void CDialogEx::DropImage()
{
    if (ownsImage_ && image_ != NULL)
        ::DeleteObject(image_);
    image_ = NULL;
}
