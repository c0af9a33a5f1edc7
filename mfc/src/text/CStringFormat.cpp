// Strings composed by a format.
#include <classes/CString.h>

#include <classes/CException.h>

#include "text/FormatResource.h"

namespace {

constexpr DWORD emptyMessage = 235; ///< ERROR_NO_WORK_DONE, which older headers lack.

} // namespace

CString afxint::LoadFormat(UINT id)
{
    CString format;
    if (!format.LoadString(id))
        AfxThrowResourceException();
    return format;
}

void CString::FormatV(PCXSTR pszFormat, va_list args)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    va_list measured;
    va_copy(measured, args);
    const int length = _vscprintf(pszFormat, measured);
    va_end(measured);
    if (length < 0)
        AfxThrowInvalidArgException();
    // Into a string of its own: the arguments may be parts of this one.
    CString result;
    _vsnprintf(result.GetBufferSetLength(length), static_cast<size_t>(length) + 1, pszFormat, args);
    *this = result;
}

void CString::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    LPTSTR text = NULL;
    ::SetLastError(ERROR_SUCCESS);
    ::FormatMessage(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, pszFormat, 0, 0,
                    reinterpret_cast<LPTSTR>(&text), 0, pArgList);
    const DWORD error = ::GetLastError();
    if (text == NULL && error != ERROR_SUCCESS && error != emptyMessage)
        AfxThrowMemoryException();
    SetString(text);
    ::LocalFree(text);
}

void CString::FormatPlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CString::FormatPlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    FormatV(afxint::LoadFormat(formatId), args);
    va_end(args);
}

void CString::AppendPlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    CString added;
    added.FormatV(format, args);
    Append(added);
    va_end(args);
}

void CString::AppendPlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    CString added;
    added.FormatV(afxint::LoadFormat(formatId), args);
    Append(added);
    va_end(args);
}

void CString::MessagePlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatMessageV(format, &args);
    va_end(args);
}

void CString::MessagePlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    FormatMessageV(afxint::LoadFormat(formatId), &args);
    va_end(args);
}
