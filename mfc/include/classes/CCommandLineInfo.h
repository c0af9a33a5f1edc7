// What the command line asks the program to do.
#pragma once

#include <classes/CObject.h>
#include <classes/CString.h>

/// Takes the parameters of the command line one by one; CWinApp::ParseCommandLine feeds it.
class AFX_EXPORTED CCommandLineInfo : public CObject
{
public:
    CCommandLineInfo();

    /// Called for each parameter. A flag comes without its leading '/' or '-'.
    virtual void ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast);

    BOOL m_bShowSplash;
    BOOL m_bRunEmbedded;  ///< /Embedding was given.
    BOOL m_bRunAutomated; ///< /Automation was given.
    enum {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    } m_nShellCommand;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;
};
