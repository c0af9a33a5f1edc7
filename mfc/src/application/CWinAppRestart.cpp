// What a program wants when the system restarts it.
#include <classes/CWinApp.h>

BOOL CWinApp::SupportsRestartManager() const
{
    return (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_SUPPORT_RESTART) != 0;
}

BOOL CWinApp::SupportsApplicationRecovery() const
{
    return (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_SUPPORT_RECOVERY) != 0;
}

BOOL CWinApp::SupportsAutosaveAtRestart() const
{
    return (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_AUTOSAVE_AT_RESTART) != 0;
}

BOOL CWinApp::SupportsAutosaveAtInterval() const
{
    return (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_AUTOSAVE_AT_INTERVAL) != 0;
}

BOOL CWinApp::ReopenPreviousFilesAtRestart() const
{
    return (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_REOPEN_PREVIOUS_FILES) != 0;
}

BOOL CWinApp::RestoreAutosavedFilesAtRestart() const
{
    return (m_dwRestartManagerSupportFlags & AFX_RESTART_MANAGER_RESTORE_AUTOSAVED_FILES) != 0;
}
