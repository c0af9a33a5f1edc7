// The library stays loaded until the process ends.
#include <classes/Platform.h>

namespace {

/// The compiler's run-time takes thread-local indexes at each load and gives none back at an
/// unload, and a process has about a thousand: a host that loads and unloads its plug-ins would
/// end.
const bool pinned = [] {
    HMODULE module = NULL;
    return ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_PIN |
                                   GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                               reinterpret_cast<LPCTSTR>(&pinned), &module) != FALSE;
}();

} // namespace
