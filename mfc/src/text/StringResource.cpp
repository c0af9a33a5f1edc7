#include "text/StringResource.h"

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
