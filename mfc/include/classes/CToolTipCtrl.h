// Short texts that pop up beside a control while the mouse rests over it.
#pragma once

#include <atltypes.h>
#include <classes/CWnd.h>

/// A tool with room for its text.
struct CToolInfo : public TOOLINFO
{
    TCHAR szText[256];
};

/// The common control "tooltips_class32". A tool is a whole window (id 0), or a rectangle of a
/// window under an id of its own. Texts are copied; LPSTR_TEXTCALLBACK asks the parent of the
/// tool's window each time (TTN_NEEDTEXT).
class AFX_EXPORTED CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetToolCount() const;
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const;
    /// Milliseconds; the duration is one of the TTDT_ values.
    int GetDelayTime(DWORD dwDuration) const;
    void SetDelayTime(UINT nDelay);
    void SetDelayTime(DWORD dwDuration, int iTime);
    void GetMargin(LPRECT lprc) const;
    void SetMargin(LPRECT lprc);
    /// -1 when lines are never broken.
    int GetMaxTipWidth() const;
    int SetMaxTipWidth(int iWidth);
    COLORREF GetTipBkColor() const;
    void SetTipBkColor(COLORREF clr);
    COLORREF GetTipTextColor() const;
    void SetTipTextColor(COLORREF clr);
    void GetTitle(PTTGETTITLE pttgt) const;
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle);
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName);

    void Activate(BOOL bActivate);
    /// The id of a text is that of a string resource.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = NULL,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    /// Tells the control of a mouse message, from which it learns where the mouse rests.
    void RelayEvent(LPMSG lpMsg);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void Update();
    void Pop();
    void Popup();
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE);
};
