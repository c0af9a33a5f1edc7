// A program that does what its command line says and ends with what it saw:
//   1  the common controls' library was loaded before
//   2  it is loaded now
//   4  the window that was asked for exists
#include <afxwin.h>
#include <afxcmn.h>

#include "LateControlsResource.h"

class CTemplateDialog : public CDialog
{
public:
    bool Has(UINT id, UINT controlId)
    {
        const bool found = Create(id) && GetDlgItem(controlId) != NULL;
        DestroyWindow();
        return found;
    }
};

class CLateControlsApp : public CWinApp
{
    static bool IsLoaded() { return ::GetModuleHandle(_T("comctl32")) != NULL; }

    bool Do(const CString& task)
    {
        if (task == _T("plain"))
            return CTemplateDialog().Has(IDD_PLAIN, IDOK);
        if (task == _T("template"))
            return CTemplateDialog().Has(IDD_WITH_LIST, IDC_LATE_LIST);
        CWnd window;
        const bool made = window.CreateEx(0, WC_TREEVIEW, _T(""), WS_POPUP, 0, 0, 9, 9, NULL, NULL);
        window.DestroyWindow();
        return made;
    }

    BOOL InitInstance() override
    {
        m_seen = IsLoaded() ? 1 : 0;
        m_seen |= Do(m_lpCmdLine) ? 4 : 0;
        m_seen |= IsLoaded() ? 2 : 0;
        return FALSE;
    }

    int ExitInstance() override { return m_seen; }

    int m_seen = 0;
} theApp;
