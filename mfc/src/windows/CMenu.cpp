#include <afxwin.h>

#include "objects/OwnedHandle.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

using afxint::CurrentThread;

namespace {

/// What the system takes as the text of an item that shows a bitmap.
LPCTSTR AsItemText(const CBitmap* bitmap)
{
    return static_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

} // namespace

CMenu* afxint::MenuTraits::Wrap(HMENU handle)
{
    CMenu* menu = new CMenu;
    menu->m_hMenu = handle;
    return menu;
}

void afxint::MenuTraits::Unwrap(CMenu* menu)
{
    menu->m_hMenu = NULL;
    delete menu;
}

CMenu::CMenu() : m_hMenu(NULL)
{
}

CMenu::~CMenu()
{
    DestroyMenu();
}

void CMenu::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_hMenu == NULL || ::IsMenu(m_hMenu));
}

void CMenu::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with menu " << m_hMenu << "\n";
}

CMenu::operator HMENU() const
{
    return GetSafeHmenu();
}

HMENU CMenu::GetSafeHmenu() const
{
    return this == NULL ? NULL : m_hMenu;
}

BOOL CMenu::operator==(const CMenu& menu) const
{
    return GetSafeHmenu() == menu.GetSafeHmenu();
}

BOOL CMenu::operator!=(const CMenu& menu) const
{
    return GetSafeHmenu() != menu.GetSafeHmenu();
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    CMenu* menu = CurrentThread().menus.FindOrWrap(hMenu);
    // A temporary object may have been emptied by DestroyMenu, and its handle be in use again.
    if (menu != NULL && menu->m_hMenu == NULL)
        menu->m_hMenu = hMenu;
    return menu;
}

void PASCAL CMenu::DeleteTempMap()
{
    CurrentThread().menus.DropTemporaries(afxint::DepthOfIdleTime());
}

BOOL CMenu::Attach(HMENU hMenu)
{
    return afxint::TakeHandle(CurrentThread().menus, hMenu, this, m_hMenu);
}

HMENU CMenu::Detach()
{
    return afxint::GiveHandle(CurrentThread().menus, this, m_hMenu);
}

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_MENU);
    return Attach(::LoadMenu(module, lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate)
{
    return Attach(::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    if (m_hMenu == NULL)
        return FALSE;
    return ::DestroyMenu(Detach());
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}

BOOL CMenu::SetMenuInfo(LPCMENUINFO lpcmi)
{
    return ::SetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::GetMenuInfo(LPMENUINFO lpcmi) const
{
    return ::GetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    MENUINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIM_HELPID;
    info.dwContextHelpID = dwContextHelpId;
    return SetMenuInfo(&info);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    MENUINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIM_HELPID;
    return GetMenuInfo(&info) ? info.dwContextHelpID : 0;
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable);
}

UINT CMenu::GetMenuItemCount() const
{
    return ::GetMenuItemCount(m_hMenu);
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    const int length = ::GetMenuString(m_hMenu, nIDItem, NULL, 0, nFlags);
    if (length <= 0) {
        rString.Empty();
        return 0;
    }
    const int copied = GetMenuString(nIDItem, rString.GetBuffer(length), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags,
                                static_cast<HBITMAP>(pBmpUnchecked->GetSafeHandle()),
                                static_cast<HBITMAP>(pBmpChecked->GetSafeHandle()));
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, fByPos, gmdiFlags);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/)
{
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT /*lpMeasureItemStruct*/)
{
}
