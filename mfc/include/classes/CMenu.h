// A menu, as a bar or as a popup.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>

class CBitmap;
class CWnd;

/// Holds a menu and owns it: the destructor destroys what is still held. Objects that FromHandle
/// and GetSubMenu make are temporary and own nothing.
class AFX_EXPORTED CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    virtual ~CMenu();
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HMENU m_hMenu; ///< NULL while nothing is held.

    operator HMENU() const;
    /// The handle; NULL also for a NULL object.
    HMENU GetSafeHmenu() const;
    BOOL operator==(const CMenu& menu) const;
    BOOL operator!=(const CMenu& menu) const;

    /// The object that owns the menu, else a temporary one that lives until the next idle time.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. Only for objects that hold none. FALSE for a NULL handle.
    BOOL Attach(HMENU hMenu);
    /// Gives the handle up without destroying the menu.
    HMENU Detach();

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    /// Resources are looked up in all modules of the program (see AfxFindResourceHandle).
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    BOOL DestroyMenu();

    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = 0);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
    BOOL SetMenuInfo(LPCMENUINFO lpcmi);
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const;
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);
    DWORD GetMenuContextHelpId() const;

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /// NULL when there is no menu at this position; often a temporary object.
    CMenu* GetSubMenu(int nPos) const;
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    LPCTSTR lpszNewItem = NULL);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    LPCTSTR lpszNewItem = NULL);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);

    /// For owner-drawn items; the bases do nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
