// The functions that need no object: the program, its start, messages, window classes.
#pragma once

#include <classes/CWinApp.h>
#include <classes/Modules.h>
#include <classes/Trace.h>

/// The program's object; NULL in a program without one.
AFX_EXPORTED CWinApp* AFXAPI AfxGetApp();
AFX_EXPORTED LPCTSTR AFXAPI AfxGetAppName();

/// Shows a message through CWinApp::DoMessageBox and returns the button, or 0.
AFX_EXPORTED int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_EXPORTED int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK,
                                      UINT nIDHelp = static_cast<UINT>(-1));

/// Prepares the library; WinMain calls it, console programs call it themselves.
AFX_EXPORTED BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                    int nCmdShow);

/// Registers a window class made from the arguments and returns its name, which is good until the
/// next call in the thread. Throws CResourceException when that fails.
AFX_EXPORTED LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = 0,
                                                HBRUSH hbrBackground = 0, HICON hIcon = 0);
/// Registers a window class; TRUE also when it is registered already.
AFX_EXPORTED BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);

AFX_EXPORTED BOOL AFXAPI AfxOleInit();
AFX_EXPORTED BOOL AFXAPI AfxInitRichEdit();
AFX_EXPORTED BOOL AFXAPI AfxInitRichEdit2();
/// Controls of other makers are not part of the subset; nothing happens.
AFX_EXPORTED void AFXAPI AfxEnableControlContainer();

/// Ends the program at once.
[[noreturn]] AFX_EXPORTED void AFXAPI AfxAbort();
AFX_EXPORTED BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT nBytes, BOOL bReadWrite = TRUE);
AFX_EXPORTED BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);
/// A template, so that NULL means narrow text without ambiguity.
template <class Char, std::enable_if_t<std::is_same_v<Char, wchar_t>, int> = 0>
BOOL AfxIsValidString(const Char* lpsz, int nLength = -1)
{
    const UINT_PTR length = nLength < 0 ? INT_MAX : static_cast<UINT_PTR>(nLength);
    return lpsz != NULL && !::IsBadStringPtrW(lpsz, length);
}
