#include <afxwin.h>
#include <afxres.h>

#include <doctest/doctest.h>

#include "testing/NextDialog.h"

#include "tests/mfc/MessageBoxText.h"

#include <vector>

using umbra::testing::NextDialog;

namespace {

constexpr TCHAR company[] = _T("Umbra Tests");

/// A second application object, for its settings; the program's own stays what it is.
class CSettingsApp : public CWinApp
{
public:
    explicit CSettingsApp(LPCTSTR name) : CWinApp(name) {}
    using CWinApp::Enable3dControls;
    using CWinApp::Enable3dControlsStatic;
    using CWinApp::SetRegistryKey;
};

/// Settings in the registry, removed at the end.
struct RegistryApp
{
    CSettingsApp app{_T("Settings")};
    RegistryApp() { app.SetRegistryKey(company); }
    ~RegistryApp() { app.DelRegTree(HKEY_CURRENT_USER, CString("Software\\") + company); }
};

/// Settings in a file of the temporary folder.
struct FileApp
{
    CSettingsApp app{_T("Settings")};
    CString path;
    FileApp()
    {
        TCHAR folder[MAX_PATH];
        ::GetTempPath(MAX_PATH, folder);
        path.Format(_T("%sumbra-%lu.ini"), folder, ::GetCurrentProcessId());
        app.m_pszProfileName = _tcsdup(path);
    }
    ~FileApp() { ::DeleteFile(path); }
};

void CheckSettings(CWinApp& app)
{
    CHECK(app.GetProfileInt(_T("Window"), _T("Left"), 42) == 42);
    CHECK(app.WriteProfileInt(_T("Window"), _T("Left"), -7));
    CHECK(int(app.GetProfileInt(_T("Window"), _T("Left"), 42)) == -7);

    CHECK(app.GetProfileString(_T("Window"), _T("Title"), _T("none")) == _T("none"));
    CHECK(app.GetProfileString(_T("Window"), _T("Title")) == _T(""));
    CHECK(app.WriteProfileString(_T("Window"), _T("Title"), _T("A title")));
    CHECK(app.GetProfileString(_T("Window"), _T("Title"), _T("none")) == _T("A title"));
    const CString longText('x', 6000);
    CHECK(app.WriteProfileString(_T("Window"), _T("Long"), longText));
    CHECK(app.GetProfileString(_T("Window"), _T("Long")) == longText);

    CHECK(app.WriteProfileString(_T("Window"), _T("Title"), NULL));
    CHECK(app.GetProfileString(_T("Window"), _T("Title"), _T("gone")) == _T("gone"));
    CHECK(app.WriteProfileString(_T("Window"), NULL, NULL));
    CHECK(app.GetProfileInt(_T("Window"), _T("Left"), 42) == 42);

    BYTE written[] = {0, 1, 0x7F, 0x80, 0xFF};
    LPBYTE read = nullptr;
    UINT size = 99;
    CHECK_FALSE(app.GetProfileBinary(_T("Window"), _T("Place"), &read, &size));
    CHECK(read == nullptr);
    CHECK(app.WriteProfileBinary(_T("Window"), _T("Place"), written, sizeof(written)));
    REQUIRE(app.GetProfileBinary(_T("Window"), _T("Place"), &read, &size));
    CHECK(std::vector<BYTE>(read, read + size) == std::vector<BYTE>(written, written + 5));
    delete[] read;
}

} // namespace

TEST_CASE("the one application object is known everywhere")
{
    CWinApp* app = AfxGetApp();
    REQUIRE(app != nullptr);
    CHECK(AfxGetThread() == app);
    CHECK(app->m_hInstance == ::GetModuleHandle(nullptr));
    CHECK(app->m_nThreadID == ::GetCurrentThreadId());
    const CSettingsApp second(_T("Second"));
    CHECK(AfxGetApp() == app);
}

TEST_CASE("the application is named after its file unless it has a title of its own")
{
    CWinApp* app = AfxGetApp();
    CHECK(CString(app->m_pszExeName) == "test-mfc");
    CHECK(CString(AfxGetAppName()) == "test-mfc");
    CHECK(CString(app->m_pszProfileName) == "test-mfc.INI");
    CHECK(CString(app->m_pszHelpFilePath).Right(13) == "\\test-mfc.hlp");
    CHECK(CString(CSettingsApp(_T("Own name")).m_pszAppName) == _T("Own name"));
}

TEST_CASE("settings are kept in the registry after SetRegistryKey")
{
    RegistryApp settings;
    CHECK(CString(settings.app.m_pszProfileName) == "Settings");
    CheckSettings(settings.app);

    settings.app.WriteProfileInt(_T("Window"), _T("Top"), 5);
    DWORD value = 0;
    DWORD size = sizeof(value);
    CHECK(::SHGetValueA(HKEY_CURRENT_USER, "Software\\Umbra Tests\\Settings\\Window", "Top",
                        nullptr, &value, &size) == ERROR_SUCCESS);
    CHECK(value == 5);
}

TEST_CASE("the keys of the application and of a section can be had")
{
    RegistryApp settings;
    const HKEY application = settings.app.GetAppRegistryKey();
    const HKEY section = settings.app.GetSectionKey(_T("Colours"));
    CHECK(application != nullptr);
    CHECK(section != nullptr);
    HKEY below = nullptr;
    CHECK(::RegOpenKeyA(application, "Colours", &below) == ERROR_SUCCESS);
    for (HKEY key : {application, section, below})
        ::RegCloseKey(key);
}

TEST_CASE("without SetRegistryKey settings are kept in a file")
{
    FileApp settings;
    CheckSettings(settings.app);
    settings.app.WriteProfileInt(_T("Window"), _T("Top"), 5);
    CHECK(::GetPrivateProfileInt(_T("Window"), _T("Top"), 0, settings.path) == 5);
}

TEST_CASE("three-dimensional controls are taken for granted")
{
    CSettingsApp app(_T("Settings"));
    CHECK(app.Enable3dControls());
    CHECK(app.Enable3dControlsStatic());
}

TEST_CASE("switches for automation are taken out of the command line")
{
    CSettingsApp app(_T("Settings"));
    TCHAR line[] = _T("file.txt -embedding /Automations");
    app.m_lpCmdLine = line;
    CHECK(app.RunEmbedded());
    CHECK_FALSE(app.RunEmbedded());
    CHECK_FALSE(app.RunAutomated());
    CHECK(CString(line) == "file.txt  /Automations");
    app.m_lpCmdLine = NULL;
    CHECK_FALSE(app.RunAutomated());
}

TEST_CASE("standard cursors and icons are loaded")
{
    const CWinApp* app = AfxGetApp();
    CHECK(app->LoadStandardCursor(IDC_CROSS) == ::LoadCursor(NULL, IDC_CROSS));
    CHECK(app->LoadStandardIcon(IDI_APPLICATION) == ::LoadIcon(NULL, IDI_APPLICATION));
    CHECK(app->LoadIcon(4711) == nullptr);
}

TEST_CASE("message boxes carry the application's name and give back the button")
{
    TCHAR title[64] = _T("");
    CString text;
    NextDialog answer([&](HWND box) {
        ::GetWindowText(box, title, _countof(title));
        text = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDNO, 0);
    });
    CHECK(AfxMessageBox(_T("Go on?"), MB_YESNO | MB_ICONQUESTION) == IDNO);
    CHECK(text == "Go on?");
    CHECK(CString(title) == AfxGetAppName());
}

TEST_CASE("a message box shows a string resource")
{
    CString text;
    NextDialog answer([&](HWND box) {
        text = MessageBoxText(box);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    CHECK(AfxMessageBox(AFX_IDP_PARSE_INT) == IDOK);
    CString expected;
    expected.LoadString(AFX_IDP_PARSE_INT);
    CHECK(text == expected.GetString());
}

TEST_CASE("the main window owns message boxes, and a dialog over it before that")
{
    CWnd frame;
    REQUIRE(frame.CreateEx(0, AfxRegisterWndClass(0), _T("main"), WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                           0, 0, 200, 100, NULL, NULL));
    CWinThread* thread = AfxGetThread();
    thread->m_pMainWnd = &frame;
    const auto ownerOfBox = [] {
        HWND owner = nullptr;
        NextDialog answer([&](HWND box) {
            owner = ::GetWindow(box, GW_OWNER);
            ::PostMessage(box, WM_COMMAND, IDOK, 0);
        });
        AfxMessageBox(_T("text"));
        return owner;
    };
    CHECK(ownerOfBox() == frame.m_hWnd);

    CWnd popup;
    REQUIRE(popup.CreateEx(0, AfxRegisterWndClass(0), _T("popup"), WS_POPUP | WS_VISIBLE, 0, 0, 50,
                           50, frame.m_hWnd, NULL));
    popup.SetActiveWindow();
    CHECK(ownerOfBox() == popup.m_hWnd);
    popup.DestroyWindow();

    thread->m_pMainWnd = NULL;
    frame.DestroyWindow();
}

namespace {

/// Names the handler of the base in its map and calls it from a handler of its own.
class CLeavingApp : public CWinApp
{
public:
    void OnLeave() { CWinApp::OnAppExit(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CLeavingApp, CWinApp)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
    ON_COMMAND(ID_APP_ABOUT, &CLeavingApp::OnLeave)
END_MESSAGE_MAP()

} // namespace

TEST_CASE("a derived application may name the standard command that ends it")
{
    for (const UINT command : {ID_APP_EXIT, ID_APP_ABOUT}) {
        CAPTURE(command);
        CLeavingApp app;
        CWnd window;
        REQUIRE(
            window.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 9, 9, NULL, NULL));
        app.m_pMainWnd = &window;
        CHECK(app.OnCmdMsg(command, CN_COMMAND, NULL, NULL));
        CHECK(window.m_hWnd == NULL);
    }
}

TEST_CASE("an application supports of restarts what its flags say")
{
    struct CRestartedApp : CWinApp
    {
        explicit CRestartedApp(DWORD flags) { m_dwRestartManagerSupportFlags = flags; }
        std::vector<BOOL> Answers() const
        {
            return {SupportsRestartManager(),       SupportsApplicationRecovery(),
                    SupportsAutosaveAtRestart(),    SupportsAutosaveAtInterval(),
                    ReopenPreviousFilesAtRestart(), RestoreAutosavedFilesAtRestart()};
        }
    };
    using Answers = std::vector<BOOL>;
    CHECK(CRestartedApp(0).Answers() == Answers{0, 0, 0, 0, 0, 0});
    CHECK(CRestartedApp(AFX_RESTART_MANAGER_SUPPORT_RESTART).Answers() ==
          Answers{1, 0, 0, 0, 0, 0});
    CHECK(CRestartedApp(AFX_RESTART_MANAGER_SUPPORT_NO_AUTOSAVE).Answers() ==
          Answers{1, 1, 0, 0, 1, 0});
    CHECK(CRestartedApp(AFX_RESTART_MANAGER_SUPPORT_RESTART_ASPECTS).Answers() ==
          Answers{1, 0, 1, 0, 1, 1});
    CHECK(CRestartedApp(AFX_RESTART_MANAGER_SUPPORT_RECOVERY_ASPECTS).Answers() ==
          Answers{0, 1, 0, 1, 0, 1});
    CHECK(CRestartedApp(AFX_RESTART_MANAGER_SUPPORT_ALL_ASPECTS).Answers() ==
          Answers{1, 1, 1, 1, 1, 1});
}
