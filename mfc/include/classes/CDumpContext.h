// Text about objects for a person who looks for a fault.
#pragma once

#include <classes/CObject.h>
#include <classes/CTime.h>
#include <classes/Platform.h>

class CFile;

/// Writes values as text: to a file, or to the debugger when there is none.
class AFX_EXPORTED CDumpContext
{
public:
    /// The file stays the caller's and has to live as long.
    CDumpContext(CFile* pFile = NULL);
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    /// Above 0, collections write out their elements, too.
    int GetDepth() const;
    void SetDepth(int nNewDepth);

    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(LPCWSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob);
    CDumpContext& operator<<(BYTE by);
    CDumpContext& operator<<(WORD w);
    CDumpContext& operator<<(UINT u);
    CDumpContext& operator<<(LONG l);
    CDumpContext& operator<<(DWORD dw);
    CDumpContext& operator<<(int n);
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(float f);
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(HWND h);
    CDumpContext& operator<<(HDC h);
    CDumpContext& operator<<(HMENU h);
    CDumpContext& operator<<(HACCEL h);
    CDumpContext& operator<<(HFONT h);

    CDumpContext& DumpAsHex(BYTE b);
    CDumpContext& DumpAsHex(WORD w);
    CDumpContext& DumpAsHex(int n);
    CDumpContext& DumpAsHex(LONG l);
    CDumpContext& DumpAsHex(UINT u);
    CDumpContext& DumpAsHex(DWORD dw);
    CDumpContext& DumpAsHex(LONGLONG n);
    CDumpContext& DumpAsHex(ULONGLONG n);
    /// The bytes in lines of nWidth, each behind the text given.
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);
    void Flush();

private:
    CDumpContext& Write(LPCTSTR text);
    CDumpContext& WriteFormat(LPCTSTR format, ...);

    CFile* file_;
    int depth_ = 0;
};

AFX_EXPORTED CDumpContext& AFXAPI operator<<(CDumpContext& dc, SIZE size);
AFX_EXPORTED CDumpContext& AFXAPI operator<<(CDumpContext& dc, POINT point);
AFX_EXPORTED CDumpContext& AFXAPI operator<<(CDumpContext& dc, const RECT& rect);
AFX_EXPORTED CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTime time);
AFX_EXPORTED CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTimeSpan timeSpan);

/// The library's own context, which writes to the debugger.
extern AFX_EXPORTED CDumpContext afxDump;
/// Writes an object to afxDump; made to be called from a debugger.
AFX_EXPORTED void AFXAPI AfxDump(const CObject* pOb);
