#include <classes/CListBox.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_LISTBOX, NULL, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const
{
    return Ask(m_hWnd, LB_GETCOUNT);
}

int CListBox::GetHorizontalExtent() const
{
    return Ask(m_hWnd, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int cxExtent)
{
    Ask(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent);
}

int CListBox::GetTopIndex() const
{
    return Ask(m_hWnd, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int nIndex)
{
    return Ask(m_hWnd, LB_SETTOPINDEX, nIndex);
}

LCID CListBox::GetLocale() const
{
    return Ask(m_hWnd, LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID nNewLocale)
{
    return Ask(m_hWnd, LB_SETLOCALE, nNewLocale);
}

int CListBox::InitStorage(int nItems, UINT nBytes)
{
    return Ask(m_hWnd, LB_INITSTORAGE, nItems, nBytes);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const LRESULT words = Ask(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(words);
    return LOWORD(words);
}

DWORD CListBox::GetListBoxInfo() const
{
    return Ask(m_hWnd, LB_GETLISTBOXINFO);
}

int CListBox::GetCurSel() const
{
    return Ask(m_hWnd, LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect)
{
    return Ask(m_hWnd, LB_SETCURSEL, nSelect);
}

int CListBox::GetSel(int nIndex) const
{
    return Ask(m_hWnd, LB_GETSEL, nIndex);
}

int CListBox::SetSel(int nIndex, BOOL bSelect)
{
    return Ask(m_hWnd, LB_SETSEL, bSelect, nIndex);
}

int CListBox::GetSelCount() const
{
    return Ask(m_hWnd, LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const
{
    return Ask(m_hWnd, LB_GETSELITEMS, nMaxItems, rgIndex);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    if (nFirstItem == nLastItem)
        return SetSel(nFirstItem, bSelect);
    // The message has no word for deselecting: there the last item comes first.
    return bSelect ? Ask(m_hWnd, LB_SELITEMRANGEEX, nFirstItem, nLastItem)
                   : Ask(m_hWnd, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

void CListBox::SetAnchorIndex(int nIndex)
{
    Ask(m_hWnd, LB_SETANCHORINDEX, nIndex);
}

int CListBox::GetAnchorIndex() const
{
    return Ask(m_hWnd, LB_GETANCHORINDEX);
}

int CListBox::GetCaretIndex() const
{
    return Ask(m_hWnd, LB_GETCARETINDEX);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll)
{
    // The message takes TRUE for "a partly visible item will do", the reverse of this parameter.
    return Ask(m_hWnd, LB_SETCARETINDEX, nIndex, !bScroll);
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    return Ask(m_hWnd, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return Ask(m_hWnd, LB_SETITEMDATA, nIndex, dwItemData);
}

void* CListBox::GetItemDataPtr(int nIndex) const
{
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CListBox::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return Ask(m_hWnd, LB_GETITEMRECT, nIndex, lpRect);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask(m_hWnd, LB_GETTEXT, nIndex, lpszBuffer);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    const int length = GetTextLen(nIndex);
    if (length == LB_ERR) {
        rString.Empty();
        return;
    }
    GetText(nIndex, rString.GetBufferSetLength(length));
    rString.ReleaseBuffer();
}

int CListBox::GetTextLen(int nIndex) const
{
    return Ask(m_hWnd, LB_GETTEXTLEN, nIndex);
}

void CListBox::SetColumnWidth(int cxWidth)
{
    Ask(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth);
}

void CListBox::SetTabStops()
{
    Ask(m_hWnd, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& cxEachStop)
{
    return Ask(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return Ask(m_hWnd, LB_SETTABSTOPS, nTabStops, rgTabStops);
}

int CListBox::GetItemHeight(int nIndex) const
{
    return Ask(m_hWnd, LB_GETITEMHEIGHT, nIndex);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return Ask(m_hWnd, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    return Ask(m_hWnd, LB_ADDSTRING, 0, lpszItem);
}

int CListBox::DeleteString(UINT nIndex)
{
    return Ask(m_hWnd, LB_DELETESTRING, nIndex);
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    return Ask(m_hWnd, LB_INSERTSTRING, nIndex, lpszItem);
}

void CListBox::ResetContent()
{
    Ask(m_hWnd, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return Ask(m_hWnd, LB_DIR, attr, lpszWildCard);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    return Ask(m_hWnd, LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return Ask(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    return Ask(m_hWnd, LB_SELECTSTRING, nStartAfter, lpszItem);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

int CListBox::VKeyToItem(UINT, UINT)
{
    return -1;
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;

    LRESULT unused = 0;
    LRESULT& result = pLResult == NULL ? unused : *pLResult;
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    case WM_VKEYTOITEM:
        result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return FALSE;
    }
    return TRUE;
}
