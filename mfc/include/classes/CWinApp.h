// The program as an object.
#pragma once

#include <classes/CCommandLineInfo.h>
#include <classes/CString.h>
#include <classes/CWinThread.h>

enum AFX_HELP_TYPE { afxWinHelp = 0, afxHTMLHelp = 1 };

#define _AFX_MRU_COUNT 4

class CDC;
class CPrintDialog;

// What a program wants when the system restarts it. The subset registers nothing with the restart
// manager; programs set these flags all the same.
#define AFX_RESTART_MANAGER_SUPPORT_RESTART 0x01
#define AFX_RESTART_MANAGER_SUPPORT_RECOVERY 0x02
#define AFX_RESTART_MANAGER_AUTOSAVE_AT_RESTART 0x04
#define AFX_RESTART_MANAGER_AUTOSAVE_AT_INTERVAL 0x08
#define AFX_RESTART_MANAGER_REOPEN_PREVIOUS_FILES 0x10
#define AFX_RESTART_MANAGER_RESTORE_AUTOSAVED_FILES 0x20
#define AFX_RESTART_MANAGER_SUPPORT_NO_AUTOSAVE 0x13
#define AFX_RESTART_MANAGER_SUPPORT_RESTART_ASPECTS 0x35
#define AFX_RESTART_MANAGER_SUPPORT_RECOVERY_ASPECTS 0x2A
#define AFX_RESTART_MANAGER_SUPPORT_ALL_ASPECTS 0x3F

/// The program: its start and end, its name and settings, its resources and messages. A program
/// has one global object of a class derived from this one; the library's WinMain does the rest.
class AFX_EXPORTED CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /// The name defaults to string AFX_IDS_APP_TITLE, else to the name of the program file.
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    ~CWinApp() override;
    void Dump(CDumpContext& dc) const override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine; ///< Without the program's name.
    int m_nCmdShow;     ///< How the main window is to be shown first.

    // Strings made with malloc; a program that replaces one frees the old one and sets one made
    // with _tcsdup.
    LPCTSTR m_pszAppName;
    LPCTSTR m_pszRegistryKey; ///< Set by SetRegistryKey; NULL means that settings go to a file.
    LPCTSTR m_pszExeName;     ///< Without folder and extension.
    LPCTSTR m_pszHelpFilePath;
    LPCTSTR m_pszProfileName; ///< The .ini file, or the name below the company's key.
    LPCTSTR m_pszAppID;
    BOOL m_bHelpMode;
    AFX_HELP_TYPE m_eHelpType;

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;

    /// Settings, in the registry after SetRegistryKey, else in the .ini file.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = NULL);
    /// A NULL value removes the entry, a NULL entry the whole section.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// The caller frees *ppData with delete[].
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    /// HKEY_CURRENT_USER\Software\company\application; the caller closes it. NULL on failure.
    HKEY GetAppRegistryKey();
    /// The section's key below it; the caller closes it. NULL on failure.
    HKEY GetSectionKey(LPCTSTR lpszSection);
    /// Deletes a key with everything below it.
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName);

    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    /// TRUE if the command line has /Embedding (/Automation), which is taken out of it.
    BOOL RunEmbedded();
    BOOL RunAutomated();

    /// FALSE when there is no printer. The blocks of memory stay the program's.
    BOOL GetPrinterDeviceDefaults(PRINTDLG* pPrintDlg);
    /// Gives the context of the selected printer; FALSE when there is none.
    BOOL CreatePrinterDC(CDC& dc);
    /// Takes over the blocks of memory that name a printer; both NULL stand for the default one.
    void SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld = TRUE);
    /// Shows the dialog for the selected printer, and selects the one that it chooses.
    INT_PTR DoPrintDialog(CPrintDialog* pPD);

    void HideApplication();
    void EnableHtmlHelp();
    AFX_HELP_TYPE GetHelpMode();
    void SetHelpMode(AFX_HELP_TYPE eHelpType);
    /// Taskbar thumbnails are not part of the subset.
    BOOL EnableTaskbarInteraction(BOOL bEnable = TRUE);
    virtual BOOL IsTaskbarInteractionEnabled();

    /// What m_dwRestartManagerSupportFlags says.
    virtual BOOL SupportsRestartManager() const;
    virtual BOOL SupportsApplicationRecovery() const;
    virtual BOOL SupportsAutosaveAtRestart() const;
    virtual BOOL SupportsAutosaveAtInterval() const;
    virtual BOOL ReopenPreviousFilesAtRestart() const;
    virtual BOOL RestoreAutosavedFilesAtRestart() const;

    /// To be overridden: one-time preparations before InitInstance.
    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
    BOOL ProcessMessageFilter(int code, LPMSG lpMsg) override;

    /// Shows every message box of AfxMessageBox.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// 1 shows the hourglass, -1 takes one call back, 0 shows it again if it should be shown.
    virtual void DoWaitCursor(int nCode);
    virtual BOOL SaveAllModified();
    virtual BOOL OnDDECommand(LPTSTR lpszCommand);
    virtual BOOL Register();
    virtual BOOL Unregister();
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);

    // Handlers that programs name in their message maps.
    afx_msg void OnHelp();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpUsing();
    afx_msg void OnContextHelp();
    /// Closes the main window; in the map of the base under ID_APP_EXIT.
    afx_msg void OnAppExit();

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    void SetAppID(LPCTSTR lpcszAppID);
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    /// Dialogs look three-dimensional anyway.
    BOOL Enable3dControls();
    BOOL Enable3dControlsStatic();

    /// For ID_FILE_PRINT_SETUP in the program's map: lets the user select a printer.
    afx_msg void OnFilePrintSetup();

    DWORD m_dwRestartManagerSupportFlags;
    int m_nAutosaveInterval; ///< Milliseconds.

    DECLARE_MESSAGE_MAP()

private:
    friend AFX_EXPORTED BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance,
                                               LPTSTR lpCmdLine, int nCmdShow);
    void SetNames();
    void GiveHelp(DWORD_PTR data, UINT winHelpCommand, UINT htmlHelpCommand);
    bool TakeSwitch(LPCTSTR name);

    HGLOBAL printerNames_; ///< The selected printer; NULL: the default one is to be asked for.
    HGLOBAL printerMode_;
    HCURSOR cursorBeforeWait_;
    int waitCursors_;
};
