#include <classes/CEdit.h>

#include "controls/ControlMessages.h"
#include "controls/LaterMessages.h"

using afxint::Ask;
using afxint::AskFor;

namespace {

/// A position out of one word of a selection; all bits set mean -1.
int PositionOfWord(WORD word)
{
    return word == 0xffff ? -1 : word;
}

} // namespace

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_EDIT, NULL, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return Ask(m_hWnd, EM_CANUNDO);
}

int CEdit::GetLineCount() const
{
    return Ask(m_hWnd, EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const
{
    return Ask(m_hWnd, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified)
{
    Ask(m_hWnd, EM_SETMODIFY, bModified);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return Ask(m_hWnd, EM_SETREADONLY, bReadOnly);
}

TCHAR CEdit::GetPasswordChar() const
{
    return static_cast<TCHAR>(Ask(m_hWnd, EM_GETPASSWORDCHAR));
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    Ask(m_hWnd, EM_SETPASSWORDCHAR, static_cast<std::make_unsigned_t<TCHAR>>(ch));
}

void CEdit::GetRect(LPRECT lpRect) const
{
    Ask(m_hWnd, EM_GETRECT, 0, lpRect);
}

void CEdit::SetRect(LPCRECT lpRect)
{
    Ask(m_hWnd, EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    Ask(m_hWnd, EM_SETRECTNP, 0, lpRect);
}

DWORD CEdit::GetSel() const
{
    return Ask(m_hWnd, EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    Ask(m_hWnd, EM_GETSEL, &nStartChar, &nEndChar);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(PositionOfWord(LOWORD(dwSelection)), PositionOfWord(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    Ask(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        Ask(m_hWnd, EM_SCROLLCARET);
}

HLOCAL CEdit::GetHandle() const
{
    return AskFor<HLOCAL>(m_hWnd, EM_GETHANDLE);
}

void CEdit::SetHandle(HLOCAL hBuffer)
{
    Ask(m_hWnd, EM_SETHANDLE, hBuffer);
}

DWORD CEdit::GetMargins() const
{
    return Ask(m_hWnd, EM_GETMARGINS);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    Ask(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

UINT CEdit::GetLimitText() const
{
    return Ask(m_hWnd, EM_GETLIMITTEXT);
}

void CEdit::SetLimitText(UINT nMax)
{
    Ask(m_hWnd, EM_SETLIMITTEXT, nMax);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    const LRESULT words = Ask(m_hWnd, EM_POSFROMCHAR, nChar);
    return CPoint((short)LOWORD(words), (short)HIWORD(words));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return Ask(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    afxint::PutRoom(lpszBuffer, nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

int CEdit::GetFirstVisibleLine() const
{
    return Ask(m_hWnd, EM_GETFIRSTVISIBLELINE);
}

int CEdit::LineFromChar(int nIndex) const
{
    return Ask(m_hWnd, EM_LINEFROMCHAR, nIndex);
}

int CEdit::LineIndex(int nLine) const
{
    return Ask(m_hWnd, EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const
{
    return Ask(m_hWnd, EM_LINELENGTH, nLine);
}

void CEdit::LineScroll(int nLines, int nChars)
{
    Ask(m_hWnd, EM_LINESCROLL, nChars, nLines);
}

void CEdit::LimitText(int nChars)
{
    Ask(m_hWnd, EM_LIMITTEXT, nChars);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    Ask(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
}

BOOL CEdit::FmtLines(BOOL bAddEOL)
{
    return Ask(m_hWnd, EM_FMTLINES, bAddEOL);
}

void CEdit::SetTabStops()
{
    Ask(m_hWnd, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop)
{
    return Ask(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return Ask(m_hWnd, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

BOOL CEdit::Undo()
{
    return Ask(m_hWnd, EM_UNDO);
}

void CEdit::EmptyUndoBuffer()
{
    Ask(m_hWnd, EM_EMPTYUNDOBUFFER);
}

void CEdit::Clear()
{
    Ask(m_hWnd, WM_CLEAR);
}

void CEdit::Copy()
{
    Ask(m_hWnd, WM_COPY);
}

void CEdit::Cut()
{
    Ask(m_hWnd, WM_CUT);
}

void CEdit::Paste()
{
    Ask(m_hWnd, WM_PASTE);
}

BOOL CEdit::SetCueBanner(LPCWSTR lpszText, BOOL fDrawWhenFocused)
{
    return Ask(m_hWnd, EM_SETCUEBANNER, fDrawWhenFocused, lpszText);
}

BOOL CEdit::GetCueBanner(LPWSTR lpszText, int cchText) const
{
    return Ask(m_hWnd, EM_GETCUEBANNER, lpszText, cchText);
}

CString CEdit::GetCueBanner() const
{
    WCHAR text[1024] = {};
    GetCueBanner(text, _countof(text));
    return CString(text);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return Ask(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {sizeof(tip), lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

BOOL CEdit::HideBalloonTip()
{
    return Ask(m_hWnd, EM_HIDEBALLOONTIP);
}

BOOL CEdit::GetHighlight(int* pichStart, int* pichEnd) const
{
    const DWORD words = Ask(m_hWnd, EM_GETHILITE);
    *pichStart = LOWORD(words);
    *pichEnd = HIWORD(words);
    return words != 0;
}

void CEdit::SetHighlight(int ichStart, int ichEnd)
{
    Ask(m_hWnd, EM_SETHILITE, ichStart, ichEnd);
}
