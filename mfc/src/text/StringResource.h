// Strings as they lie in the resources of a module.
#pragma once

#include <classes/Platform.h>

#include <string_view>

namespace afxint {

/// The string of that id, in the language given or else in the thread's; empty when the module has
/// none. The text lives as long as the module.
std::wstring_view FindString(HINSTANCE module, UINT id, const WORD* language = NULL);

} // namespace afxint
