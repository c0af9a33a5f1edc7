// Text in the other of the two forms, by the code page of the system.
#pragma once

#include <classes/CString.h>

#include <string_view>

namespace afxint {

/// What the code page lacks becomes the system's substitute.
CStringA Converted(std::wstring_view text);

CStringW Converted(std::string_view text);

} // namespace afxint
