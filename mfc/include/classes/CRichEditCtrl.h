// A field to edit formatted text in.
#pragma once

#include <atltypes.h>
#include <classes/CString.h>
#include <classes/CWnd.h>
#include <richedit.h>

class CDC;
struct IRichEditOle;
struct IRichEditOleCallback;

/// The rich edit control of version 2.0 when Create makes it. A template names its class itself,
/// and the program calls the function that registers that before: AfxInitRichEdit for "RICHEDIT",
/// AfxInitRichEdit2 for "RichEdit20A" or "RichEdit20W". Positions count characters. Setters of
/// formats change what the mask in the structure names; cbSize is filled in.
class AFX_EXPORTED CRichEditCtrl : public CWnd
{
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    CRichEditCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    // Lines. -1 for a line or a position means the one of the caret.
    int GetLineCount() const;
    /// Copies a line, without terminating it; returns the number of characters. The first form
    /// expects the buffer's size in its first word.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetFirstVisibleLine() const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    long LineFromChar(long nIndex) const;
    void LineScroll(int nLines, int nChars = 0);

    // Text and places in it.
    long GetTextLength() const;
    /// By GTL_ values; code page -1 is the one of the program's characters.
    long GetTextLengthEx(DWORD dwFlags, UINT uCodePage = static_cast<UINT>(-1)) const;
    int GetTextRange(int nFirst, int nLast, CString& refString) const;
    /// The client position of a character's upper left corner.
    CPoint GetCharPos(long lChar) const;
    CPoint PosFromChar(UINT nChar) const;
    int CharFromPos(CPoint pt) const;
    /// The first character of what was found, or -1; chrgText of the structure gets where it is.
    long FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const;
    DWORD FindWordBreak(UINT nCode, DWORD nStart) const;
    void LimitText(long nChars = 0);
    long GetLimitText() const;

    // The selection.
    void GetSel(CHARRANGE& cr) const;
    void GetSel(long& nStartChar, long& nEndChar) const;
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr);
    /// Into a buffer that holds it; returns the length.
    long GetSelText(LPSTR lpBuf) const;
    CString GetSelText() const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    /// SEL_ values.
    WORD GetSelectionType() const;
    /// bPerm changes the style, too.
    void HideSelection(BOOL bHide, BOOL bPerm);

    // Formats. Getters return the mask of what is the same everywhere.
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const;
    DWORD GetDefaultCharFormat(CHARFORMAT2& cf) const;
    BOOL SetDefaultCharFormat(CHARFORMAT& cf);
    BOOL SetDefaultCharFormat(CHARFORMAT2& cf);
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const;
    DWORD GetSelectionCharFormat(CHARFORMAT2& cf) const;
    BOOL SetSelectionCharFormat(CHARFORMAT& cf);
    BOOL SetSelectionCharFormat(CHARFORMAT2& cf);
    /// The word that the caret is in, or the selection.
    BOOL SetWordCharFormat(CHARFORMAT& cf);
    BOOL SetWordCharFormat(CHARFORMAT2& cf);
    DWORD GetParaFormat(PARAFORMAT& pf) const;
    DWORD GetParaFormat(PARAFORMAT2& pf) const;
    BOOL SetParaFormat(PARAFORMAT& pf);
    BOOL SetParaFormat(PARAFORMAT2& pf);

    // The control.
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    /// Which notifications the parent gets: ENM_ values. Returns the former ones.
    long GetEventMask() const;
    DWORD SetEventMask(DWORD dwEventMask);
    /// ECO_ values; wOp is how they are combined with the present ones (ECOOP_ values).
    UINT GetOptions() const;
    void SetOptions(WORD wOp, DWORD dwFlags);
    /// Returns the former colour.
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr);
    /// The rectangle that the text is formatted in, in client coordinates.
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    /// Makes the control send EN_REQUESTRESIZE.
    void RequestResize();
    BOOL SetAutoURLDetect(BOOL bEnable = TRUE);
    /// TM_ values. It can be set while there is no text only.
    UINT GetTextMode() const;
    BOOL SetTextMode(UINT fMode);
    // These are for the Asian versions of the control, and fail in others.
    BOOL GetPunctuation(UINT fType, PUNCTUATION* lpPunc) const;
    BOOL SetPunctuation(UINT fType, PUNCTUATION* lpPunc);
    UINT GetWordWrapMode() const;
    UINT SetWordWrapMode(UINT uFlags) const;

    // The clipboard, and what can be undone.
    /// 0 is any format that the control understands.
    BOOL CanPaste(UINT nFormat = 0) const;
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    void PasteSpecial(UINT nClipFormat, DWORD dvAspect = 0, HMETAFILE hMF = 0);
    BOOL CanUndo() const;
    BOOL CanRedo() const;
    BOOL Undo();
    BOOL Redo();
    UNDONAMEID GetUndoName() const;
    UNDONAMEID GetRedoName() const;
    void EmptyUndoBuffer();
    /// How many steps at most; returns the new limit.
    UINT SetUndoLimit(UINT nLimit);
    /// What is typed next is undone by itself.
    void StopGroupTyping();

    // Files and printing.
    /// Text through the callback in the structure, in a format of SF_TEXT, SF_RTF and others, the
    /// selection alone with SFF_SELECTION. Returns how much was read or written; dwError of the
    /// structure tells a failure.
    long StreamIn(int nFormat, EDITSTREAM& es);
    long StreamOut(int nFormat, EDITSTREAM& es);
    /// Formats text for a device; returns the first character that did not fit. NULL frees what the
    /// control keeps between the calls.
    long FormatRange(FORMATRANGE* pfr, BOOL bDisplay = TRUE);
    /// Draws what FormatRange has formatted.
    BOOL DisplayBand(LPRECT pDisplayRect);
    /// The width of a line is in twips.
    BOOL SetTargetDevice(HDC hDC, long lLineWidth);
    BOOL SetTargetDevice(CDC& dc, long lLineWidth);
    /// The caller releases it.
    IRichEditOle* GetIRichEditOle() const;
    BOOL SetOLECallback(IRichEditOleCallback* pCallback);
};
