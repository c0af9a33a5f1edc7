#include <classes/CDumpContext.h>

#include <classes/CFile.h>
#include <classes/CPoint.h>
#include <classes/CRect.h>
#include <classes/CString.h>

CDumpContext afxDump;

CDumpContext::CDumpContext(CFile* pFile) : file_(pFile)
{
}

int CDumpContext::GetDepth() const
{
    return depth_;
}

void CDumpContext::SetDepth(int nNewDepth)
{
    depth_ = nNewDepth;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz)
{
    return Write(lpsz == NULL ? _T("(NULL)") : CString(lpsz).GetString());
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz)
{
    return Write(lpsz == NULL ? _T("(NULL)") : CString(lpsz).GetString());
}

CDumpContext& CDumpContext::operator<<(const void* lp)
{
    return WriteFormat(_T("$%0*I64X"), static_cast<int>(2 * sizeof(lp)),
                       static_cast<ULONGLONG>(reinterpret_cast<ULONG_PTR>(lp)));
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb)
{
    if (pOb == NULL)
        return Write(_T("NULL"));
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const CObject& ob)
{
    return *this << &ob;
}

CDumpContext& CDumpContext::operator<<(BYTE by)
{
    return *this << static_cast<int>(by);
}

CDumpContext& CDumpContext::operator<<(WORD w)
{
    return *this << static_cast<int>(w);
}

CDumpContext& CDumpContext::operator<<(UINT u)
{
    return *this << static_cast<ULONGLONG>(u);
}

CDumpContext& CDumpContext::operator<<(LONG l)
{
    return *this << static_cast<LONGLONG>(l);
}

CDumpContext& CDumpContext::operator<<(DWORD dw)
{
    return *this << static_cast<ULONGLONG>(dw);
}

CDumpContext& CDumpContext::operator<<(int n)
{
    return *this << static_cast<LONGLONG>(n);
}

CDumpContext& CDumpContext::operator<<(LONGLONG n)
{
    return WriteFormat(_T("%I64d"), n);
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n)
{
    return WriteFormat(_T("%I64u"), n);
}

CDumpContext& CDumpContext::operator<<(float f)
{
    return *this << static_cast<double>(f);
}

CDumpContext& CDumpContext::operator<<(double d)
{
    return WriteFormat(_T("%g"), d);
}

CDumpContext& CDumpContext::operator<<(HWND h)
{
    return *this << static_cast<const void*>(h);
}

CDumpContext& CDumpContext::operator<<(HDC h)
{
    return *this << static_cast<const void*>(h);
}

CDumpContext& CDumpContext::operator<<(HMENU h)
{
    return *this << static_cast<const void*>(h);
}

CDumpContext& CDumpContext::operator<<(HACCEL h)
{
    return *this << static_cast<const void*>(h);
}

CDumpContext& CDumpContext::operator<<(HFONT h)
{
    return *this << static_cast<const void*>(h);
}

CDumpContext& CDumpContext::DumpAsHex(BYTE b)
{
    return WriteFormat(_T("0x%02X"), b);
}

CDumpContext& CDumpContext::DumpAsHex(WORD w)
{
    return WriteFormat(_T("0x%04X"), w);
}

CDumpContext& CDumpContext::DumpAsHex(int n)
{
    return WriteFormat(_T("0x%X"), n);
}

CDumpContext& CDumpContext::DumpAsHex(LONG l)
{
    return WriteFormat(_T("0x%lX"), l);
}

CDumpContext& CDumpContext::DumpAsHex(UINT u)
{
    return WriteFormat(_T("0x%X"), u);
}

CDumpContext& CDumpContext::DumpAsHex(DWORD dw)
{
    return WriteFormat(_T("0x%lX"), dw);
}

CDumpContext& CDumpContext::DumpAsHex(LONGLONG n)
{
    return WriteFormat(_T("0x%I64X"), n);
}

CDumpContext& CDumpContext::DumpAsHex(ULONGLONG n)
{
    return WriteFormat(_T("0x%I64X"), n);
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth)
{
    ASSERT(nBytes >= 0 && nWidth > 0);
    if (pby == NULL || nWidth <= 0)
        return;
    for (int i = 0; i < nBytes; ++i) {
        if (i % nWidth == 0)
            Write(lpszLine == NULL ? _T("") : lpszLine);
        WriteFormat(_T(" %02X"), pby[i]);
        if (i % nWidth == nWidth - 1 || i == nBytes - 1)
            Write(_T("\n"));
    }
}

void CDumpContext::Flush()
{
    if (file_ != NULL)
        file_->Flush();
}

CDumpContext& CDumpContext::Write(LPCTSTR text)
{
    if (file_ == NULL)
        OutputDebugString(text);
    else
        file_->Write(text, static_cast<UINT>(_tcslen(text) * sizeof(TCHAR)));
    return *this;
}

/// For single values, whose text is short.
CDumpContext& CDumpContext::WriteFormat(LPCTSTR format, ...)
{
    TCHAR text[64];
    va_list arguments;
    va_start(arguments, format);
    _vsntprintf(text, _countof(text) - 1, format, arguments);
    va_end(arguments);
    text[_countof(text) - 1] = '\0';
    return Write(text);
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, SIZE size)
{
    return dc << "(" << size.cx << " x " << size.cy << ")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, POINT point)
{
    return dc << "(" << point.x << ", " << point.y << ")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, const RECT& rect)
{
    return dc << "(L " << rect.left << ", T " << rect.top << ", R " << rect.right << ", B "
              << rect.bottom << ")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTime time)
{
    struct tm parts;
    if (time.GetLocalTm(&parts) == NULL)
        return dc << "CTime(invalid #" << time.GetTime() << ")";
    return dc << "CTime(\"" << time.Format(_T("%Y-%m-%d %H:%M:%S")) << "\")";
}

CDumpContext& AFXAPI operator<<(CDumpContext& dc, CTimeSpan timeSpan)
{
    return dc << "CTimeSpan(" << timeSpan.GetDays() << " days, " << timeSpan.GetHours()
              << " hours, " << timeSpan.GetMinutes() << " minutes, " << timeSpan.GetSeconds()
              << " seconds)";
}

void AFXAPI AfxDump(const CObject* pOb)
{
    afxDump << pOb;
}
