// Strings out of resources and out of the environment.
#pragma once

#include <classes/CString.h>

#include "application/ResourceChain.h"
#include "text/CharacterTraits.h"
#include "text/StringResource.h"
#include "text/TextConversion.h"

#include <string_view>

namespace afxint {

template <class Char, class Traits>
bool LoadInto(CStringT<Char, Traits>& string, HINSTANCE module, UINT id, const WORD* language)
{
    const std::wstring_view text = FindString(module, id, language);
    if (text.empty())
        return false;
    if constexpr (std::is_same_v<Char, wchar_t>)
        string.SetString(text.data(), static_cast<int>(text.size()));
    else
        string = Converted(text);
    return true;
}

} // namespace afxint

template <class BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::LoadString(UINT nID)
{
    const HINSTANCE module = afxint::FindStringModule(nID);
    return module != NULL && LoadString(module, nID);
}

template <class BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::LoadString(HINSTANCE hInstance, UINT nID)
{
    return afxint::LoadInto(*this, hInstance, nID, NULL);
}

template <class BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    return afxint::LoadInto(*this, hInstance, nID, &wLanguageID);
}

template <class BaseType, class StringTraits>
BOOL CStringT<BaseType, StringTraits>::GetEnvironmentVariable(PCXSTR pszVar)
{
    Empty();
    // Another thread may make the value longer between asking for its length and reading it.
    for (DWORD room = 0;;) {
        const PXSTR value = GetBuffer(static_cast<int>(room));
        ::SetLastError(ERROR_SUCCESS);
        const DWORD length =
            afxint::CharacterTraits<XCHAR>::ReadEnvironment(pszVar, value, room + 1);
        if (length <= room) {
            ReleaseBufferSetLength(static_cast<int>(length));
            return length > 0 || ::GetLastError() != ERROR_ENVVAR_NOT_FOUND;
        }
        room = length;
    }
}
