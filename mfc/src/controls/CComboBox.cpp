#include <classes/CComboBox.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

using afxint::Ask;

namespace {

bool ReadCueBanner(HWND control, CString& text)
{
    WCHAR wide[1024] = {};
    if (!Ask(control, CB_GETCUEBANNER, wide, _countof(wide)))
        return false;
    text = wide;
    return true;
}

} // namespace

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_COMBOBOX, NULL, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const
{
    return Ask(m_hWnd, CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return Ask(m_hWnd, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect)
{
    return Ask(m_hWnd, CB_SETCURSEL, nSelect);
}

LCID CComboBox::GetLocale() const
{
    return Ask(m_hWnd, CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID nNewLocale)
{
    return Ask(m_hWnd, CB_SETLOCALE, nNewLocale);
}

int CComboBox::GetTopIndex() const
{
    return Ask(m_hWnd, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int nIndex)
{
    return Ask(m_hWnd, CB_SETTOPINDEX, nIndex);
}

int CComboBox::InitStorage(int nItems, UINT nBytes)
{
    return Ask(m_hWnd, CB_INITSTORAGE, nItems, nBytes);
}

void CComboBox::SetHorizontalExtent(UINT nExtent)
{
    Ask(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return Ask(m_hWnd, CB_GETHORIZONTALEXTENT);
}

int CComboBox::SetDroppedWidth(UINT nWidth)
{
    return Ask(m_hWnd, CB_SETDROPPEDWIDTH, nWidth);
}

int CComboBox::GetDroppedWidth() const
{
    return Ask(m_hWnd, CB_GETDROPPEDWIDTH);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
{
    pcbi->cbSize = sizeof(*pcbi);
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

DWORD CComboBox::GetEditSel() const
{
    return Ask(m_hWnd, CB_GETEDITSEL);
}

BOOL CComboBox::LimitText(int nMaxChars)
{
    return Ask(m_hWnd, CB_LIMITTEXT, nMaxChars);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    return Ask(m_hWnd, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const
{
    return Ask(m_hWnd, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return Ask(m_hWnd, CB_SETITEMDATA, nIndex, dwItemData);
}

void* CComboBox::GetItemDataPtr(int nIndex) const
{
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const
{
    return Ask(m_hWnd, CB_GETLBTEXT, nIndex, lpszText);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR) {
        rString.Empty();
        return;
    }
    GetLBText(nIndex, rString.GetBufferSetLength(length));
    rString.ReleaseBuffer();
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    return Ask(m_hWnd, CB_GETLBTEXTLEN, nIndex);
}

int CComboBox::GetItemHeight(int nIndex) const
{
    return Ask(m_hWnd, CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return Ask(m_hWnd, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return Ask(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CComboBox::SetExtendedUI(BOOL bExtended)
{
    return Ask(m_hWnd, CB_SETEXTENDEDUI, bExtended);
}

BOOL CComboBox::GetExtendedUI() const
{
    return Ask(m_hWnd, CB_GETEXTENDEDUI);
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const
{
    Ask(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect);
}

BOOL CComboBox::GetDroppedState() const
{
    return Ask(m_hWnd, CB_GETDROPPEDSTATE);
}

void CComboBox::ShowDropDown(BOOL bShowIt)
{
    Ask(m_hWnd, CB_SHOWDROPDOWN, bShowIt);
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    return Ask(m_hWnd, CB_ADDSTRING, 0, lpszString);
}

int CComboBox::DeleteString(UINT nIndex)
{
    return Ask(m_hWnd, CB_DELETESTRING, nIndex);
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    return Ask(m_hWnd, CB_INSERTSTRING, nIndex, lpszString);
}

void CComboBox::ResetContent()
{
    Ask(m_hWnd, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return Ask(m_hWnd, CB_DIR, attr, lpszWildCard);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return Ask(m_hWnd, CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return Ask(m_hWnd, CB_SELECTSTRING, nStartAfter, lpszString);
}

void CComboBox::Clear()
{
    Ask(m_hWnd, WM_CLEAR);
}

void CComboBox::Copy()
{
    Ask(m_hWnd, WM_COPY);
}

void CComboBox::Cut()
{
    Ask(m_hWnd, WM_CUT);
}

void CComboBox::Paste()
{
    Ask(m_hWnd, WM_PASTE);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

BOOL CComboBox::SetMinVisibleItems(int iMinVisible)
{
    return Ask(m_hWnd, CB_SETMINVISIBLE, iMinVisible);
}

int CComboBox::GetMinVisible() const
{
    return Ask(m_hWnd, CB_GETMINVISIBLE);
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText)
{
    const CStringW text(lpszText); // Wide in every program.
    return Ask(m_hWnd, CB_SETCUEBANNER, 0, static_cast<LPCWSTR>(text));
}

CString CComboBox::GetCueBanner() const
{
    CString text;
    ReadCueBanner(m_hWnd, text);
    return text;
}

BOOL CComboBox::GetCueBanner(LPTSTR lpszText, int cchText) const
{
    CString text;
    if (!ReadCueBanner(m_hWnd, text))
        return FALSE;
    lstrcpyn(lpszText, text, cchText);
    return TRUE;
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (CWnd::OnChildNotify(message, wParam, lParam, pLResult))
        return TRUE;

    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM: {
        const int order = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        if (pLResult != NULL)
            *pLResult = order;
        return TRUE;
    }
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}
