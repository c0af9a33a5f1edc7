#include <testing/ImportHook.h>

#include <doctest/doctest.h>

#include <algorithm>

using namespace umbra::testing;

namespace {

int WINAPI AnswerMetric(int)
{
    return 12345;
}

const ImportHook* currentHook = nullptr;

int WINAPI DoubleMetric(int index)
{
    return 2 * currentHook->OriginalAs<decltype(::GetSystemMetrics)>()(index);
}

HMODULE ThisModule()
{
    return ModuleOf(reinterpret_cast<const void*>(&AnswerMetric));
}

} // namespace

TEST_CASE("a hook catches the module's calls while it lives")
{
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    {
        const ImportHook hook(ThisModule(), "user32.dll", "GetSystemMetrics", AnswerMetric);
        REQUIRE(hook.IsInstalled());
        CHECK(::GetSystemMetrics(SM_CXSCREEN) == 12345);
    }
    CHECK(::GetSystemMetrics(SM_CXSCREEN) == width);
}

TEST_CASE("a replacement can call what it replaces")
{
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    const ImportHook hook(ThisModule(), "USER32", "GetSystemMetrics", DoubleMetric);
    currentHook = &hook;
    CHECK(::GetSystemMetrics(SM_CXSCREEN) == 2 * width);
}

TEST_CASE("a hook in one module leaves the others alone")
{
    const ImportHook hook(ThisModule(), "user32.dll", "GetSystemMetrics", AnswerMetric);
    using Metric = int(WINAPI*)(int);
    const auto direct = reinterpret_cast<Metric>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleA("user32.dll"), "GetSystemMetrics")));
    CHECK(direct(SM_CXSCREEN) != 12345);
}

TEST_CASE("what the module does not import cannot be hooked")
{
    CHECK_FALSE(ImportHook(ThisModule(), "user32.dll", "NoSuchFunction", AnswerMetric).IsInstalled());
    CHECK_FALSE(ImportHook(ThisModule(), "nosuch.dll", "GetSystemMetrics", AnswerMetric)
                    .IsInstalled());
    CHECK_FALSE(ImportHook(ThisModule(), "user32.dll", MAKEINTRESOURCEA(1), AnswerMetric)
                    .IsInstalled());
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
    // The common controls offer their subclassing by number only to older programs; which module
    // imports by number depends on the system, so every loaded one of the system's is asked.
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

TEST_CASE("a delayed import is hooked before and after its first call")
{
    // Of the system's modules, those that have one.
    int delayed = 0;
    for (const char* name : {"comctl32.dll", "shell32.dll", "comdlg32.dll", "ole32.dll",
                             "oleaut32.dll", "wininet.dll", "urlmon.dll"}) {
        HMODULE module = ::LoadLibraryA(name);
        REQUIRE(module != nullptr);
        for (const Import& import : ImportsOf(module)) {
            if (!import.delayed || import.name.empty() || TargetOf(import) == nullptr)
                continue;
            ++delayed;
            void* const before = *import.slot;
            {
                const ImportHook hook(module, import.dll.c_str(), import.name.c_str(),
                                      reinterpret_cast<void*>(&AnswerMetric));
                REQUIRE(hook.IsInstalled());
                CHECK(*import.slot == reinterpret_cast<void*>(&AnswerMetric));
                CHECK(hook.Original() == TargetOf(import));
                CHECK(ModuleOf(hook.Original()) != module); // Not the stub.
            }
            CHECK(*import.slot == before);
        }
    }
    CHECK(delayed > 0);
}
