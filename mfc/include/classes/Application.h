// The functions that need no object: the program, its start, messages, window classes.
#pragma once

#include <classes/CWinApp.h>
#include <classes/Modules.h>
#include <classes/Trace.h>

/// The program's object; NULL in a program without one.
CWinApp* AFXAPI AfxGetApp();
LPCTSTR AFXAPI AfxGetAppName();

/// Shows a message through CWinApp::DoMessageBox and returns the button, or 0.
int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

/// Prepares the library; WinMain calls it, console programs call it themselves.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                       int nCmdShow);

/// Registers a window class made from the arguments and returns its name, which is good until the
/// next call in the thread. Throws CResourceException when that fails.
LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = 0, HBRUSH hbrBackground = 0,
                                   HICON hIcon = 0);
/// Registers a window class; TRUE also when it is registered already.
BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);

BOOL AFXAPI AfxOleInit();
BOOL AFXAPI AfxInitRichEdit();
BOOL AFXAPI AfxInitRichEdit2();
/// Controls of other makers are not part of the subset; nothing happens.
void AFXAPI AfxEnableControlContainer();

/// Ends the program at once.
[[noreturn]] void AFXAPI AfxAbort();
BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT nBytes, BOOL bReadWrite = TRUE);
BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);
