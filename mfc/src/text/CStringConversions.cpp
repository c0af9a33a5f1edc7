// Strings out of wide characters, single ones and variants, and the way back.
#include <classes/CString.h>

#include <classes/CException.h>

#include "text/Narrowing.h"
#include "text/StringBuffer.h"

#include <utility>

using afxint::MakeWritable;
using afxint::Narrowed;

CString afxint::Narrowed(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed = ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, NULL, 0, NULL, NULL);
    CString narrow;
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.GetBufferSetLength(needed), needed,
                          NULL, NULL);
    return narrow;
}

CString::CString(PCYSTR pch, int nLength) : CString()
{
    if (nLength < 0 || (pch == NULL && nLength > 0))
        AfxThrowInvalidArgException();
    const CString narrow = Narrowed({pch, static_cast<size_t>(nLength)});
    SetString(narrow, narrow.GetLength());
}

BSTR CString::AllocSysString() const
{
    const int needed = ::MultiByteToWideChar(CP_ACP, 0, data_, GetLength(), NULL, 0);
    BSTR result = ::SysAllocStringLen(NULL, needed);
    if (result == NULL)
        AfxThrowMemoryException();
    ::MultiByteToWideChar(CP_ACP, 0, data_, GetLength(), result, needed);
    return result;
}

BSTR CString::SetSysString(BSTR* pbstr) const
{
    if (pbstr == NULL)
        AfxThrowInvalidArgException();
    BSTR result = AllocSysString();
    ::SysFreeString(std::exchange(*pbstr, result));
    return result;
}

void CString::AnsiToOem()
{
    MakeWritable(data_, GetLength());
    ::CharToOemBuff(data_, data_, GetLength());
}

void CString::OemToAnsi()
{
    MakeWritable(data_, GetLength());
    ::OemToCharBuff(data_, data_, GetLength());
}

CString& CString::Assign(PCYSTR text)
{
    if (text == NULL) {
        Empty();
    } else if (IS_INTRESOURCE(text)) {
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    } else {
        const CString narrow = Narrowed(text);
        SetString(narrow, narrow.GetLength());
    }
    return *this;
}

CString& CString::Assign(const unsigned char* text)
{
    SetString(reinterpret_cast<LPCSTR>(text));
    return *this;
}

CString& CString::Assign(char ch, int count)
{
    count = max(count, 0);
    memset(GetBufferSetLength(count), ch, count);
    return *this;
}

CString& CString::Assign(wchar_t ch, int count)
{
    const CString narrow = Narrowed({&ch, 1});
    CString repeated;
    for (; count > 0; --count)
        repeated.Append(narrow, narrow.GetLength());
    SetString(repeated, repeated.GetLength());
    return *this;
}

CString& CString::Assign(const VARIANT& variant)
{
    if (variant.vt == VT_EMPTY || variant.vt == VT_NULL) {
        Empty();
        return *this;
    }
    VARIANT text;
    ::VariantInit(&text);
    if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&variant), 0, VT_BSTR)))
        AfxThrowInvalidArgException();
    const CString converted(text.bstrVal, static_cast<int>(::SysStringLen(text.bstrVal)));
    ::VariantClear(&text);
    return *this = converted;
}
