#include <classes/CFrameWnd.h>

#include <classes/Application.h>
#include <classes/CCmdUI.h>
#include <classes/CMenu.h>

#include <afxres.h>

#include "threads/SystemCall.h"
#include "windows/WindowCreation.h"

#include <utility>
#include <vector>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_INITMENUPOPUP()
    ON_WM_SIZE()
END_MESSAGE_MAP()

AFX_DATADEF const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

namespace {

constexpr UINT firstSystemCommand = 0xF000;

HMENU LoadMenuOf(LPCTSTR name)
{
    return name == NULL ? NULL : ::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name);
}

HICON LoadIconOf(LPCTSTR name)
{
    const HICON own = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    return own == NULL ? ::LoadIcon(NULL, IDI_APPLICATION) : own;
}

LPCTSTR RegisterFrameClass(HICON icon)
{
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW),
                               reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
}

bool IsOwnedBy(HWND window, HWND owner)
{
    while (window != NULL && window != owner)
        window = ::GetWindow(window, GW_OWNER);
    return window == owner;
}

/// The top-level windows of the thread that the owner owns, directly or through others.
std::vector<HWND> FindOwned(HWND owner)
{
    std::vector<HWND> windows;
    const auto collect = [](HWND window, LPARAM found) CALLBACK -> BOOL {
        return afxint::CalledBySystem(MSG{}, FALSE, [&] {
            reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
            return TRUE;
        });
    };
    EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows,
                  [owner](HWND window) { return window == owner || !IsOwnedBy(window, owner); });
    return windows;
}

} // namespace

CFrameWnd::CFrameWnd() : m_bAutoMenuEnable(TRUE)
{
}

CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                       const RECT& rect, CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle,
                       CCreateContext* pContext)
{
    menu_ = LoadMenuOf(lpszMenuName);
    if (lpszMenuName != NULL && menu_ == NULL) {
        TRACE(_T("The menu of a frame window is missing.\n"));
        PostNcDestroy();
        return FALSE;
    }
    title_ = lpszWindowName;
    const HMENU menu = menu_;
    const BOOL made =
        CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                 afxint::Extent(rect.left, rect.right), afxint::Extent(rect.top, rect.bottom),
                 pParentWnd->GetSafeHwnd(), menu, pContext);
    // The object has deleted itself if the creation failed.
    if (!made && menu != NULL)
        ::DestroyMenu(menu);
    return made;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext)
{
    const LPCTSTR name = MAKEINTRESOURCE(nIDResource);
    CString text;
    CString title;
    if (text.LoadString(nIDResource))
        AfxExtractSubString(title, text, 0);
    const HINSTANCE menuModule = AfxFindResourceHandle(name, RT_MENU);
    const bool hasMenu = ::FindResource(menuModule, name, RT_MENU) != NULL;
    if (!Create(RegisterFrameClass(LoadIconOf(name)), title, dwDefaultStyle, rectDefault,
                pParentWnd, hasMenu ? name : NULL, 0, pContext))
        return FALSE;
    const HINSTANCE keysModule = AfxFindResourceHandle(name, RT_ACCELERATOR);
    if (::FindResource(keysModule, name, RT_ACCELERATOR) != NULL)
        LoadAccelTable(name);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR);
    accelerators_ = ::LoadAccelerators(module, lpszResourceName);
    return accelerators_ != NULL;
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    if (nCmdShow == -1) {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    if (nCmdShow != -1)
        ShowWindow(nCmdShow);
    BringWindowToTop();
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    return this;
}

CString CFrameWnd::GetTitle() const
{
    return title_;
}

void CFrameWnd::SetTitle(LPCTSTR lpszTitle)
{
    title_ = lpszTitle;
    if (m_hWnd != NULL)
        SetWindowText(lpszTitle);
}

CWnd* CFrameWnd::GetMessageBar()
{
    return NULL;
}

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const
{
    CString text;
    rMessage.Empty();
    if (text.LoadString(nID))
        AfxExtractSubString(rMessage, text, 0);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText)
{
    if (CWnd* bar = GetMessageBar())
        bar->SetWindowText(lpszText);
}

void CFrameWnd::SetMessageText(UINT nID)
{
    CString text;
    GetMessageString(nID, text);
    SetMessageText(text);
}

BOOL CFrameWnd::IsTracking() const
{
    return FALSE; // There are no splitter bars.
}

void CFrameWnd::RecalcLayout(BOOL)
{
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
}

void CFrameWnd::BeginModalState()
{
    if (modalDepth_ == 0) {
        std::vector<HWND> windows = FindOwned(m_hWnd);
        windows.insert(windows.begin(), m_hWnd);
        std::erase_if(windows, [](HWND window) { return !::IsWindowEnabled(window); });
        disabled_ = std::move(windows);
        for (const HWND window : disabled_)
            ::EnableWindow(window, FALSE);
    }
    ++modalDepth_;
}

void CFrameWnd::EndModalState()
{
    if (modalDepth_ == 0 || --modalDepth_ > 0)
        return;
    for (const HWND window : disabled_)
        ::EnableWindow(window, TRUE);
    disabled_.clear();
}

BOOL CFrameWnd::InModalState() const
{
    return modalDepth_ > 0;
}

void CFrameWnd::ShowOwnedWindows(BOOL bShow)
{
    if (bShow) {
        for (const HWND window : hidden_)
            ::ShowWindow(window, SW_SHOWNA);
        hidden_.clear();
        return;
    }
    for (const HWND window : FindOwned(m_hWnd)) {
        if (!::IsWindowVisible(window))
            continue;
        hidden_.push_back(window);
        ::ShowWindow(window, SW_HIDE);
    }
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == NULL)
        cs.lpszClass = RegisterFrameClass(::LoadIcon(NULL, IDI_APPLICATION));
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return key && accelerators_ != NULL && ::TranslateAccelerator(m_hWnd, accelerators_, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app != NULL && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    return TRUE;
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    auto* context = static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (!OnCreateClient(lpCreateStruct, context))
        return -1;
    RecalcLayout();
    return 0;
}

void CFrameWnd::OnDestroy()
{
    // The system destroys the menu that the window has at its end, no other.
    if (menu_ != NULL && ::GetMenu(m_hWnd) != menu_)
        ::DestroyMenu(menu_);
    menu_ = NULL;
    CWnd::OnDestroy();
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu)
{
    Default();
    if (bSysMenu)
        return;
    // A handler may add and remove items.
    for (UINT i = 0; i < pPopupMenu->GetMenuItemCount(); ++i)
        StateItem(*pPopupMenu, i);
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::StateItem(CMenu& menu, UINT index)
{
    constexpr UINT opensMenu = static_cast<UINT>(-1);
    CCmdUI state;
    state.m_pMenu = &menu;
    state.m_nIndex = index;
    state.m_nID = menu.GetMenuItemID(static_cast<int>(index));
    if (state.m_nID == ID_SEPARATOR)
        return;
    if (state.m_nID == opensMenu) {
        // A submenu goes by its first command.
        state.m_pSubMenu = menu.GetSubMenu(static_cast<int>(index));
        if (state.m_pSubMenu == NULL)
            return;
        state.m_nID = state.m_pSubMenu->GetMenuItemID(0);
        if (state.m_nID != ID_SEPARATOR && state.m_nID != opensMenu)
            state.DoUpdate(this, false);
        return;
    }
    state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < firstSystemCommand);
}
