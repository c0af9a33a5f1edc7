#include <classes/Application.h>
#include <classes/Conversions.h>

BOOL AFXAPI AfxAssertFailedLine(LPCSTR file, int line)
{
    char text[600];
    _snprintf(text, sizeof(text) - 1,
              "Assertion failed in %s, line %d.\n\nRetry stops in the debugger.", file, line);
    text[sizeof(text) - 1] = '\0';
    OutputDebugStringA(text);
    const int answer = MessageBoxA(NULL, text, CT2CA(AfxGetAppName()),
                                   MB_ABORTRETRYIGNORE | MB_ICONERROR | MB_TASKMODAL);
    if (answer == IDABORT)
        AfxAbort();
    return answer == IDRETRY;
}

void AFXAPI AfxDebugBreak()
{
    DebugBreak();
}

void AFX_CDECL AfxTrace(LPCTSTR format, ...)
{
    TCHAR line[1024];
    va_list arguments;
    va_start(arguments, format);
    _vsntprintf(line, _countof(line) - 1, format, arguments);
    va_end(arguments);
    line[_countof(line) - 1] = '\0';
    OutputDebugString(line);
}

void AFXAPI AfxAbort()
{
    abort();
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT nBytes, BOOL bReadWrite)
{
    return lp != NULL && !IsBadReadPtr(lp, nBytes) &&
           (!bReadWrite || !IsBadWritePtr(const_cast<void*>(lp), nBytes));
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength)
{
    const UINT_PTR length = nLength < 0 ? INT_MAX : static_cast<UINT_PTR>(nLength);
    return lpsz != NULL && !IsBadStringPtrA(lpsz, length);
}
