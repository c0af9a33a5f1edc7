// The start of every program that has a CWinApp object and no WinMain of its own.
#include <classes/Application.h>
#include <classes/CMFCVisualManager.h>
#include <classes/CWnd.h>

#include "application/ModuleState.h"
#include "threads/ThreadState.h"

namespace {

int RunInstance(CWinApp& app)
{
    if (!app.InitApplication())
        return -1;
    if (app.InitInstance())
        return app.Run();
    if (app.m_pMainWnd != NULL)
        app.m_pMainWnd->DestroyWindow();
    return app.ExitInstance();
}

int RunProgram(HINSTANCE instance, HINSTANCE previous, LPTSTR commandLine, int show)
{
    CWinApp* app = AfxGetApp();
    if (app == NULL || !AfxWinInit(instance, previous, commandLine, show))
        return -1;
    const int exitCode = RunInstance(*app);
    CMFCVisualManager::DestroyInstance(TRUE);
    afxint::DropTemporaryObjects();
    if (afxint::Module().oleStarted)
        OleUninitialize();
    return exitCode;
}

} // namespace

#ifdef __clang__ // The Windows headers declare them without a mark.
#pragma clang diagnostic ignored "-Wdll-attribute-on-redeclaration"
#endif

extern "C" AFX_EXPORTED int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous,
                                           LPSTR commandLine, int show)
{
    return RunProgram(instance, previous, commandLine, show);
}

// The strings of the library are narrow, so the command line is taken over in that form.
extern "C" AFX_EXPORTED int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous,
                                            LPWSTR commandLine, int show)
{
    const int size = WideCharToMultiByte(CP_ACP, 0, commandLine, -1, NULL, 0, NULL, NULL);
    CString narrow;
    WideCharToMultiByte(CP_ACP, 0, commandLine, -1, narrow.GetBuffer(size), size, NULL, NULL);
    return RunProgram(instance, previous, narrow.GetBuffer(0), show);
}
