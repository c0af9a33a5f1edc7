// This test program once more, as a process of its own: what crashes or hangs there is a finding
// here.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

/// Memory that a test shares with its child. The first one to ask makes it, filled with zeros.
class SharedMemory
{
public:
    SharedMemory(const std::string& name, size_t size);
    ~SharedMemory();
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    void* Get() const { return m_memory; }

private:
    HANDLE m_mapping;
    void* m_memory;
};

/// How a child came to its end.
struct ChildEnd
{
    bool ended = false; ///< By itself, however; false: it made no progress and was stopped.
    DWORD exitCode = 0;
    std::string output; ///< What it wrote, the crash report for one.

    bool IsGood() const { return ended && exitCode == 0; }
    std::string Describe() const; ///< "crashes" or "hangs", and where.
};

/// Runs a test case that is skipped otherwise, in a process of its own. The child finds `argument`
/// with ChildArgument. It is stopped when `progress` has answered the same for `patience`.
ChildEnd RunChild(const char* testCase, const std::string& argument,
                  const std::function<long()>& progress, DWORD patience = 15000);

/// Empty in a program that was not started as a child.
std::string ChildArgument();
