#include <classes/CWinApp.h>

#include <classes/Application.h>
#include <classes/CWaitCursor.h>
#include <classes/CWnd.h>

#include <afxres.h>

#include "application/ModuleState.h"
#include "threads/ThreadState.h"

#include <vector>

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

HKEY MakeKey(HKEY parent, LPCTSTR name)
{
    HKEY key = NULL;
    if (parent == NULL || name == NULL)
        return NULL;
    RegCreateKeyEx(parent, name, 0, NULL, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, NULL, &key,
                   NULL);
    return key;
}

/// A registry key that is closed at the end of the scope.
class ScopedKey
{
public:
    explicit ScopedKey(HKEY key) : key_(key) {}
    ~ScopedKey()
    {
        if (key_ != NULL)
            RegCloseKey(key_);
    }
    ScopedKey(const ScopedKey&) = delete;
    ScopedKey& operator=(const ScopedKey&) = delete;

    HKEY Get() const { return key_; }
    explicit operator bool() const { return key_ != NULL; }
    bool Read(LPCTSTR entry, DWORD type, void* data, DWORD& size) const
    {
        DWORD found = 0;
        return RegQueryValueEx(key_, entry, NULL, &found, static_cast<BYTE*>(data), &size) ==
                   ERROR_SUCCESS &&
               found == type;
    }
    bool Write(LPCTSTR entry, DWORD type, const void* data, DWORD size) const
    {
        return RegSetValueEx(key_, entry, 0, type, static_cast<const BYTE*>(data), size) ==
               ERROR_SUCCESS;
    }

private:
    HKEY key_;
};

// A file holds bytes as two letters each, A to P for the upper and the lower half.
CString SpellBytes(const BYTE* data, UINT size)
{
    CString text;
    for (UINT i = 0; i < size; ++i) {
        text += static_cast<TCHAR>('A' + (data[i] >> 4));
        text += static_cast<TCHAR>('A' + (data[i] & 0x0F));
    }
    return text;
}

bool ReadBytes(const CString& text, BYTE* data)
{
    for (int i = 0; i + 1 < text.GetLength(); i += 2) {
        const int high = text[i] - 'A';
        const int low = text[i + 1] - 'A';
        if (high < 0 || high > 15 || low < 0 || low > 15)
            return false;
        data[i / 2] = static_cast<BYTE>(high << 4 | low);
    }
    return true;
}

/// Gives bytes to a caller who frees them with delete[].
void HandOut(const std::vector<BYTE>& bytes, LPBYTE* data, UINT* size)
{
    *size = static_cast<UINT>(bytes.size());
    *data = new BYTE[bytes.size()];
    if (!bytes.empty())
        memcpy(*data, bytes.data(), bytes.size());
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
      m_dwRestartManagerSupportFlags(0), m_nAutosaveInterval(5 * 60 * 1000), m_hcurBeforeWait(NULL),
      m_nWaitCursorCount(0)
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

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (m_pszRegistryKey == NULL)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const ScopedKey section(GetSectionKey(lpszSection));
    DWORD value = 0;
    DWORD size = sizeof(value);
    if (!section || !section.Read(lpszEntry, REG_DWORD, &value, size))
        return static_cast<UINT>(nDefault);
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (m_pszRegistryKey == NULL) {
        CString text;
        text.Format(_T("%d"), nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, text, m_pszProfileName);
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    return section && section.Write(lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    if (m_pszRegistryKey == NULL) {
        std::vector<TCHAR> text(4096);
        const LPCTSTR otherwise = lpszDefault == NULL ? _T("") : lpszDefault;
        // A result of the size less one means that the value was cut short.
        while (::GetPrivateProfileString(lpszSection, lpszEntry, otherwise, text.data(),
                                         static_cast<DWORD>(text.size()),
                                         m_pszProfileName) == text.size() - 1)
            text.resize(2 * text.size());
        return text.data();
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    DWORD size = 0;
    if (!section || !section.Read(lpszEntry, REG_SZ, NULL, size))
        return lpszDefault;
    std::vector<TCHAR> text(size / sizeof(TCHAR) + 1); // The registry may lack the terminator.
    if (!section.Read(lpszEntry, REG_SZ, text.data(), size))
        return lpszDefault;
    return text.data();
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (m_pszRegistryKey == NULL)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (lpszEntry == NULL) {
        const ScopedKey application(GetAppRegistryKey());
        return application && DelRegTree(application.Get(), lpszSection) == ERROR_SUCCESS;
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    if (!section)
        return FALSE;
    if (lpszValue == NULL) {
        const LONG result = RegDeleteValue(section.Get(), lpszEntry);
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    const auto size = static_cast<DWORD>((_tcslen(lpszValue) + 1) * sizeof(TCHAR));
    return section.Write(lpszEntry, REG_SZ, lpszValue, size);
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    *ppData = NULL;
    *pBytes = 0;
    if (m_pszRegistryKey == NULL) {
        const CString text = GetProfileString(lpszSection, lpszEntry);
        if (text.IsEmpty())
            return FALSE;
        std::vector<BYTE> bytes(text.GetLength() / 2);
        if (!ReadBytes(text, bytes.data()))
            return FALSE;
        HandOut(bytes, ppData, pBytes);
        return TRUE;
    }
    const ScopedKey section(GetSectionKey(lpszSection));
    DWORD size = 0;
    if (!section || !section.Read(lpszEntry, REG_BINARY, NULL, size))
        return FALSE;
    std::vector<BYTE> bytes(size);
    if (!section.Read(lpszEntry, REG_BINARY, bytes.data(), size))
        return FALSE;
    HandOut(bytes, ppData, pBytes);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (m_pszRegistryKey == NULL)
        return WriteProfileString(lpszSection, lpszEntry, SpellBytes(pData, nBytes));
    const ScopedKey section(GetSectionKey(lpszSection));
    return section && section.Write(lpszEntry, REG_BINARY, pData, nBytes);
}

HKEY CWinApp::GetAppRegistryKey()
{
    const ScopedKey software(MakeKey(HKEY_CURRENT_USER, _T("Software")));
    const ScopedKey company(MakeKey(software.Get(), m_pszRegistryKey));
    return MakeKey(company.Get(), m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    const ScopedKey application(GetAppRegistryKey());
    return MakeKey(application.Get(), lpszSection);
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName)
{
    return static_cast<LONG>(SHDeleteKey(hParentKey, strKeyName));
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo)
{
    for (int i = 1; i < __argc; ++i) {
        LPCTSTR parameter = __targv[i];
        const bool flag = parameter[0] == '-' || parameter[0] == '/';
        rCmdInfo.ParseParam(flag ? parameter + 1 : parameter, flag, i + 1 == __argc);
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
    const int before = m_nWaitCursorCount;
    m_nWaitCursorCount = max(0, before + nCode);
    if (m_nWaitCursorCount > 0) {
        const HCURSOR former = ::SetCursor(::LoadCursor(NULL, IDC_WAIT));
        if (before == 0)
            m_hcurBeforeWait = former;
    } else if (before > 0) {
        ::SetCursor(m_hcurBeforeWait);
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
    using Show = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);
    // The viewer is loaded on demand: few programs need it, and not every system has it.
    static const HMODULE viewer = ::LoadLibrary(_T("hhctrl.ocx"));
    Show show = NULL;
    if (viewer != NULL)
        show = reinterpret_cast<Show>(reinterpret_cast<void*>(GetProcAddress(viewer, "HtmlHelpA")));
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
