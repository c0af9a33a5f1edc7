// A host of the class library alone. Ends with 0.
#include <afxwin.h>

class CLibraryApp : public CWinApp
{
    BOOL InitInstance() override
    {
        CString text;
        text.Format(_T("%d"), 5);
        CWnd window;
        if (text == _T("5") &&
            window.CreateEx(0, AfxRegisterWndClass(0), text, WS_POPUP, 0, 0, 9, 9, NULL, NULL))
            m_nResult = 0;
        return FALSE;
    }

    int ExitInstance() override { return m_nResult; }

    int m_nResult = 1;
} theApp;
