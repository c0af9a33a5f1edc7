#include "testing/CallFault.h"

#include <atomic>
#include <cstddef>
#include <cstring>

namespace umbra::testing {

/// The offsets are known to the code below.
struct CallFault::Plan
{
    std::atomic<long long> calls{0}; // 0
    long long first;                 // 8
    long long last;                  // 16
    DWORD error;                     // 24
    ULONG_PTR result;                // 32
    const void* original;            // 40
};

namespace {

// Runs with the arguments of an unknown function in place, so it touches only rax and r10, which
// carry none, and leaves the stack alone.
const BYTE codeTemplate[] = {
    0x49, 0xBA, 0,    0,    0,    0, 0, 0, 0, 0, // mov  r10, plan
    0xB8, 1,    0,    0,    0,                   // mov  eax, 1
    0xF0, 0x49, 0x0F, 0xC1, 0x02,                // lock xadd [r10], rax
    0x48, 0xFF, 0xC0,                            // inc  rax             ; this call's number
    0x49, 0x3B, 0x42, 0x08,                      // cmp  rax, [r10+8]    ; first
    0x7C, 0x17,                                  // jl   pass
    0x49, 0x3B, 0x42, 0x10,                      // cmp  rax, [r10+16]   ; last
    0x7F, 0x11,                                  // jg   pass
    0x41, 0x8B, 0x42, 0x18,                      // mov  eax, [r10+24]   ; error
    0x65, 0x89, 0x04, 0x25, 0x68, 0, 0, 0,       // mov  gs:[68h], eax   ; the thread's last error
    0x49, 0x8B, 0x42, 0x20,                      // mov  rax, [r10+32]   ; result
    0xC3,                                        // ret
    0x49, 0x8B, 0x42, 0x28,                      // pass: mov rax, [r10+40]  ; original
    0xFF, 0xE0,                                  // jmp  rax
};
constexpr size_t planAddressOffset = 2;

void* MakeCode(const void* plan)
{
    void* code =
        ::VirtualAlloc(nullptr, sizeof codeTemplate, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (code == nullptr)
        return nullptr;
    std::memcpy(code, codeTemplate, sizeof codeTemplate);
    std::memcpy(static_cast<BYTE*>(code) + planAddressOffset, &plan, sizeof plan);
    DWORD before = 0;
    ::VirtualProtect(code, sizeof codeTemplate, PAGE_EXECUTE_READ, &before);
    ::FlushInstructionCache(::GetCurrentProcess(), code, sizeof codeTemplate);
    return code;
}

} // namespace

CallFault::CallFault(HMODULE module, const char* dll, const char* name, long long first,
                     long long last, const Failure& failure)
    : m_plan(std::make_unique<Plan>())
{
    static_assert(offsetof(Plan, first) == 8 && offsetof(Plan, last) == 16 &&
                  offsetof(Plan, error) == 24 && offsetof(Plan, result) == 32 &&
                  offsetof(Plan, original) == 40);
    m_plan->first = first;
    m_plan->last = last;
    m_plan->error = failure.error;
    m_plan->result = failure.result;
    const std::optional<Import> import = FindImport(module, dll, name);
    if (!import)
        return;
    // Complete before it is put in place: putting it in place may call the very function.
    m_plan->original = TargetOf(*import);
    m_code = MakeCode(m_plan.get());
    if (m_code != nullptr)
        m_hook = std::make_unique<ImportHook>(module, dll, name, m_code);
}

CallFault::~CallFault()
{
    m_hook.reset();
    if (m_code != nullptr)
        ::VirtualFree(m_code, 0, MEM_RELEASE);
}

long long CallFault::Calls() const
{
    return m_plan->calls;
}

long long CallFault::Failed() const
{
    const long long upTo = Calls() < m_plan->last ? Calls() : m_plan->last;
    return upTo < m_plan->first ? 0 : upTo - m_plan->first + 1;
}

} // namespace umbra::testing
