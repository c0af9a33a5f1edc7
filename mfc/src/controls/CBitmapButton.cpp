#include <classes/CBitmapButton.h>

#include <classes/CDC.h>

namespace {

/// Loads a bitmap in the place of the former one; without a name the bitmap stays empty.
BOOL Reload(CBitmap& bitmap, LPCTSTR name)
{
    bitmap.DeleteObject();
    return name == NULL || bitmap.LoadBitmap(name);
}

CSize SizeOf(CBitmap& bitmap)
{
    BITMAP info = {};
    bitmap.GetBitmap(&info);
    return CSize(info.bmWidth, info.bmHeight);
}

} // namespace

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton() = default;

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled)
{
    const BOOL haveNormal = Reload(normal_, lpszBitmapResource);
    const BOOL havePressed = Reload(pressed_, lpszBitmapResourceSel);
    const BOOL haveFocused = Reload(focused_, lpszBitmapResourceFocus);
    const BOOL haveDisabled = Reload(disabled_, lpszBitmapResourceDisabled);
    return haveNormal && havePressed && haveFocused && haveDisabled;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled)
{
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus),
                       MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent)
{
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    CString caption;
    GetWindowText(caption);
    if (!LoadBitmaps(caption + _T("U")))
        return FALSE;
    // The other three are optional.
    Reload(pressed_, caption + _T("D"));
    Reload(focused_, caption + _T("F"));
    Reload(disabled_, caption + _T("X"));
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent()
{
    const CSize size = SizeOf(normal_);
    SetWindowPos(NULL, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

CBitmap& CBitmapButton::BitmapOfState(UINT state)
{
    if ((state & ODS_SELECTED) && pressed_.GetSafeHandle() != NULL)
        return pressed_;
    if ((state & ODS_FOCUS) && focused_.GetSafeHandle() != NULL)
        return focused_;
    if ((state & ODS_DISABLED) && disabled_.GetSafeHandle() != NULL)
        return disabled_;
    return normal_;
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CBitmap& bitmap = BitmapOfState(lpDrawItemStruct->itemState);
    CDC memory;
    CDC* screen = CDC::FromHandle(lpDrawItemStruct->hDC);
    if (bitmap.GetSafeHandle() == NULL || !memory.CreateCompatibleDC(screen))
        return;

    CBitmap* former = memory.SelectObject(&bitmap);
    const RECT& area = lpDrawItemStruct->rcItem;
    const CSize size = SizeOf(bitmap);
    screen->BitBlt(area.left, area.top, size.cx, size.cy, &memory, 0, 0, SRCCOPY);
    memory.SelectObject(former);
}
