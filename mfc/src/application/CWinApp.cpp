// The program as an object: its names, its start and its end, its help, its message boxes.
#include <classes/CWinApp.h>

#include <classes/Application.h>
#include <classes/CDumpContext.h>
#include <classes/CWaitCursor.h>
#include <classes/CWnd.h>

#include <afxres.h>

#include "application/ModuleState.h"
#include "application/ProgramArguments.h"
#include "threads/ThreadState.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

namespace {

/// Replaces one of the strings made with malloc.
void Assign(LPCTSTR& target, LPCTSTR value)
{
    const LPCTSTR old = target;
    target = value == NULL ? NULL : _tcsdup(value);
    free(const_cast<LPTSTR>(old));
}

HWND FindMessageOwner()
{
    CWnd* mainWindow = AfxGetMainWnd();
    HWND owner =
        mainWindow != NULL && mainWindow->m_hWnd != NULL ? mainWindow->m_hWnd : GetActiveWindow();
    if (owner == NULL)
        return NULL;
    // A dialog over the main window must be the owner, or the box would leave it usable.
    return GetLastActivePopup(GetAncestor(owner, GA_ROOT));
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(AfxGetInstanceHandle()), m_lpCmdLine(NULL), m_nCmdShow(SW_SHOWNORMAL),
      m_pszAppName(NULL), m_pszRegistryKey(NULL), m_pszExeName(NULL), m_pszHelpFilePath(NULL),
      m_pszProfileName(NULL), m_pszAppID(NULL), m_bHelpMode(FALSE), m_eHelpType(afxWinHelp),
      m_dwRestartManagerSupportFlags(0), m_nAutosaveInterval(5 * 60 * 1000), printerNames_(NULL),
      printerMode_(NULL), cursorBeforeWait_(NULL), waitCursors_(0)
{
    Assign(m_pszAppName, lpszAppName);
    m_bAutoDelete = FALSE;
    AFX_MODULE_STATE& program = afxint::Module();
    if (program.app != NULL)
        return;
    program.app = this;
    afxint::CurrentThread().thread = this;
    m_hThread = GetCurrentThread();
    m_nThreadID = GetCurrentThreadId();
}

CWinApp::~CWinApp()
{
    if (afxint::Module().app == this)
        afxint::Module().app = NULL;
    for (LPCTSTR* text : {&m_pszAppName, &m_pszRegistryKey, &m_pszExeName, &m_pszHelpFilePath,
                          &m_pszProfileName, &m_pszAppID})
        Assign(*text, NULL);
    SelectPrinter(NULL, NULL);
}

void CWinApp::Dump(CDumpContext& dc) const
{
    CWinThread::Dump(dc);
    dc << "named " << m_pszAppName << ", with command line " << m_lpCmdLine << "\n";
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const
{
    return ::LoadCursor(NULL, lpszCursorName);
}

HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const
{
    return ::LoadCursor(NULL, MAKEINTRESOURCE(nIDCursor));
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const
{
    return ::LoadIcon(NULL, lpszIconName);
}

HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const
{
    return ::LoadIcon(NULL, MAKEINTRESOURCE(nIDIcon));
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo)
{
    const afxint::ProgramArguments arguments;
    for (int i = 1; i < arguments.Count(); ++i) {
        LPCTSTR parameter = arguments[i];
        const bool flag = parameter[0] == '-' || parameter[0] == '/';
        rCmdInfo.ParseParam(flag ? parameter + 1 : parameter, flag, i + 1 == arguments.Count());
    }
}

BOOL CWinApp::RunEmbedded()
{
    return TakeSwitch(_T("Embedding"));
}

BOOL CWinApp::RunAutomated()
{
    return TakeSwitch(_T("Automation"));
}

void CWinApp::HideApplication()
{
    if (m_pMainWnd == NULL)
        return;
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->ShowOwnedPopups(FALSE);
    m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0,
                             SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void CWinApp::EnableHtmlHelp()
{
    SetHelpMode(afxHTMLHelp);
}

AFX_HELP_TYPE CWinApp::GetHelpMode()
{
    return m_eHelpType;
}

void CWinApp::SetHelpMode(AFX_HELP_TYPE eHelpType)
{
    m_eHelpType = eHelpType;
    if (m_pszHelpFilePath == NULL)
        return;
    CString path = m_pszHelpFilePath;
    const int dot = path.ReverseFind('.');
    if (dot > path.ReverseFind('\\'))
        path = path.Left(dot);
    path += eHelpType == afxHTMLHelp ? _T(".chm") : _T(".hlp");
    Assign(m_pszHelpFilePath, path);
}

BOOL CWinApp::EnableTaskbarInteraction(BOOL)
{
    return FALSE;
}

BOOL CWinApp::IsTaskbarInteractionEnabled()
{
    return FALSE;
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    // Nobody could ever end a program without a window.
    if (m_pMainWnd == NULL)
        PostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    return CWinThread::OnIdle(lCount);
}

BOOL CWinApp::PreTranslateMessage(MSG* pMsg)
{
    return CWinThread::PreTranslateMessage(pMsg);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    return CWinThread::ProcessWndProcException(e, pMsg);
}

BOOL CWinApp::ProcessMessageFilter(int code, LPMSG lpMsg)
{
    return CWinThread::ProcessMessageFilter(code, lpMsg);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    if ((nType & MB_ICONMASK) == 0)
        nType |= MB_ICONEXCLAMATION;
    const HWND owner = FindMessageOwner();
    if (owner == NULL)
        nType |= MB_TASKMODAL;
    return ::MessageBox(owner, lpszPrompt, m_pszAppName, nType);
}

void CWinApp::DoWaitCursor(int nCode)
{
    const int before = waitCursors_;
    waitCursors_ = max(0, before + nCode);
    if (waitCursors_ > 0) {
        const HCURSOR former = ::SetCursor(::LoadCursor(NULL, IDC_WAIT));
        if (before == 0)
            cursorBeforeWait_ = former;
    } else if (before > 0) {
        ::SetCursor(cursorBeforeWait_);
    }
}

BOOL CWinApp::SaveAllModified()
{
    return TRUE;
}

BOOL CWinApp::OnDDECommand(LPTSTR)
{
    return FALSE;
}

BOOL CWinApp::Register()
{
    return TRUE;
}

BOOL CWinApp::Unregister()
{
    return TRUE;
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    const CWaitCursor wait;
    if (!::WinHelp(m_pMainWnd->GetSafeHwnd(), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    const CWaitCursor wait;
    using Show = HWND(WINAPI*)(HWND, LPCTSTR, UINT, DWORD_PTR);
#ifdef UNICODE
    constexpr char function[] = "HtmlHelpW";
#else
    constexpr char function[] = "HtmlHelpA";
#endif
    // The viewer is loaded on demand: few programs need it, and not every system has it.
    static const HMODULE viewer = ::LoadLibrary(_T("hhctrl.ocx"));
    Show show = NULL;
    if (viewer != NULL)
        show = reinterpret_cast<Show>(reinterpret_cast<INT_PTR>(GetProcAddress(viewer, function)));
    if (show == NULL || show(m_pMainWnd->GetSafeHwnd(), m_pszHelpFilePath, nCmd, dwData) == NULL)
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::OnHelp()
{
    OnHelpFinder();
}

void CWinApp::OnHelpFinder()
{
    constexpr UINT displayTopic = 0x0000; // HH_DISPLAY_TOPIC.
    GiveHelp(0, HELP_FINDER, displayTopic);
}

void CWinApp::OnHelpIndex()
{
    constexpr UINT displayIndex = 0x0002; // HH_DISPLAY_INDEX.
    GiveHelp(0, HELP_INDEX, displayIndex);
}

void CWinApp::OnHelpUsing()
{
    GiveHelp(0, HELP_HELPONHELP, 0);
}

void CWinApp::OnContextHelp()
{
    // The mode in which the next click asks for help is a service of the main window's frame.
    m_bHelpMode = FALSE;
    OnHelp();
}

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    Assign(m_pszRegistryKey, lpszRegistryKey);
    Assign(m_pszProfileName, m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString key;
    VERIFY(key.LoadString(nIDRegistryKey));
    SetRegistryKey(key);
}

void CWinApp::SetAppID(LPCTSTR lpcszAppID)
{
    Assign(m_pszAppID, lpcszAppID);
}

void CWinApp::LoadStdProfileSettings(UINT)
{
    // The list of recent files belongs to documents, which are not part of the subset.
}

BOOL CWinApp::Enable3dControls()
{
    return TRUE;
}

BOOL CWinApp::Enable3dControlsStatic()
{
    return TRUE;
}

void CWinApp::OnAppExit()
{
    // The main window may still ask whether to save.
    if (m_pMainWnd != NULL)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

void CWinApp::SetNames()
{
    TCHAR path[MAX_PATH];
    if (GetModuleFileName(m_hInstance, path, _countof(path)) == 0)
        return;
    PathRemoveExtension(path);
    const LPCTSTR name = PathFindFileName(path);
    if (m_pszExeName == NULL)
        Assign(m_pszExeName, name);
    if (m_pszAppName == NULL) {
        TCHAR title[256];
        Assign(m_pszAppName, AfxLoadString(AFX_IDS_APP_TITLE, title) > 0 ? title : name);
    }
    if (m_pszProfileName == NULL)
        Assign(m_pszProfileName, CString(name) + _T(".INI"));
    if (m_pszHelpFilePath == NULL) {
        Assign(m_pszHelpFilePath, path);
        SetHelpMode(m_eHelpType);
    }
}

void CWinApp::GiveHelp(DWORD_PTR data, UINT winHelpCommand, UINT htmlHelpCommand)
{
    if (m_eHelpType == afxHTMLHelp)
        HtmlHelp(data, htmlHelpCommand);
    else
        WinHelp(data, winHelpCommand);
}

bool CWinApp::TakeSwitch(LPCTSTR name)
{
    const size_t length = _tcslen(name);
    for (LPTSTR at = m_lpCmdLine; at != NULL && *at != '\0'; ++at) {
        const bool start = at == m_lpCmdLine || at[-1] == ' ' || at[-1] == '\t';
        if (!start || (*at != '-' && *at != '/') || _tcsnicmp(at + 1, name, length) != 0)
            continue;
        LPTSTR rest = at + 1 + length;
        if (*rest != '\0' && *rest != ' ' && *rest != '\t')
            continue;
        memmove(at, rest, (_tcslen(rest) + 1) * sizeof(TCHAR));
        return true;
    }
    return false;
}
