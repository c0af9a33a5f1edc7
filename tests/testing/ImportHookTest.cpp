#include "testing/ImportHook.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstddef>

using namespace umbra::testing;

namespace {

/// Stands in for the system's function without calling it.
int WINAPI AnswerMetric(int)
{
    return 12345;
}

const ImportHook* currentHook = nullptr;

/// Stands in for it and calls it.
int WINAPI DoubleMetric(int index)
{
    return 2 * currentHook->OriginalAs<decltype(::GetSystemMetrics)>()(index);
}

/// A call of its own each time: the compiler may read an import's address once in a function and
/// keep it for the calls that follow there.
DECLSPEC_NOINLINE int ScreenWidth()
{
    return ::GetSystemMetrics(SM_CXSCREEN);
}

/// The module whose calls are caught.
HMODULE ThisModule()
{
    return ModuleOf(reinterpret_cast<const void*>(reinterpret_cast<ULONG_PTR>(&AnswerMetric)));
}

} // namespace

TEST_CASE("a hook catches the module's calls while it lives")
{
    const int width = ScreenWidth();
    {
        const ImportHook hook(ThisModule(), "user32.dll", "GetSystemMetrics", AnswerMetric);
        REQUIRE(hook.IsInstalled());
        CHECK(ScreenWidth() == 12345);
    }
    CHECK(ScreenWidth() == width);
}

TEST_CASE("a replacement can call what it replaces")
{
    const int width = ScreenWidth();
    const ImportHook hook(ThisModule(), "USER32", "GetSystemMetrics", DoubleMetric);
    currentHook = &hook;
    CHECK(ScreenWidth() == 2 * width);
}

TEST_CASE("a hook in one module leaves the others alone")
{
    const ImportHook hook(ThisModule(), "user32.dll", "GetSystemMetrics", AnswerMetric);
    using Metric = int(WINAPI*)(int);
    const auto direct = reinterpret_cast<Metric>(reinterpret_cast<ULONG_PTR>(
        ::GetProcAddress(::GetModuleHandleA("user32.dll"), "GetSystemMetrics")));
    CHECK(direct(SM_CXSCREEN) != 12345);
}

TEST_CASE("what the module does not import cannot be hooked")
{
    CHECK_FALSE(
        ImportHook(ThisModule(), "user32.dll", "NoSuchFunction", AnswerMetric).IsInstalled());
    CHECK_FALSE(
        ImportHook(ThisModule(), "nosuch.dll", "GetSystemMetrics", AnswerMetric).IsInstalled());
    CHECK_FALSE(
        ImportHook(ThisModule(), "user32.dll", MAKEINTRESOURCEA(1), AnswerMetric).IsInstalled());
    CHECK_FALSE(ImportHook(FindModule("nosuch.dll"), "user32.dll", "GetSystemMetrics", AnswerMetric)
                    .IsInstalled());
}

TEST_CASE("all imports of a module are listed with the address they lead to")
{
    const std::vector<Import> imports = ImportsOf(ThisModule());
    CHECK(imports.size() > 20);
    const auto found = std::find_if(imports.begin(), imports.end(), [](const Import& import) {
        return import.name == "GetSystemMetrics";
    });
    REQUIRE(found != imports.end());
    CHECK_FALSE(found->delayed);
    CHECK(found->ordinal == 0);
    CHECK(ModuleOf(*found->slot) == ::GetModuleHandleA("user32.dll"));
    for (const Import& import : imports)
        CHECK((import.name.empty() != (import.ordinal == 0)));
}

TEST_CASE("functions imported by ordinal are found by ordinal")
{
    // Which module imports by number depends on the system, so several of the system's are asked.
    int byOrdinal = 0;
    for (const char* name : {"comctl32.dll", "shell32.dll", "shlwapi.dll", "comdlg32.dll",
                             "ole32.dll", "oleaut32.dll"}) {
        HMODULE module = ::LoadLibraryA(name);
        REQUIRE(module != nullptr);
        for (const Import& import : ImportsOf(module)) {
            if (import.ordinal == 0)
                continue;
            ++byOrdinal;
            const auto again =
                FindImport(module, import.dll.c_str(), MAKEINTRESOURCEA(import.ordinal));
            REQUIRE(again);
            CHECK(again->slot == import.slot);
        }
    }
    CHECK(byOrdinal > 0);
}

namespace {

/// The image of a module that binds user32's GetSystemMetrics on its first call. No compiler of
/// this project makes such modules, so it is put together by hand.
struct DelayingModule
{
    IMAGE_DOS_HEADER dos{};
    IMAGE_NT_HEADERS headers{};
    IMAGE_DELAYLOAD_DESCRIPTOR delayed[2]{};
    char dll[16] = "user32.dll";
    IMAGE_THUNK_DATA names[2]{};
    void* slots[2]{};
    struct
    {
        WORD hint = 0;
        char name[20] = "GetSystemMetrics";
    } function;

    explicit DelayingModule(void* stub)
    {
        dos.e_lfanew = offsetof(DelayingModule, headers);
        auto& directory = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT];
        directory.VirtualAddress = offsetof(DelayingModule, delayed);
        delayed[0].DllNameRVA = offsetof(DelayingModule, dll);
        delayed[0].ImportNameTableRVA = offsetof(DelayingModule, names);
        delayed[0].ImportAddressTableRVA = offsetof(DelayingModule, slots);
        names[0].u1.AddressOfData = offsetof(DelayingModule, function);
        slots[0] = stub;
    }
    HMODULE Handle() { return reinterpret_cast<HMODULE>(this); }
};

/// The stub of an import that is bound at its first call.
int WINAPI BindAndCall(int)
{
    return -1; // A real stub would look the function up and write over the slot.
}

} // namespace

TEST_CASE("a delayed import is hooked before its first call, and leads past the stub")
{
    void* const stub = reinterpret_cast<void*>(reinterpret_cast<INT_PTR>(&BindAndCall));
    DelayingModule module(stub);
    const std::vector<Import> imports = ImportsOf(module.Handle());
    REQUIRE(imports.size() == 1);
    CHECK(imports[0].delayed);
    CHECK(imports[0].name == "GetSystemMetrics");
    {
        const ImportHook hook(module.Handle(), "user32.dll", "GetSystemMetrics", AnswerMetric);
        REQUIRE(hook.IsInstalled());
        CHECK(module.slots[0] == reinterpret_cast<void*>(reinterpret_cast<INT_PTR>(&AnswerMetric)));
        CHECK(hook.OriginalAs<decltype(::GetSystemMetrics)>()(SM_CXSCREEN) ==
              ::GetSystemMetrics(SM_CXSCREEN));
    }
    CHECK(module.slots[0] == stub);
}
