// The search for resources through the modules of the program.
#pragma once

#include <classes/Modules.h>

namespace afxint {

/// The first module of the search that really has the string, not only strings with ids nearby;
/// NULL when none has it.
HINSTANCE FindStringModule(UINT id);

} // namespace afxint
