// Formats that stand in the resources.
#pragma once

#include <classes/CString.h>

namespace afxint {

/// The string of that id; throws CResourceException when there is none.
CString LoadFormat(UINT id);

} // namespace afxint
