// The window of a simple window program.
#pragma once

#include <classes/CRect.h>
#include <classes/CString.h>
#include <classes/CWnd.h>

#include <vector>

// Styles of frame windows.
#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L
#define FWS_SNAPTOBARS 0x00002000L

/// A top-level window with a menu and accelerators. Made with new; deletes itself when its window
/// is gone, also after a failed creation.
class AFX_EXPORTED CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    /// Lets the system choose place and size.
    static AFX_DATA const CRect rectDefault;

    CFrameWnd();
    ~CFrameWnd() override;

    /// Menu items without a handler are disabled before their menu opens. TRUE by default.
    BOOL m_bAutoMenuEnable;

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CWnd* pParentWnd = NULL, LPCTSTR lpszMenuName = NULL, DWORD dwExStyle = 0,
                        CCreateContext* pContext = NULL);
    /// Takes menu, accelerators, icon and title from the resources of one id.
    virtual BOOL LoadFrame(UINT nIDResource,
                           DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    virtual void ActivateFrame(int nCmdShow = -1);
    virtual CFrameWnd* GetActiveFrame();
    CString GetTitle() const;
    /// Sets the title and shows it in the caption.
    void SetTitle(LPCTSTR lpszTitle);
    /// The window that shows messages; NULL, for there is no status bar.
    virtual CWnd* GetMessageBar();
    /// The prompt of a command, from the string resource of its id up to the first line break.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    BOOL IsTracking() const;

    /// Fills the client area with the child AFX_IDW_PANE_FIRST, if there is one.
    virtual void RecalcLayout(BOOL bNotify = TRUE);

    // Disables the frame and the windows it owns, and enables them again; the calls nest.
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const;
    /// Hides the windows that the frame owns, or shows those again that it hid.
    void ShowOwnedWindows(BOOL bShow);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Makes what fills the client area; FALSE fails the creation of the frame.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void StateItem(CMenu& menu, UINT index);

    CString title_;
    HACCEL accelerators_ = NULL;
    HMENU menu_ = NULL; ///< The menu the frame was made with.
    int modalDepth_ = 0;
    std::vector<HWND> disabled_; ///< By BeginModalState.
    std::vector<HWND> hidden_;   ///< By ShowOwnedWindows.
};
