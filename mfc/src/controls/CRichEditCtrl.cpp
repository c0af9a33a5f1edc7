#include <classes/CRichEditCtrl.h>

#include <classes/Application.h>
#include <classes/CDC.h>

#include "controls/ControlMessages.h"

using afxint::Ask;

namespace {

// What the control is asked for in the characters of the program.
#ifdef UNICODE
constexpr UINT characters = 1200; // UTF-16.
constexpr UINT findMessage = EM_FINDTEXTEXW;
constexpr int bytesOfCharacter = 1; // Characters of the program to one of the control.
#else
constexpr UINT characters = CP_ACP;
constexpr UINT findMessage = EM_FINDTEXTEX;
constexpr int bytesOfCharacter = 2;
#endif

/// Formats in and out of the control, with the size that tells their version.
template <class Format>
DWORD GetFormat(HWND control, UINT message, WPARAM which, Format& format)
{
    format.cbSize = sizeof(format);
    return Ask(control, message, which, &format);
}

template <class Format>
BOOL SetFormat(HWND control, UINT message, WPARAM which, Format& format)
{
    format.cbSize = sizeof(format);
    return Ask(control, message, which, &format);
}

} // namespace

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

CRichEditCtrl::CRichEditCtrl() = default;

BOOL CRichEditCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CRichEditCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                             UINT nID)
{
    return AfxInitRichEdit2() &&
           CWnd::CreateEx(dwExStyle, RICHEDIT_CLASS, NULL, dwStyle, rect, pParentWnd, nID);
}

int CRichEditCtrl::GetLineCount() const
{
    return Ask(m_hWnd, EM_GETLINECOUNT);
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return Ask(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

int CRichEditCtrl::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    afxint::PutRoom(lpszBuffer, nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

int CRichEditCtrl::GetFirstVisibleLine() const
{
    return Ask(m_hWnd, EM_GETFIRSTVISIBLELINE);
}

int CRichEditCtrl::LineIndex(int nLine) const
{
    return Ask(m_hWnd, EM_LINEINDEX, nLine);
}

int CRichEditCtrl::LineLength(int nLine) const
{
    return Ask(m_hWnd, EM_LINELENGTH, nLine);
}

long CRichEditCtrl::LineFromChar(long nIndex) const
{
    return Ask(m_hWnd, EM_EXLINEFROMCHAR, 0, nIndex);
}

void CRichEditCtrl::LineScroll(int nLines, int nChars)
{
    Ask(m_hWnd, EM_LINESCROLL, nChars, nLines);
}

long CRichEditCtrl::GetTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

long CRichEditCtrl::GetTextLengthEx(DWORD dwFlags, UINT uCodePage) const
{
    GETTEXTLENGTHEX how = {dwFlags, uCodePage};
    if (uCodePage == static_cast<UINT>(-1))
        how.codepage = characters;
    return Ask(m_hWnd, EM_GETTEXTLENGTHEX, &how);
}

int CRichEditCtrl::GetTextRange(int nFirst, int nLast, CString& refString) const
{
    if (nLast < 0) // To the end.
        nLast = GetTextLength();
    const int room = max(nLast - nFirst, 0) * bytesOfCharacter + 1;
    TEXTRANGE range = {{nFirst, nLast}, refString.GetBuffer(room)};
    const int length = nLast > nFirst ? Ask(m_hWnd, EM_GETTEXTRANGE, 0, &range) : 0;
    refString.ReleaseBuffer(length);
    return length;
}

CPoint CRichEditCtrl::GetCharPos(long lChar) const
{
    POINTL place = {};
    Ask(m_hWnd, EM_POSFROMCHAR, &place, lChar);
    return CPoint(place.x, place.y);
}

CPoint CRichEditCtrl::PosFromChar(UINT nChar) const
{
    return GetCharPos(static_cast<long>(nChar));
}

int CRichEditCtrl::CharFromPos(CPoint pt) const
{
    POINTL place = {pt.x, pt.y};
    return Ask(m_hWnd, EM_CHARFROMPOS, 0, &place);
}

long CRichEditCtrl::FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const
{
    return Ask(m_hWnd, findMessage, dwFlags, pFindText);
}

DWORD CRichEditCtrl::FindWordBreak(UINT nCode, DWORD nStart) const
{
    return Ask(m_hWnd, EM_FINDWORDBREAK, nCode, nStart);
}

void CRichEditCtrl::LimitText(long nChars)
{
    Ask(m_hWnd, EM_EXLIMITTEXT, 0, nChars);
}

long CRichEditCtrl::GetLimitText() const
{
    return Ask(m_hWnd, EM_GETLIMITTEXT);
}

void CRichEditCtrl::GetSel(CHARRANGE& cr) const
{
    Ask(m_hWnd, EM_EXGETSEL, 0, &cr);
}

void CRichEditCtrl::GetSel(long& nStartChar, long& nEndChar) const
{
    CHARRANGE range = {};
    GetSel(range);
    nStartChar = range.cpMin;
    nEndChar = range.cpMax;
}

void CRichEditCtrl::SetSel(long nStartChar, long nEndChar)
{
    CHARRANGE range = {nStartChar, nEndChar};
    SetSel(range);
}

void CRichEditCtrl::SetSel(CHARRANGE& cr)
{
    Ask(m_hWnd, EM_EXSETSEL, 0, &cr);
}

long CRichEditCtrl::GetSelText(LPSTR lpBuf) const
{
    return Ask(m_hWnd, EM_GETSELTEXT, 0, lpBuf);
}

CString CRichEditCtrl::GetSelText() const
{
    CHARRANGE range = {};
    GetSel(range);
    CString text;
    GetTextRange(range.cpMin, range.cpMax, text);
    return text;
}

void CRichEditCtrl::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    Ask(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
}

WORD CRichEditCtrl::GetSelectionType() const
{
    return Ask(m_hWnd, EM_SELECTIONTYPE);
}

void CRichEditCtrl::HideSelection(BOOL bHide, BOOL bPerm)
{
    Ask(m_hWnd, EM_HIDESELECTION, bHide, bPerm);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT& cf) const
{
    return GetFormat(m_hWnd, EM_GETCHARFORMAT, SCF_DEFAULT, cf);
}

DWORD CRichEditCtrl::GetDefaultCharFormat(CHARFORMAT2& cf) const
{
    return GetFormat(m_hWnd, EM_GETCHARFORMAT, SCF_DEFAULT, cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT& cf)
{
    return SetFormat(m_hWnd, EM_SETCHARFORMAT, SCF_DEFAULT, cf);
}

BOOL CRichEditCtrl::SetDefaultCharFormat(CHARFORMAT2& cf)
{
    return SetFormat(m_hWnd, EM_SETCHARFORMAT, SCF_DEFAULT, cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT& cf) const
{
    return GetFormat(m_hWnd, EM_GETCHARFORMAT, SCF_SELECTION, cf);
}

DWORD CRichEditCtrl::GetSelectionCharFormat(CHARFORMAT2& cf) const
{
    return GetFormat(m_hWnd, EM_GETCHARFORMAT, SCF_SELECTION, cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT& cf)
{
    return SetFormat(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION, cf);
}

BOOL CRichEditCtrl::SetSelectionCharFormat(CHARFORMAT2& cf)
{
    return SetFormat(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION, cf);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMAT& cf)
{
    return SetFormat(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, cf);
}

BOOL CRichEditCtrl::SetWordCharFormat(CHARFORMAT2& cf)
{
    return SetFormat(m_hWnd, EM_SETCHARFORMAT, SCF_SELECTION | SCF_WORD, cf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT& pf) const
{
    return GetFormat(m_hWnd, EM_GETPARAFORMAT, 0, pf);
}

DWORD CRichEditCtrl::GetParaFormat(PARAFORMAT2& pf) const
{
    return GetFormat(m_hWnd, EM_GETPARAFORMAT, 0, pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT& pf)
{
    return SetFormat(m_hWnd, EM_SETPARAFORMAT, 0, pf);
}

BOOL CRichEditCtrl::SetParaFormat(PARAFORMAT2& pf)
{
    return SetFormat(m_hWnd, EM_SETPARAFORMAT, 0, pf);
}

BOOL CRichEditCtrl::GetModify() const
{
    return Ask(m_hWnd, EM_GETMODIFY);
}

void CRichEditCtrl::SetModify(BOOL bModified)
{
    Ask(m_hWnd, EM_SETMODIFY, bModified);
}

BOOL CRichEditCtrl::SetReadOnly(BOOL bReadOnly)
{
    return Ask(m_hWnd, EM_SETREADONLY, bReadOnly);
}

long CRichEditCtrl::GetEventMask() const
{
    return Ask(m_hWnd, EM_GETEVENTMASK);
}

DWORD CRichEditCtrl::SetEventMask(DWORD dwEventMask)
{
    return Ask(m_hWnd, EM_SETEVENTMASK, 0, dwEventMask);
}

UINT CRichEditCtrl::GetOptions() const
{
    return Ask(m_hWnd, EM_GETOPTIONS);
}

void CRichEditCtrl::SetOptions(WORD wOp, DWORD dwFlags)
{
    Ask(m_hWnd, EM_SETOPTIONS, wOp, dwFlags);
}

COLORREF CRichEditCtrl::SetBackgroundColor(BOOL bSysColor, COLORREF cr)
{
    return Ask(m_hWnd, EM_SETBKGNDCOLOR, bSysColor, cr);
}

void CRichEditCtrl::GetRect(LPRECT lpRect) const
{
    Ask(m_hWnd, EM_GETRECT, 0, lpRect);
}

void CRichEditCtrl::SetRect(LPCRECT lpRect)
{
    Ask(m_hWnd, EM_SETRECT, 0, lpRect);
}

void CRichEditCtrl::RequestResize()
{
    Ask(m_hWnd, EM_REQUESTRESIZE);
}

BOOL CRichEditCtrl::SetAutoURLDetect(BOOL bEnable)
{
    return Ask(m_hWnd, EM_AUTOURLDETECT, bEnable) == 0;
}

UINT CRichEditCtrl::GetTextMode() const
{
    return Ask(m_hWnd, EM_GETTEXTMODE);
}

BOOL CRichEditCtrl::SetTextMode(UINT fMode)
{
    return Ask(m_hWnd, EM_SETTEXTMODE, fMode) == 0;
}

BOOL CRichEditCtrl::GetPunctuation(UINT fType, PUNCTUATION* lpPunc) const
{
    return Ask(m_hWnd, EM_GETPUNCTUATION, fType, lpPunc);
}

BOOL CRichEditCtrl::SetPunctuation(UINT fType, PUNCTUATION* lpPunc)
{
    return Ask(m_hWnd, EM_SETPUNCTUATION, fType, lpPunc);
}

UINT CRichEditCtrl::GetWordWrapMode() const
{
    return Ask(m_hWnd, EM_GETWORDWRAPMODE);
}

UINT CRichEditCtrl::SetWordWrapMode(UINT uFlags) const
{
    return Ask(m_hWnd, EM_SETWORDWRAPMODE, uFlags);
}

BOOL CRichEditCtrl::CanPaste(UINT nFormat) const
{
    return Ask(m_hWnd, EM_CANPASTE, nFormat);
}

void CRichEditCtrl::Clear()
{
    Ask(m_hWnd, WM_CLEAR);
}

void CRichEditCtrl::Copy()
{
    Ask(m_hWnd, WM_COPY);
}

void CRichEditCtrl::Cut()
{
    Ask(m_hWnd, WM_CUT);
}

void CRichEditCtrl::Paste()
{
    Ask(m_hWnd, WM_PASTE);
}

void CRichEditCtrl::PasteSpecial(UINT nClipFormat, DWORD dvAspect, HMETAFILE hMF)
{
    REPASTESPECIAL special = {dvAspect, reinterpret_cast<DWORD_PTR>(hMF)};
    Ask(m_hWnd, EM_PASTESPECIAL, nClipFormat, dvAspect == 0 ? NULL : &special);
}

BOOL CRichEditCtrl::CanUndo() const
{
    return Ask(m_hWnd, EM_CANUNDO);
}

BOOL CRichEditCtrl::CanRedo() const
{
    return Ask(m_hWnd, EM_CANREDO);
}

BOOL CRichEditCtrl::Undo()
{
    return Ask(m_hWnd, EM_UNDO);
}

BOOL CRichEditCtrl::Redo()
{
    return Ask(m_hWnd, EM_REDO);
}

UNDONAMEID CRichEditCtrl::GetUndoName() const
{
    return static_cast<UNDONAMEID>(Ask(m_hWnd, EM_GETUNDONAME));
}

UNDONAMEID CRichEditCtrl::GetRedoName() const
{
    return static_cast<UNDONAMEID>(Ask(m_hWnd, EM_GETREDONAME));
}

void CRichEditCtrl::EmptyUndoBuffer()
{
    Ask(m_hWnd, EM_EMPTYUNDOBUFFER);
}

UINT CRichEditCtrl::SetUndoLimit(UINT nLimit)
{
    return Ask(m_hWnd, EM_SETUNDOLIMIT, nLimit);
}

void CRichEditCtrl::StopGroupTyping()
{
    Ask(m_hWnd, EM_STOPGROUPTYPING);
}

long CRichEditCtrl::StreamIn(int nFormat, EDITSTREAM& es)
{
    return Ask(m_hWnd, EM_STREAMIN, nFormat, &es);
}

long CRichEditCtrl::StreamOut(int nFormat, EDITSTREAM& es)
{
    return Ask(m_hWnd, EM_STREAMOUT, nFormat, &es);
}

long CRichEditCtrl::FormatRange(FORMATRANGE* pfr, BOOL bDisplay)
{
    return Ask(m_hWnd, EM_FORMATRANGE, bDisplay, pfr);
}

BOOL CRichEditCtrl::DisplayBand(LPRECT pDisplayRect)
{
    return Ask(m_hWnd, EM_DISPLAYBAND, 0, pDisplayRect);
}

BOOL CRichEditCtrl::SetTargetDevice(HDC hDC, long lLineWidth)
{
    return Ask(m_hWnd, EM_SETTARGETDEVICE, hDC, lLineWidth);
}

BOOL CRichEditCtrl::SetTargetDevice(CDC& dc, long lLineWidth)
{
    return SetTargetDevice(dc.m_hDC, lLineWidth);
}

IRichEditOle* CRichEditCtrl::GetIRichEditOle() const
{
    IRichEditOle* ole = NULL;
    Ask(m_hWnd, EM_GETOLEINTERFACE, 0, &ole);
    return ole;
}

BOOL CRichEditCtrl::SetOLECallback(IRichEditOleCallback* pCallback)
{
    return Ask(m_hWnd, EM_SETOLECALLBACK, 0, pCallback);
}
