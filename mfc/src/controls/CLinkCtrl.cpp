#include <classes/CLinkCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

constexpr DWORD classes = ICC_LINK_CLASS;

LITEM ItemOf(int link, UINT mask)
{
    LITEM item = {};
    item.iLink = link;
    item.mask = LIF_ITEMINDEX | mask;
    return item;
}

} // namespace

IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)

CLinkCtrl::CLinkCtrl() = default;

BOOL CLinkCtrl::Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                       UINT nID)
{
    return CreateEx(lpszLinkMarkup, 0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return Create(_T(""), dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, const RECT& rect,
                         CWnd* pParentWnd, UINT nID)
{
    afxint::NeedCommonControls(classes);
    return CWnd::CreateEx(dwExStyle, _T("SysLink"), lpszLinkMarkup, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID)
{
    return CreateEx(_T(""), dwExStyle, dwStyle, rect, pParentWnd, nID);
}

int CLinkCtrl::GetIdealHeight() const
{
    return Ask(m_hWnd, LM_GETIDEALHEIGHT);
}

int CLinkCtrl::GetIdealSize(int cxMaxWidth, SIZE* pSize) const
{
    return Ask(m_hWnd, LM_GETIDEALHEIGHT, cxMaxWidth, pSize);
}

BOOL CLinkCtrl::GetItem(PLITEM pItem) const
{
    return Ask(m_hWnd, LM_GETITEM, 0, pItem);
}

BOOL CLinkCtrl::SetItem(PLITEM pItem)
{
    return Ask(m_hWnd, LM_SETITEM, 0, pItem);
}

BOOL CLinkCtrl::GetItemID(int iLink, CString& strID) const
{
    WCHAR id[MAX_LINKID_TEXT] = {};
    if (!GetItemID(iLink, id, _countof(id)))
        return FALSE;
    strID = id;
    return TRUE;
}

BOOL CLinkCtrl::GetItemID(int iLink, LPWSTR szID, UINT cchID) const
{
    LITEM item = ItemOf(iLink, LIF_ITEMID);
    if (!GetItem(&item))
        return FALSE;
    ::lstrcpynW(szID, item.szID, static_cast<int>(cchID));
    return TRUE;
}

BOOL CLinkCtrl::SetItemID(int iLink, LPCWSTR szID)
{
    LITEM item = ItemOf(iLink, LIF_ITEMID);
    ::lstrcpynW(item.szID, szID, _countof(item.szID));
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemState(int iLink, UINT* pnState, UINT stateMask) const
{
    LITEM item = ItemOf(iLink, LIF_STATE);
    item.stateMask = stateMask;
    if (!GetItem(&item))
        return FALSE;
    *pnState = item.state;
    return TRUE;
}

BOOL CLinkCtrl::SetItemState(int iLink, UINT state, UINT stateMask)
{
    LITEM item = ItemOf(iLink, LIF_STATE);
    item.state = state;
    item.stateMask = stateMask;
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, CString& strUrl) const
{
    LITEM item = ItemOf(iLink, LIF_URL);
    if (!GetItem(&item))
        return FALSE;
    strUrl = item.szUrl;
    return TRUE;
}

BOOL CLinkCtrl::GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const
{
    LITEM item = ItemOf(iLink, LIF_URL);
    if (!GetItem(&item))
        return FALSE;
    ::lstrcpynW(szUrl, item.szUrl, static_cast<int>(cchUrl));
    return TRUE;
}

BOOL CLinkCtrl::SetItemUrl(int iLink, LPCWSTR szUrl)
{
    LITEM item = ItemOf(iLink, LIF_URL);
    ::lstrcpynW(item.szUrl, szUrl, _countof(item.szUrl));
    return SetItem(&item);
}

BOOL CLinkCtrl::HitTest(PLHITTESTINFO phti) const
{
    return Ask(m_hWnd, LM_HITTEST, 0, phti);
}
