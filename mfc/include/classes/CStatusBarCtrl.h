// A line of panes at the edge of a window.
#pragma once

#include <classes/CWnd.h>
#include <classes/CString.h>

/// The common control "msctls_statusbar32". Panes count from zero; in simple mode it shows one text
/// alone.
class AFX_EXPORTED CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl();

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// The right edges of the panes, in client coordinates; -1 is the window's. GetParts fills as
    /// many as asked for and returns how many there are.
    BOOL SetParts(int nParts, int* pWidths);
    int GetParts(int nParts, int* pParts) const;
    /// The widths of the horizontal and vertical border, and between panes.
    BOOL GetBorders(int* pBorders) const;
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    /// Without borders. It takes effect when the bar is laid out again.
    void SetMinHeight(int nMin);
    BOOL GetRect(int nPane, LPRECT lpRect) const;

    /// nType is how it is drawn, as SBT_NOBORDERS; with SBT_OWNERDRAW DrawItem draws it.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = NULL) const;
    /// Into a buffer that holds it; returns the length.
    int GetText(LPCTSTR lpszText, int nPane, int* pType = NULL) const;
    int GetTextLength(int nPane, int* pType = NULL) const;
    /// Shown for a pane without text, or whose text does not fit. The bar needs SBT_TOOLTIPS.
    void SetTipText(int nPane, LPCTSTR pszTipText);
    CString GetTipText(int nPane) const;
    /// The icon stays the caller's; NULL removes it.
    BOOL SetIcon(int nPane, HICON hIcon);
    HICON GetIcon(int iPart) const;
    BOOL SetSimple(BOOL bSimple = TRUE);
    BOOL IsSimple() const;
    COLORREF SetBkColor(COLORREF cr);

    /// Draws a pane of type SBT_OWNERDRAW; the base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};
