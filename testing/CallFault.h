// Counts a module's calls of an imported function, and makes some of them fail.
#pragma once

#include "testing/ImportHook.h"

#include <climits>
#include <memory>

namespace umbra::testing {

/// What a failing call gives back.
struct Failure
{
    ULONG_PTR result = 0; ///< The returned value: NULL, FALSE, or what the function fails with.
    DWORD error = ERROR_NOT_ENOUGH_MEMORY; ///< For GetLastError.
};

/// Stands before an import of any signature while it lives: counts the calls, lets them through,
/// or has some return at once without calling the function. Calls of all threads count. The result
/// is an integer or a pointer; what the function would write through its arguments stays as it was.
class CallFault
{
public:
    /// Calls are numbered from 1. A call with a number from `first` to `last` fails.
    CallFault(HMODULE module, const char* dll, const char* name, long long first, long long last,
              const Failure& failure);
    CallFault(const CallFault&) = delete;
    CallFault& operator=(const CallFault&) = delete;
    ~CallFault();

    /// False when the module does not import the function.
    bool IsInstalled() const { return m_hook != nullptr && m_hook->IsInstalled(); }
    long long Calls() const;
    long long Failed() const;

private:
    struct Plan; // What the generated code reads and counts.
    std::unique_ptr<Plan> m_plan;
    void* m_code = nullptr;
    std::unique_ptr<ImportHook> m_hook;
};

/// Counts calls and lets all of them through.
class CountCalls : public CallFault
{
public:
    CountCalls(HMODULE module, const char* dll, const char* name)
        : CallFault(module, dll, name, 1, 0, {})
    {
    }
};

/// Makes the n-th call fail and lets the others through.
class FailNth : public CallFault
{
public:
    FailNth(HMODULE module, const char* dll, const char* name, long long n,
            const Failure& failure = {})
        : CallFault(module, dll, name, n, n, failure)
    {
    }
};

/// Makes every call fail.
class FailAlways : public CallFault
{
public:
    FailAlways(HMODULE module, const char* dll, const char* name, const Failure& failure = {})
        : CallFault(module, dll, name, 1, LLONG_MAX, failure)
    {
    }
};

} // namespace umbra::testing
