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

// The command line in the characters of the library, whichever WinMain a program begins with.
#ifdef UNICODE
LPTSTR CommandLineOf(LPSTR)
{
    return ::PathGetArgs(::GetCommandLine()); // The narrow one may have lost characters.
}

LPTSTR CommandLineOf(LPWSTR commandLine)
{
    return commandLine;
}
#else
LPTSTR CommandLineOf(LPSTR commandLine)
{
    return commandLine;
}

LPTSTR CommandLineOf(LPWSTR commandLine)
{
    static CString narrow; // As long as the program, which may keep m_lpCmdLine.
    narrow = commandLine;
    return narrow.GetBuffer();
}
#endif

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
    return RunProgram(instance, previous, CommandLineOf(commandLine), show);
}

extern "C" AFX_EXPORTED int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous,
                                            LPWSTR commandLine, int show)
{
    return RunProgram(instance, previous, CommandLineOf(commandLine), show);
}
