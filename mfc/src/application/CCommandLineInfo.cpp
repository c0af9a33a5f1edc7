#include <classes/CCommandLineInfo.h>

CCommandLineInfo::CCommandLineInfo()
    : m_bShowSplash(TRUE), m_bRunEmbedded(FALSE), m_bRunAutomated(FALSE), m_nShellCommand(FileNew)
{
}

void CCommandLineInfo::ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast)
{
    const auto is = [&](LPCTSTR name) { return _tcsicmp(pszParam, name) == 0; };
    if (bFlag) {
        if (is(_T("pt"))) {
            m_nShellCommand = FilePrintTo;
        } else if (is(_T("p"))) {
            m_nShellCommand = FilePrint;
        } else if (is(_T("dde"))) {
            m_nShellCommand = FileDDE;
        } else if (is(_T("Register")) || is(_T("Regserver"))) {
            m_nShellCommand = AppRegister;
        } else if (is(_T("Unregister")) || is(_T("Unregserver"))) {
            m_nShellCommand = AppUnregister;
        } else if (is(_T("Embedding"))) {
            m_bRunEmbedded = TRUE;
        } else if (is(_T("Automation"))) {
            m_bRunAutomated = TRUE;
        }
    } else {
        // After /pt come the file, the printer, its driver and its port.
        CString* const targets[] = {&m_strFileName, &m_strPrinterName, &m_strDriverName,
                                    &m_strPortName};
        const int count = m_nShellCommand == FilePrintTo ? 4 : 1;
        for (int i = 0; i < count; ++i) {
            if (targets[i]->IsEmpty()) {
                *targets[i] = pszParam;
                break;
            }
        }
    }
    if (!bLast)
        return;
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
        m_nShellCommand = FileOpen;
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}
