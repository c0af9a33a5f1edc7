// Puts a function of one's own in the place of one that a loaded module imports.
//
// A module reaches another module's functions through its import table; a hook changes one entry
// there, so that only calls from that module are caught, and puts it back at its end. Calls of
// functions that the module found with GetProcAddress are not seen. Nor may be those of a function
// that is running when the hook comes or goes: a compiler may read the entry once for several
// calls.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace umbra::testing {

/// One entry of a module's import table.
struct Import
{
    std::string dll;
    std::string name; ///< Empty when imported by ordinal.
    WORD ordinal = 0; ///< 0 when imported by name.
    bool delayed = false;
    void** slot = nullptr; ///< Where the module keeps the function's address.
};

/// All imports of a loaded module, those that are bound on first use (delayed) last.
std::vector<Import> ImportsOf(HMODULE module);

/// One function among them. The name may be an ordinal: MAKEINTRESOURCEA(17). DLL names compare
/// without case and with or without ".dll".
std::optional<Import> FindImport(HMODULE module, const char* dll, const char* name);

/// Where a call through the import ends up; looks a delayed import up that was not called yet.
void* TargetOf(const Import& import);

/// The module that an address of code or data lies in.
HMODULE ModuleOf(const void* address);

/// The loaded module of that file name, "umbra.dll"; NULL, the program itself.
HMODULE FindModule(const char* fileName);

/// Redirects one import while it lives. Nothing happens, and IsInstalled is false, when the module
/// does not import the function.
class ImportHook
{
public:
    /// The function is named as for FindImport.
    ImportHook(HMODULE module, const char* dll, const char* name, void* replacement);

    template <class Function, class = std::enable_if_t<std::is_function_v<Function>>>
    ImportHook(HMODULE module, const char* dll, const char* name, Function* replacement)
        : ImportHook(module, dll, name,
                     reinterpret_cast<void*>(reinterpret_cast<ULONG_PTR>(replacement)))
    {
    }
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook();

    bool IsInstalled() const { return m_slot != nullptr; }
    /// The function that the hook replaces.
    void* Original() const { return m_original; }
    template <class Function>
    Function* OriginalAs() const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<ULONG_PTR>(m_original));
    }

private:
    void** m_slot = nullptr;
    void* m_original = nullptr;
    void* m_before = nullptr; // What the slot held, which is a stub in a delayed import.
};

} // namespace umbra::testing
