#include "testing/CrashReport.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <initializer_list>

namespace umbra::testing {

namespace {

const char* volatile crashContext = nullptr;

const char* ExceptionName(DWORD code)
{
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
        return "access violation";
    case EXCEPTION_BREAKPOINT:
        return "breakpoint";
    case EXCEPTION_ILLEGAL_INSTRUCTION:
        return "illegal instruction (undefined behaviour, or an abort)";
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
        return "division by zero";
    case EXCEPTION_STACK_OVERFLOW:
        return "stack overflow";
    case 0x20474343:
        return "C++ exception that nobody catches";
    case 0xC0000374:
        return "heap corruption";
    default:
        return "exception";
    }
}

void PrintPlace(ULONG_PTR address)
{
    constexpr int digits = 2 * sizeof address;
    HMODULE module = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<const char*>(address), &module);
    if (module == nullptr) {
        std::fprintf(stderr, "  %0*llx\n", digits, static_cast<unsigned long long>(address));
        return;
    }
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(module, path, sizeof path);
    const char* name = path;
    for (const char* c = path; *c != '\0'; ++c) {
        if (*c == '\\')
            name = c + 1;
    }
    const ULONG_PTR offset = address - reinterpret_cast<ULONG_PTR>(module);
    std::fprintf(stderr, "  %0*llx %s+0x%llx\n", digits, static_cast<unsigned long long>(address),
                 name, static_cast<unsigned long long>(offset));
}

constexpr int mostCalls = 40;

#ifdef _WIN64

/// The innermost call first. Works by the unwind tables that every 64-bit module carries.
void PrintStack(CONTEXT context)
{
    for (int i = 0; i < mostCalls && context.Rip != 0; ++i) {
        PrintPlace(context.Rip);
        DWORD64 base = 0;
        RUNTIME_FUNCTION* function = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function == nullptr) { // A leaf: nothing on the stack but the way back.
            if (::IsBadReadPtr(reinterpret_cast<const void*>(context.Rsp), sizeof(DWORD64)))
                return;
            context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
            continue;
        }
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData,
                           &frame, nullptr);
    }
}

#else

/// Whether the address lies in code and behind a call, so that it may be a way back.
bool MayBeWayBack(DWORD address)
{
    MEMORY_BASIC_INFORMATION memory{};
    constexpr DWORD code =
        PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    if (::VirtualQuery(reinterpret_cast<const void*>(address), &memory, sizeof memory) == 0 ||
        memory.Type != MEM_IMAGE || (memory.Protect & code) == 0)
        return false;
    constexpr DWORD longestCall = 7;
    if (address - reinterpret_cast<DWORD>(memory.BaseAddress) < longestCall)
        return false;
    const BYTE* end = reinterpret_cast<const BYTE*>(address);
    if (end[-5] == 0xE8) // Relative.
        return true;
    for (const int length : {2, 3, 4, 6, 7}) { // Through a register, or through memory.
        if (end[-length] == 0xFF && (end[1 - length] & 0x38) == 0x10)
            return true;
    }
    return false;
}

/// The innermost call first. 32-bit code leaves no way to find its callers, so this is whatever on
/// the stack looks like a way back; some are of calls that have ended.
void PrintStack(const CONTEXT& context)
{
    PrintPlace(context.Eip);
    const auto* stack = reinterpret_cast<const DWORD*>(context.Esp & ~3u);
    MEMORY_BASIC_INFORMATION memory{};
    if (::VirtualQuery(stack, &memory, sizeof memory) == 0 || memory.State != MEM_COMMIT ||
        (memory.Protect & PAGE_GUARD) != 0)
        return;
    const auto* end = reinterpret_cast<const DWORD*>(static_cast<const BYTE*>(memory.BaseAddress) +
                                                     memory.RegionSize);
    int calls = 0;
    for (; stack < end && calls < mostCalls; ++stack) {
        if (!MayBeWayBack(*stack))
            continue;
        PrintPlace(*stack);
        ++calls;
    }
}

#endif

void PrintHeading(const char* what)
{
    std::fflush(stdout);
    std::fprintf(stderr, "\n*** %s\n", what);
    if (crashContext != nullptr)
        std::fprintf(stderr, "*** in: %s\n", crashContext);
}

[[noreturn]] void EndProcess(UINT exitCode)
{
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), exitCode);
    std::_Exit(static_cast<int>(exitCode));
}

LONG WINAPI ReportException(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    char text[160];
    std::snprintf(text, sizeof text, "%s (%08lx) at %p", ExceptionName(record.ExceptionCode),
                  record.ExceptionCode, record.ExceptionAddress);
    PrintHeading(text);
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION)
        std::fprintf(stderr, "*** %s %p\n",
                     record.ExceptionInformation[0] == 0 ? "reading" : "writing",
                     reinterpret_cast<void*>(record.ExceptionInformation[1]));
    PrintStack(*pointers->ContextRecord);
    EndProcess(crashExitCode);
}

[[noreturn]] void ReportHere(const char* what)
{
    PrintHeading(what);
    CONTEXT context{};
    ::RtlCaptureContext(&context);
    PrintStack(context);
    EndProcess(crashExitCode);
}

void ReportAbort(int)
{
    ReportHere("abort");
}

void ReportTerminate()
{
    ReportHere("terminate: an exception that nobody may catch");
}

void ReportPureCall()
{
    ReportHere("call of a pure virtual function");
}

struct TimeLimit
{
    HANDLE thread;
    DWORD milliseconds;
};

DWORD WINAPI WaitForTheEnd(void* parameter)
{
    const auto* limit = static_cast<const TimeLimit*>(parameter);
    ::Sleep(limit->milliseconds);
    ::SuspendThread(limit->thread);
    PrintHeading("the time is up; the program hangs here:");
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    if (::GetThreadContext(limit->thread, &context))
        PrintStack(context);
    EndProcess(hangExitCode);
}

} // namespace

void InstallCrashReport()
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::SetUnhandledExceptionFilter(ReportException);
    std::signal(SIGABRT, ReportAbort);
    std::set_terminate(ReportTerminate);
    _set_purecall_handler(ReportPureCall);
}

void SetCrashContext(const char* text)
{
    crashContext = text;
}

void LimitRunTime(DWORD milliseconds)
{
    static TimeLimit limit{};
    if (limit.thread != nullptr)
        return;
    limit.milliseconds = milliseconds;
    ::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(),
                      &limit.thread, 0, FALSE, DUPLICATE_SAME_ACCESS);
    ::CloseHandle(::CreateThread(nullptr, 0, WaitForTheEnd, &limit, 0, nullptr));
}

} // namespace umbra::testing
