#include <classes/Application.h>

#include <classes/CWnd.h>

#include <ole2.h>

#include "application/ModuleState.h"
#include "threads/ThreadState.h"

CWinApp* AFXAPI AfxGetApp()
{
    return afxint::Module().app;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    const CWinApp* app = AfxGetApp();
    return app == NULL || app->m_pszAppName == NULL ? _T("") : app->m_pszAppName;
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    if (CWinApp* app = AfxGetApp())
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBox(GetActiveWindow(), lpszText, NULL, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    if (!text.LoadString(nIDPrompt))
        TRACE(_T("No module has string %u for a message box.\n"), nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    SetErrorMode(SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    AFX_MODULE_STATE& program = afxint::Module();
    program.instance = hInstance;
    program.resource = hInstance;
    afxint::WatchSystemLoops();
    CWinApp* app = AfxGetApp();
    if (app == NULL)
        return TRUE;
    app->m_hInstance = hInstance;
    app->m_lpCmdLine = lpCmdLine;
    app->m_nCmdShow = nCmdShow;
    app->SetNames();
    return TRUE;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground,
                                   HICON hIcon)
{
    TCHAR(&name)[128] = afxint::CurrentThread().className;
    const HINSTANCE instance = AfxGetInstanceHandle();
    _sntprintf(name, _countof(name), _T("Afx:%p:%x:%p:%p:%p"), static_cast<void*>(instance),
               nClassStyle, static_cast<void*>(hCursor), static_cast<void*>(hbrBackground),
               static_cast<void*>(hIcon));
    WNDCLASS windowClass{};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = DefWindowProc; // Each window gets its object's procedure later.
    windowClass.hInstance = instance;
    windowClass.hIcon = hIcon;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return name;
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass)
{
    WNDCLASS present;
    if (GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &present))
        return TRUE;
    return RegisterClass(lpWndClass) != 0;
}

BOOL AFXAPI AfxOleInit()
{
    if (afxint::Module().oleStarted)
        return TRUE;
    if (FAILED(OleInitialize(NULL)))
        return FALSE;
    afxint::Module().oleStarted = true;
    return TRUE;
}

BOOL AFXAPI AfxInitRichEdit()
{
    return ::LoadLibrary(_T("riched32.dll")) != NULL;
}

BOOL AFXAPI AfxInitRichEdit2()
{
    return ::LoadLibrary(_T("riched20.dll")) != NULL;
}

void AFXAPI AfxEnableControlContainer()
{
}
