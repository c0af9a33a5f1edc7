// Strings out of text of the other kind, single characters and variants, and the way back.
#pragma once

#include <classes/CString.h>

#include <classes/CException.h>

#include "text/Characters.h"
#include "text/TextConversion.h"

#include <utility>

using afxint::Converted;

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>::CStringT(PCYSTR pch, int nLength) : CStringT()
{
    if (nLength < 0 || (pch == NULL && nLength > 0))
        AfxThrowInvalidArgException();
    *this = Converted({pch, static_cast<size_t>(nLength)});
}

template <class BaseType, class StringTraits>
BSTR CStringT<BaseType, StringTraits>::AllocSysString() const
{
    BSTR result = afxint::CharacterTraits<XCHAR>::MakeSystemString(afxint::ViewOf(*this));
    if (result == NULL)
        AfxThrowMemoryException();
    return result;
}

template <class BaseType, class StringTraits>
BSTR CStringT<BaseType, StringTraits>::SetSysString(BSTR* pbstr) const
{
    if (pbstr == NULL)
        AfxThrowInvalidArgException();
    BSTR result = AllocSysString();
    ::SysFreeString(std::exchange(*pbstr, result));
    return result;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Assign(PCYSTR text)
{
    if (text == NULL) {
        Empty();
    } else if (IS_INTRESOURCE(text)) {
        LoadString(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    } else {
        *this = Converted(text);
    }
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>&
CStringT<BaseType, StringTraits>::Assign(const unsigned char* text)
{
    return *this = reinterpret_cast<LPCSTR>(text);
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Assign(XCHAR ch, int count)
{
    count = max(count, 0);
    std::char_traits<XCHAR>::assign(GetBufferSetLength(count), count, ch);
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Assign(YCHAR ch, int count)
{
    const CStringT converted = Converted({&ch, 1});
    CStringT repeated;
    for (; count > 0; --count)
        repeated.Append(converted, converted.GetLength());
    SetString(repeated, repeated.GetLength());
    return *this;
}

template <class BaseType, class StringTraits>
CStringT<BaseType, StringTraits>& CStringT<BaseType, StringTraits>::Assign(const VARIANT& variant)
{
    if (variant.vt == VT_EMPTY || variant.vt == VT_NULL) {
        Empty();
        return *this;
    }
    VARIANT text;
    ::VariantInit(&text);
    if (FAILED(::VariantChangeType(&text, const_cast<VARIANT*>(&variant), 0, VT_BSTR)))
        AfxThrowInvalidArgException();
    const CStringT converted(text.bstrVal, static_cast<int>(::SysStringLen(text.bstrVal)));
    ::VariantClear(&text);
    return *this = converted;
}
