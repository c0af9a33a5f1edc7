// The base of all windows: the object that stands for a system window.
#pragma once

#include <classes/CCmdTarget.h>
#include <classes/CString.h>

class CBitmap;
class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CListBox;
class CMenu;
class CPoint;
class CRgn;
class CScrollBar;
struct CCreateContext;

namespace afxint {
struct WindowTraits;
class ModalState;
class WindowMessages;
} // namespace afxint

// What RunModalLoop leaves out, or adds.
#define MLF_NOIDLEMSG 0x0001  ///< No WM_ENTERIDLE for the parent.
#define MLF_NOKICKIDLE 0x0002 ///< No WM_KICKIDLE for the window.
#define MLF_SHOWONIDLE 0x0004 ///< The window is shown when the queue has run empty.

/// Sent to a window whose modal loop is idle: MSGF_DIALOGBOX and the count of idle calls. While
/// the answer is not 0 it comes again.
#define WM_KICKIDLE 0x036A
/// F1 was pressed, in wParam 0, in lParam the help context.
#define WM_COMMANDHELP 0x0365

/// A window. Made in two steps, the object and then the system window with Create, or put around
/// an existing window with Attach or SubclassWindow. Several members may be called on a NULL
/// object, GetSafeHwnd above all.
class AFX_EXPORTED CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    /// Destroys the system window if there still is one.
    ~CWnd() override;
    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HWND m_hWnd; ///< NULL without a window.

    // Places in the order of windows, for SetWindowPos.
    static AFX_DATA const CWnd wndTop;
    static AFX_DATA const CWnd wndBottom;
    static AFX_DATA const CWnd wndTopMost;
    static AFX_DATA const CWnd wndNoTopMost;

    operator HWND() const;
    BOOL operator==(const CWnd& wnd) const;
    BOOL operator!=(const CWnd& wnd) const;
    /// NULL for a NULL object and for one without a window.
    HWND GetSafeHwnd() const;

    // The object of a window: the one attached to it, else a temporary one that must not be kept
    // beyond the running handler; FromHandlePermanent gives NULL instead.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    /// Makes the object stand for the window, without receiving its messages.
    BOOL Attach(HWND hWndNew);
    /// The opposite of Attach; returns the window.
    HWND Detach();

    // Making and ending windows.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID,
                        CCreateContext* pContext = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, int x, int y, int nWidth, int nHeight, HWND hWndParent,
                          HMENU nIDorHMenu, LPVOID lpParam = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          LPVOID lpParam = NULL);
    virtual BOOL DestroyWindow();
    /// Runs with m_hWnd set before the first message is routed to the object.
    virtual void PreSubclassWindow();
    /// Routes the messages of an existing window to this object; what the object does not handle
    /// goes to the window's previous procedure. FALSE when the window has an object already.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// The opposite of SubclassWindow; returns the window.
    HWND UnsubclassWindow();

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE, BOOL bOnlyPerm = FALSE);
    /// Offers the current message to the child it came from.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = NULL);
    /// Sees messages of the window and its children before they are dispatched; TRUE keeps them.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL IsDialogMessage(LPMSG lpMsg);

    // Text, styles, icons, fonts, menus.
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    // Returns FALSE when nothing changed; nFlags other than 0 redraws with SetWindowPos.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;
    /// The font stays the caller's and must outlive its use.
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL bRevert) const;
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
    BOOL GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const;
    int SetDlgCtrlID(int nID);
    int GetDlgCtrlID() const;
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    DWORD GetWindowContextHelpId() const;

    // Place, size, visibility.
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void CloseWindow();
    UINT ArrangeIconicWindows();
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    /// The system owns the region afterwards; 0 on failure.
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    int GetWindowRgn(HRGN hRgn) const;
    void BringWindowToTop();
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    BOOL GetWindowInfo(PWINDOWINFO pwi) const;
    BOOL GetTitleBarInfo(PTITLEBARINFO pti) const;
    /// Centres the window over the other, without one over its parent or owner, inside the work
    /// area of the screen.
    void CenterWindow(CWnd* pAlternateOwner = NULL);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    void ShowOwnedPopups(BOOL bShow = TRUE);
    BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags);
    BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags);
    BOOL GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const;
    BOOL UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc,
                             COLORREF crKey, BLENDFUNCTION* pblend, DWORD dwFlags);
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    /// Makes a window rectangle of a client rectangle.
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum RepositionFlags { reposDefault = 0, reposQuery = 1, reposExtra = 2 };
    /// Lets the children from nIDFirst to nIDLast take their parts of the client area and gives
    /// the rest to nIDLeftOver; or only answers the rest.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = NULL, LPCRECT lpRectClient = NULL,
                        BOOL bStretch = TRUE);

    // Coordinates.
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;

    // Painting.
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    /// These three give temporary objects; the caller gives the context back with ReleaseDC.
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    BOOL PrintWindow(CDC* pDC, UINT nFlags) const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = NULL, CRgn* prgnUpdate = NULL,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo);
    BOOL DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags);

    // Timers.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent);

    // Input and activation.
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    static CWnd* PASCAL GetActiveWindow();
    CWnd* SetActiveWindow();
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetForegroundWindow();
    static CWnd* PASCAL GetCapture();
    CWnd* SetCapture();
    static CWnd* PASCAL GetFocus();
    CWnd* SetFocus();
    static CWnd* PASCAL GetDesktopWindow();
    BOOL FlashWindow(BOOL bInvert);
    BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout);
    BOOL DragDetect(POINT pt) const;
    void DragAcceptFiles(BOOL bAccept = TRUE);
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = NULL, UINT nType = MB_OK);

    // Controls of a dialog.
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    void CheckDlgButton(int nIDButton, UINT nCheck);
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    /// 0 when none is checked.
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton);
    UINT IsDlgButtonChecked(int nIDButton) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = NULL, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);
    int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType);
    BOOL DlgDirSelect(LPTSTR lpString, int nIDListBox);
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox);
    /// Fills list and combo boxes from the DLGINIT resource, or from such data; FALSE when the
    /// data is bad.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);
    /// Exchanges data with the controls through DoDataExchange: TRUE saves them into the members.
    /// FALSE when validation failed; the user has been told then.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Asks pTarget for the state of each control.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // Scrolling.
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = NULL, LPCRECT lpClipRect = NULL);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const;
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    /// A control that stands for a scroll bar of the window; NULL here.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;

    // Other windows.
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetAncestor(UINT gaFlags) const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    /// The child or grandchild with that id; NULL when there is none, or none with an object.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                              LPCTSTR lpszWindow);
    static CWnd* PASCAL WindowFromPoint(POINT point);
    /// The window told by SetOwner, else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const;
    /// The window that should own a dialog of pParent, or of the main window when pParent is
    /// NULL. With pWndTop also disables the topmost owner and tells it there.
    static CWnd* PASCAL GetSafeOwner(CWnd* pParent = NULL, HWND* pWndTop = NULL);

    // Caret.
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight);
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();

    // Clipboard.
    BOOL OpenClipboard();
    static CWnd* PASCAL GetClipboardOwner();
    static CWnd* PASCAL GetClipboardViewer();
    static CWnd* PASCAL GetOpenClipboardWindow();
    HWND SetClipboardViewer();
    BOOL ChangeClipboardChain(HWND hWndNext);

    // Modal loops.
    /// Dispatches messages until ContinueModal says FALSE; returns what EndModalLoop was given,
    /// IDABORT when the window or the program ended.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    virtual void BeginModalState();
    virtual void EndModalState();

    // Tool tips: OnToolHitTest tells the tool under the mouse, TTN_NEEDTEXT asks for its text.
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    BOOL EnableTrackingToolTips(BOOL bEnable = TRUE);
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE);
    void FilterToolTipMessage(MSG* pMsg);
    /// The id of the tool at a client point, -1 for none. Children are tools here.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;

    // Help.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

    void NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject);

protected:
    /// Sees every message first; the base searches the map, then calls DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// FALSE when the map has no handler.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The default processing of the current message with its original parameters.
    LRESULT Default();
    static const MSG* PASCAL GetCurrentMessage();
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void DoDataExchange(CDataExchange* pDX);
    /// The last call after the window is gone, or was never made.
    virtual void PostNcDestroy();

    // Messages that a control gets back from its parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = NULL);

    // Handlers. Each of the base does the default processing of the current message with its
    // original parameters, whatever arguments it is given.
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnAppCommand(CWnd* pWnd, UINT nCmd, UINT nDevice, UINT nKey);
    afx_msg void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter);
    afx_msg void OnChangeUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg int OnCharToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg void OnChildActivate();
    afx_msg void OnClose();
    afx_msg void OnCompacting(UINT nCpuTime);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnDestroy();
    afx_msg void OnDestroyClipboard();
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    afx_msg void OnDevModeChange(LPTSTR lpDeviceName);
    afx_msg void OnDrawClipboard();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho);
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnEnterSizeMove();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnExitSizeMove();
    afx_msg void OnFontChange();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg BOOL OnHelpInfo(HELPINFO* lpHelpInfo);
    afx_msg void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnHScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnIconEraseBkgnd(CDC* pDC);
    afx_msg void OnInitMenu(CMenu* pMenu);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnInputLangChange(UINT nCharSet, UINT nLocaleId);
    afx_msg void OnInputLangChangeRequest(UINT nFlags, UINT nLocaleId);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);
    afx_msg UINT OnMenuDrag(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* pMenuGetObjectInfo);
    afx_msg void OnMenuRButtonUp(UINT nPos, CMenu* pMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseLeave();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnNcDestroy();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnNcRButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcXButtonDblClk(short nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNcXButtonDown(short nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNcXButtonUp(short nHitTest, UINT nButton, CPoint point);
    afx_msg void OnNextMenu(UINT nKey, LPMDINEXTMENU lpMdiNextMenu);
    afx_msg UINT OnNotifyFormat(CWnd* pWnd, UINT nCommand);
    afx_msg void OnPaint();
    afx_msg void OnPaintClipboard(CWnd* pClipAppWnd, HGLOBAL hPaintStruct);
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnPaletteIsChanging(CWnd* pRealizeWnd);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, UINT nEventData);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg BOOL OnQueryEndSession();
    afx_msg BOOL OnQueryNewPalette();
    afx_msg BOOL OnQueryOpen();
    afx_msg UINT OnQueryUIState();
    afx_msg void OnRawInput(UINT nInputCode, HRAWINPUT hRawInput);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnRenderFormat(UINT nFormat);
    afx_msg void OnSessionChange(UINT nSessionState, UINT nId);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSizeClipboard(CWnd* pClipAppWnd, HGLOBAL hRect);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnSpoolerStatus(UINT nStatus, UINT nJobs);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysColorChange();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnTCard(UINT idAction, DWORD dwActionData);
    afx_msg void OnTimeChange();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnUniChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnUnInitMenuPopup(CMenu* pPopupMenu, UINT nFlags);
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnUserChanged();
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    afx_msg void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonUp(UINT nFlags, UINT nButton, CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    friend class afxint::ModalState;
    friend struct afxint::WindowTraits;
    friend class afxint::WindowMessages;

    enum State : UINT {
        modalLoop = 0x01,     ///< A modal loop runs, or is about to.
        continueModal = 0x02, ///< EndModalLoop has not been called yet.
        exchanging = 0x04,    ///< UpdateData is on the stack; notifications do not count.
        toolTips = 0x08,
        trackingToolTips = 0x10,
    };

    explicit CWnd(HWND window);
    bool Has(State state) const { return (state_ & state) != 0; }
    void Set(State state, bool on) { state_ = on ? state_ | state : state_ & ~state; }
    void Forget();
    void TakeOver();
    BOOL FillControl(int control, UINT message, LPCSTR data, DWORD size);
    bool HandleFromMap(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    WNDPROC superProc_; ///< The procedure the window had before; NULL for the default one.
    HWND owner_;        ///< Of SetOwner.
    UINT state_;
    int modalResult_;
};
