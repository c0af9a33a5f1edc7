// Strings composed by a format.
#pragma once

#include <classes/CString.h>

#include <classes/CException.h>

#include "text/CharacterTraits.h"
#include "text/FormatResource.h"

namespace afxint {

constexpr DWORD emptyMessage = 235; ///< ERROR_NO_WORK_DONE, which older headers lack.

} // namespace afxint

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::FormatV(PCXSTR pszFormat, va_list args)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    va_list measured;
    va_copy(measured, args);
    const int length = afxint::CharacterTraits<XCHAR>::PrintedLength(pszFormat, measured);
    va_end(measured);
    if (length < 0)
        AfxThrowInvalidArgException();
    // Into a string of its own: the arguments may be parts of this one.
    CStringT result;
    afxint::CharacterTraits<XCHAR>::Print(result.GetBufferSetLength(length),
                                          static_cast<size_t>(length) + 1, pszFormat, args);
    *this = result;
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    ::SetLastError(ERROR_SUCCESS);
    const PXSTR text = afxint::CharacterTraits<XCHAR>::PrintMessage(pszFormat, pArgList);
    const DWORD error = ::GetLastError();
    if (text == NULL && error != ERROR_SUCCESS && error != afxint::emptyMessage)
        AfxThrowMemoryException();
    SetString(text);
    ::LocalFree(text);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::FormatPlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::FormatPlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    FormatV(afxint::LoadFormat<CStringT>(formatId), args);
    va_end(args);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::AppendPlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    CStringT added;
    added.FormatV(format, args);
    Append(added);
    va_end(args);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::AppendPlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    CStringT added;
    added.FormatV(afxint::LoadFormat<CStringT>(formatId), args);
    Append(added);
    va_end(args);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::MessagePlain(PCXSTR format, ...)
{
    va_list args;
    va_start(args, format);
    FormatMessageV(format, &args);
    va_end(args);
}

template <class BaseType, class StringTraits>
void CStringT<BaseType, StringTraits>::MessagePlain(UINT formatId, ...)
{
    va_list args;
    va_start(args, formatId);
    FormatMessageV(afxint::LoadFormat<CStringT>(formatId), &args);
    va_end(args);
}
