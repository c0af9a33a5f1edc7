// Strings out of resources and out of the environment.
#include <classes/CString.h>

#include "application/ResourceChain.h"
#include "text/Narrowing.h"
#include "text/StringResource.h"

#include <string_view>

using afxint::Narrowed;

namespace {

bool LoadInto(CString& string, HINSTANCE module, UINT id, const WORD* language)
{
    const std::wstring_view text = afxint::FindString(module, id, language);
    if (text.empty())
        return false;
    const CString narrow = Narrowed(text);
    string.SetString(narrow, narrow.GetLength());
    return true;
}

} // namespace

std::wstring_view afxint::FindString(HINSTANCE module, UINT id, const WORD* language)
{
    const LPCTSTR block = MAKEINTRESOURCE(id / 16 + 1);
    const HRSRC found = language == NULL ? ::FindResource(module, block, RT_STRING)
                                         : ::FindResourceEx(module, RT_STRING, block, *language);
    const HGLOBAL loaded = found == NULL ? NULL : ::LoadResource(module, found);
    const auto* text = static_cast<const wchar_t*>(loaded == NULL ? NULL : ::LockResource(loaded));
    if (text == NULL)
        return {};
    // A block is sixteen counted strings; the count is in characters and stands before each.
    const wchar_t* end = text + ::SizeofResource(module, found) / sizeof(wchar_t);
    for (UINT skipped = id % 16; skipped > 0 && text < end; --skipped)
        text += 1 + *text;
    if (text >= end || *text > end - text - 1)
        return {};
    return {text + 1, static_cast<size_t>(*text)};
}

BOOL CString::LoadString(UINT nID)
{
    const HINSTANCE module = afxint::FindStringModule(nID);
    return module != NULL && LoadString(module, nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID)
{
    return LoadInto(*this, hInstance, nID, NULL);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    return LoadInto(*this, hInstance, nID, &wLanguageID);
}

BOOL CString::GetEnvironmentVariable(PCXSTR pszVar)
{
    Empty();
    // Another thread may make the value longer between asking for its length and reading it.
    for (DWORD room = 0;;) {
        LPSTR value = GetBuffer(static_cast<int>(room));
        ::SetLastError(ERROR_SUCCESS);
        const DWORD length = ::GetEnvironmentVariable(pszVar, value, room + 1);
        if (length <= room) {
            ReleaseBufferSetLength(static_cast<int>(length));
            return length > 0 || ::GetLastError() != ERROR_ENVVAR_NOT_FOUND;
        }
        room = length;
    }
}
