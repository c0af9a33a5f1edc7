#include <classes/CStatusBarCtrl.h>

#include "controls/ControlMessages.h"

using afxint::Ask;
using afxint::AskFor;

namespace {

constexpr afxint::CommonControl kind = {STATUSCLASSNAME, ICC_BAR_CLASSES};

} // namespace

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CStatusBarCtrl::CStatusBarCtrl() = default;

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return afxint::CreateControl(*this, kind, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                              UINT nID)
{
    return afxint::CreateControlEx(*this, kind, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths)
{
    return Ask(m_hWnd, SB_SETPARTS, nParts, pWidths);
}

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const
{
    return Ask(m_hWnd, SB_GETPARTS, nParts, pParts);
}

BOOL CStatusBarCtrl::GetBorders(int* pBorders) const
{
    return Ask(m_hWnd, SB_GETBORDERS, 0, pBorders);
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const
{
    int borders[3] = {};
    if (!GetBorders(borders))
        return FALSE;
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return TRUE;
}

void CStatusBarCtrl::SetMinHeight(int nMin)
{
    Ask(m_hWnd, SB_SETMINHEIGHT, nMin);
}

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const
{
    return Ask(m_hWnd, SB_GETRECT, nPane, lpRect);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType)
{
    return Ask(m_hWnd, SB_SETTEXT, nPane | nType, lpszText);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const
{
    CString text;
    const int length = GetTextLength(nPane, pType);
    Ask(m_hWnd, SB_GETTEXT, nPane, text.GetBufferSetLength(length));
    text.ReleaseBuffer();
    return text;
}

int CStatusBarCtrl::GetText(LPCTSTR lpszText, int nPane, int* pType) const
{
    const DWORD words = Ask(m_hWnd, SB_GETTEXT, nPane, lpszText);
    if (pType != NULL)
        *pType = HIWORD(words);
    return LOWORD(words);
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const
{
    const DWORD words = Ask(m_hWnd, SB_GETTEXTLENGTH, nPane);
    if (pType != NULL)
        *pType = HIWORD(words);
    return LOWORD(words);
}

void CStatusBarCtrl::SetTipText(int nPane, LPCTSTR pszTipText)
{
    Ask(m_hWnd, SB_SETTIPTEXT, nPane, pszTipText);
}

CString CStatusBarCtrl::GetTipText(int nPane) const
{
    TCHAR text[256] = {};
    Ask(m_hWnd, SB_GETTIPTEXT, MAKEWPARAM(nPane, _countof(text)), text);
    return text;
}

BOOL CStatusBarCtrl::SetIcon(int nPane, HICON hIcon)
{
    return Ask(m_hWnd, SB_SETICON, nPane, hIcon);
}

HICON CStatusBarCtrl::GetIcon(int iPart) const
{
    return AskFor<HICON>(m_hWnd, SB_GETICON, iPart);
}

BOOL CStatusBarCtrl::SetSimple(BOOL bSimple)
{
    return Ask(m_hWnd, SB_SIMPLE, bSimple);
}

BOOL CStatusBarCtrl::IsSimple() const
{
    return Ask(m_hWnd, SB_ISSIMPLE);
}

COLORREF CStatusBarCtrl::SetBkColor(COLORREF cr)
{
    return Ask(m_hWnd, SB_SETBKCOLOR, 0, cr);
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return CWnd::OnChildNotify(message, wParam, lParam, pLResult) ||
           afxint::DrawOnRequest(*this, message, lParam);
}
