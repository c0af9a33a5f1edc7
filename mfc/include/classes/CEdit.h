// A field to edit text in.
#pragma once

#include <classes/CString.h>
#include <classes/CWnd.h>

/// The system's "Edit" control. Positions and lengths count characters; -1 for a line or a
/// position means the one of the caret.
class AFX_EXPORTED CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const;
    int GetLineCount() const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR ch);
    /// The rectangle that the text is formatted in, in client coordinates.
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    /// Like SetRect, without painting.
    void SetRectNP(LPCRECT lpRect);
    /// First selected character in the low word, first after the selection in the high word.
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    HLOCAL GetHandle() const;
    void SetHandle(HLOCAL hBuffer);
    /// Left margin in the low word, right margin in the high word, in pixels.
    DWORD GetMargins() const;
    void SetMargins(UINT nLeft, UINT nRight);
    UINT GetLimitText() const;
    void SetLimitText(UINT nMax);
    /// The client position of a character's upper left corner.
    CPoint PosFromChar(UINT nChar) const;
    /// Nearest character in the low word, its line in the high word.
    int CharFromPos(CPoint pt) const;

    /// Copies a line, without terminating it; returns the number of characters. The first form
    /// expects the buffer's size in its first word.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetFirstVisibleLine() const;
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    void LimitText(int nChars = 0);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    BOOL FmtLines(BOOL bAddEOL);
    /// Tab stops are in dialog units; the first form sets one at every 32.
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);

    BOOL Undo();
    void EmptyUndoBuffer();
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    // These need the common controls of version 6 and fail without.
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawWhenFocused = FALSE);
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const;
    CString GetCueBanner() const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip);
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip();
    /// What is marked without being selected; a newer system has it. FALSE for nothing.
    BOOL GetHighlight(int* pichStart, int* pichEnd) const;
    void SetHighlight(int ichStart, int ichEnd);
};
