#include "testing/CallFault.h"

#include "testing/StackArguments.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>

namespace umbra::testing {

/// The offsets are known to the code below.
struct CallFault::Plan
{
    std::atomic<LONG_PTR> calls{0};
    LONG_PTR first;
    LONG_PTR last;
    DWORD error;
    ULONG_PTR result;
    const void* original;
};

namespace {

#ifdef _WIN64

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

void RemoveArguments(BYTE*, unsigned)
{
    // The caller does it.
}

#else

// Touches only eax and, in between, ecx. Most functions take their arguments off the stack, and one
// that fails has to do the same.
const BYTE codeTemplate[] = {
    0x51,                         // push ecx
    0xB9, 0,    0,    0,    0,    // mov  ecx, plan
    0xB8, 1,    0,    0,    0,    // mov  eax, 1
    0xF0, 0x0F, 0xC1, 0x01,       // lock xadd [ecx], eax
    0x40,                         // inc  eax             ; this call's number
    0x3B, 0x41, 0x04,             // cmp  eax, [ecx+4]    ; first
    0x7C, 0x15,                   // jl   pass
    0x3B, 0x41, 0x08,             // cmp  eax, [ecx+8]    ; last
    0x7F, 0x10,                   // jg   pass
    0x8B, 0x41, 0x0C,             // mov  eax, [ecx+12]   ; error
    0x64, 0xA3, 0x34, 0,    0, 0, // mov  fs:[34h], eax   ; the thread's last error
    0x8B, 0x41, 0x10,             // mov  eax, [ecx+16]   ; result
    0x59,                         // pop  ecx
    0xC2, 0,    0,                // ret  arguments
    0x8B, 0x41, 0x14,             // pass: mov eax, [ecx+20]  ; original
    0x59,                         // pop  ecx
    0xFF, 0xE0,                   // jmp  eax
};
constexpr size_t planAddressOffset = 2;
constexpr size_t argumentsOffset = 40;

void RemoveArguments(BYTE* code, unsigned bytes)
{
    const auto count = static_cast<WORD>(bytes);
    std::memcpy(code + argumentsOffset, &count, sizeof count);
}

#endif

void* MakeCode(const void* plan, unsigned argumentBytes)
{
    void* code =
        ::VirtualAlloc(nullptr, sizeof codeTemplate, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (code == nullptr)
        return nullptr;
    std::memcpy(code, codeTemplate, sizeof codeTemplate);
    std::memcpy(static_cast<BYTE*>(code) + planAddressOffset, &plan, sizeof plan);
    RemoveArguments(static_cast<BYTE*>(code), argumentBytes);
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
    constexpr size_t step = sizeof(void*);
    static_assert(offsetof(Plan, first) == step && offsetof(Plan, last) == 2 * step &&
                  offsetof(Plan, error) == 3 * step && offsetof(Plan, result) == 4 * step &&
                  offsetof(Plan, original) == 5 * step);
    constexpr long long most = MAXLONG_PTR;
    m_plan->first = static_cast<LONG_PTR>(std::min(first, most));
    m_plan->last = static_cast<LONG_PTR>(std::min(last, most));
    m_plan->error = failure.error;
    m_plan->result = failure.result;
    const std::optional<Import> import = FindImport(module, dll, name);
    if (!import)
        return;
    // Complete before it is put in place: putting it in place may call the very function.
    m_plan->original = TargetOf(*import);
    m_code = MakeCode(m_plan.get(), ArgumentBytesOf(name));
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
