#include "testing/ImportHook.h"

#include <cctype>

namespace umbra::testing {

namespace {

const BYTE* ImageBase(HMODULE module)
{
    return reinterpret_cast<const BYTE*>(module);
}

const IMAGE_NT_HEADERS& HeadersOf(HMODULE module)
{
    const BYTE* base = ImageBase(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    return *reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
}

const IMAGE_DATA_DIRECTORY& DirectoryOf(HMODULE module, int index)
{
    return HeadersOf(module).OptionalHeader.DataDirectory[index];
}

/// One DLL's imports: two tables side by side, the names and the addresses.
void AddImports(std::vector<Import>& imports, HMODULE module, const char* dll, DWORD names,
                DWORD addresses, bool delayed)
{
    const BYTE* base = ImageBase(module);
    const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + names);
    auto* slot = reinterpret_cast<void**>(const_cast<BYTE*>(base) + addresses);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
        Import import;
        import.dll = dll;
        import.delayed = delayed;
        import.slot = slot;
        if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
            import.ordinal = static_cast<WORD>(IMAGE_ORDINAL(name->u1.Ordinal));
        else
            import.name =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData)->Name;
        imports.push_back(import);
    }
}

/// Whether these bytes are the description of a DLL whose functions are imported late.
bool IsDelayDescriptor(HMODULE module, const IMAGE_DELAYLOAD_DESCRIPTOR& delayed)
{
    const DWORD size = HeadersOf(module).OptionalHeader.SizeOfImage;
    for (const DWORD address : {delayed.DllNameRVA, delayed.ModuleHandleRVA,
                                delayed.ImportAddressTableRVA, delayed.ImportNameTableRVA}) {
        if (address == 0 || address >= size - MAX_PATH)
            return false;
    }
    if (delayed.Attributes.AllAttributes != 1)
        return false;
    const char* name = reinterpret_cast<const char*>(ImageBase(module) + delayed.DllNameRVA);
    const size_t length = strnlen(name, MAX_PATH);
    return length > 4 && length < MAX_PATH && lstrcmpiA(name + length - 4, ".dll") == 0;
}

/// The descriptions of DLLs whose functions are imported late. MinGW's linker puts them beside the
/// code and lists them nowhere, so that they can only be told by their form.
std::vector<const IMAGE_DELAYLOAD_DESCRIPTOR*> DelayedOf(HMODULE module)
{
    std::vector<const IMAGE_DELAYLOAD_DESCRIPTOR*> found;
    const BYTE* base = ImageBase(module);
    const IMAGE_DATA_DIRECTORY& listed = DirectoryOf(module, IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT);
    if (listed.VirtualAddress != 0) {
        auto* delayed =
            reinterpret_cast<const IMAGE_DELAYLOAD_DESCRIPTOR*>(base + listed.VirtualAddress);
        for (; delayed->DllNameRVA != 0; ++delayed)
            found.push_back(delayed);
        return found;
    }
    const IMAGE_NT_HEADERS& headers = HeadersOf(module);
    const BYTE* end = base + headers.OptionalHeader.BaseOfCode + headers.OptionalHeader.SizeOfCode -
                      sizeof(IMAGE_DELAYLOAD_DESCRIPTOR);
    for (const BYTE* at = base + headers.OptionalHeader.BaseOfCode; at <= end;
         at += sizeof(DWORD)) {
        auto* delayed = reinterpret_cast<const IMAGE_DELAYLOAD_DESCRIPTOR*>(at);
        if (IsDelayDescriptor(module, *delayed))
            found.push_back(delayed);
    }
    return found;
}

std::string PlainName(std::string dll)
{
    for (char& character : dll)
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    const size_t extension = dll.rfind(".dll");
    if (extension != std::string::npos && extension + 4 == dll.size())
        dll.resize(extension);
    return dll;
}

bool IsNamed(const Import& import, const char* name)
{
    if (IS_INTRESOURCE(name))
        return import.name.empty() && import.ordinal == LOWORD(reinterpret_cast<ULONG_PTR>(name));
    return import.name == name;
}

void WriteSlot(void** slot, void* address)
{
    DWORD protection = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = address;
    ::VirtualProtect(slot, sizeof *slot, protection, &protection);
}

} // namespace

std::vector<Import> ImportsOf(HMODULE module)
{
    std::vector<Import> imports;
    const BYTE* base = ImageBase(module);
    const IMAGE_DATA_DIRECTORY& direct = DirectoryOf(module, IMAGE_DIRECTORY_ENTRY_IMPORT);
    if (direct.VirtualAddress != 0) {
        auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + direct.VirtualAddress);
        for (; dll->Name != 0; ++dll) {
            if (dll->OriginalFirstThunk == 0)
                continue; // Without a table of names the functions cannot be told apart.
            AddImports(imports, module, reinterpret_cast<const char*>(base + dll->Name),
                       dll->OriginalFirstThunk, dll->FirstThunk, false);
        }
    }
    for (const IMAGE_DELAYLOAD_DESCRIPTOR* dll : DelayedOf(module)) {
        AddImports(imports, module, reinterpret_cast<const char*>(base + dll->DllNameRVA),
                   dll->ImportNameTableRVA, dll->ImportAddressTableRVA, true);
    }
    return imports;
}

std::optional<Import> FindImport(HMODULE module, const char* dll, const char* name)
{
    if (module == nullptr)
        return std::nullopt;
    const std::string wanted = PlainName(dll);
    for (const Import& import : ImportsOf(module)) {
        if (PlainName(import.dll) == wanted && IsNamed(import, name))
            return import;
    }
    return std::nullopt;
}

void* TargetOf(const Import& import)
{
    if (!import.delayed)
        return *import.slot;
    // The slot may still lead to a stub, which would write over a hook on its first call.
    const char* name = import.name.empty() ? MAKEINTRESOURCEA(import.ordinal) : import.name.c_str();
    HMODULE dll = ::LoadLibraryA(import.dll.c_str());
    return reinterpret_cast<void*>(reinterpret_cast<INT_PTR>(::GetProcAddress(dll, name)));
}

HMODULE ModuleOf(const void* address)
{
    HMODULE module = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         static_cast<const char*>(address), &module);
    return module;
}

HMODULE FindModule(const char* fileName)
{
    return ::GetModuleHandleA(fileName);
}

ImportHook::ImportHook(HMODULE module, const char* dll, const char* name, void* replacement)
{
    const std::optional<Import> import = FindImport(module, dll, name);
    if (!import)
        return;
    m_slot = import->slot;
    m_before = *import->slot;
    m_original = TargetOf(*import);
    WriteSlot(m_slot, replacement);
}

ImportHook::~ImportHook()
{
    if (m_slot != nullptr)
        WriteSlot(m_slot, m_before);
}

} // namespace umbra::testing
