// A text with links in it.
#pragma once

#include <classes/CString.h>
#include <classes/CWnd.h>

/// The common control "SysLink", of version 6 of the common controls; without them it cannot be
/// created. The text marks links as "<a>" elements; links count from zero. A click sends NM_CLICK
/// to the parent.
class AFX_EXPORTED CLinkCtrl : public CWnd
{
    DECLARE_DYNAMIC(CLinkCtrl)

public:
    CLinkCtrl();
    virtual BOOL Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, const RECT& rect,
                          CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// Of the text, at the present width.
    int GetIdealHeight() const;
    /// The same at a width of at most so much; a newer system fills the size.
    int GetIdealSize(int cxMaxWidth, SIZE* pSize) const;
    /// The mask and the link in the structure say what.
    BOOL GetItem(PLITEM pItem) const;
    BOOL SetItem(PLITEM pItem);
    /// What the link has as its attribute "id".
    BOOL GetItemID(int iLink, CString& strID) const;
    BOOL GetItemID(int iLink, LPWSTR szID, UINT cchID) const;
    BOOL SetItemID(int iLink, LPCWSTR szID);
    /// LIS_ values, those in the mask.
    BOOL GetItemState(int iLink, UINT* pnState,
                      UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED) const;
    BOOL SetItemState(int iLink, UINT state,
                      UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED);
    /// What the link has as its attribute "href".
    BOOL GetItemUrl(int iLink, CString& strUrl) const;
    BOOL GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const;
    BOOL SetItemUrl(int iLink, LPCWSTR szUrl);
    BOOL HitTest(PLHITTESTINFO phti) const;
};
