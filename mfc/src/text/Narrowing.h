// Wide text in the code page of the system.
#pragma once

#include <classes/CString.h>

#include <string_view>

namespace afxint {

/// The text in the system's code page; what that lacks becomes the system's substitute.
CString Narrowed(std::wstring_view text);

} // namespace afxint
