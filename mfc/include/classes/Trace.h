// The TRACE macros: lines for the debugger, in debug builds only.
#pragma once

#include <classes/CString.h>

/// The parts of the library that the three-part form of TRACE names; all are written out.
enum AfxTraceCategory {
    traceAppMsg = 1,
    traceDumpContext,
    traceWinMsg,
    traceMemory,
    traceCmdRouting,
    traceHtml,
    traceSocket,
    traceOle,
    traceDatabase,
    traceInternet
};

namespace afxint {

// A string object cannot be passed through "..."; its characters can.
template <class... Arguments>
void Trace(LPCTSTR format, const Arguments&... arguments)
{
    ::AfxTrace(format, PlainArgument<TCHAR>(arguments)...);
}

template <class... Arguments>
void Trace(DWORD, UINT, LPCTSTR format, const Arguments&... arguments)
{
    ::AfxTrace(format, PlainArgument<TCHAR>(arguments)...);
}

} // namespace afxint

#ifdef _DEBUG
#define TRACE(...) ::afxint::Trace(__VA_ARGS__)
#else
#define TRACE(...) ((void)0)
#endif
#define TRACE0(format) TRACE(format)
#define TRACE1(format, p1) TRACE(format, p1)
#define TRACE2(format, p1, p2) TRACE(format, p1, p2)
#define TRACE3(format, p1, p2, p3) TRACE(format, p1, p2, p3)

#ifdef UNICODE
namespace afxint {

// TRACE0 to TRACE3 take narrow formats, too; their %s means the strings of this build.
template <class... Arguments>
void Trace(LPCSTR format, const Arguments&... arguments)
{
    Trace(CString(format).GetString(), arguments...);
}

} // namespace afxint
#endif
