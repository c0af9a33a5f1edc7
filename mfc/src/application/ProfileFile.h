// The file of a program's settings, where they are not in the registry.
#pragma once

#include <classes/Platform.h>

namespace afxint {

/// Makes a file that holds all characters of the library, where there is none yet. The system
/// writes a wide text in the code page into a file that is not marked as UTF-16.
void PrepareProfileFile(LPCTSTR name);

} // namespace afxint
