// The order of strings.
#pragma once

#include <classes/CString.h>

#include <classes/CException.h>

#include "text/CharacterTraits.h"

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Compare(PCXSTR psz) const
{
    if (psz == NULL)
        AfxThrowInvalidArgException();
    return afxint::CharacterTraits<XCHAR>::Compare(data_, psz);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::CompareNoCase(PCXSTR psz) const
{
    if (psz == NULL)
        AfxThrowInvalidArgException();
    return afxint::CharacterTraits<XCHAR>::CompareNoCase(data_, psz);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::Collate(PCXSTR psz) const
{
    if (psz == NULL)
        AfxThrowInvalidArgException();
    return afxint::CharacterTraits<XCHAR>::Collate(data_, psz);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::CollateNoCase(PCXSTR psz) const
{
    if (psz == NULL)
        AfxThrowInvalidArgException();
    return afxint::CharacterTraits<XCHAR>::CollateNoCase(data_, psz);
}

template <class BaseType, class StringTraits>
int CStringT<BaseType, StringTraits>::CompareText(PCXSTR left, PCXSTR right)
{
    static const XCHAR nothing[] = {0};
    return afxint::CharacterTraits<XCHAR>::Compare(left == NULL ? nothing : left,
                                                   right == NULL ? nothing : right);
}
