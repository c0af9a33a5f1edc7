#include "testing/CrashReport.h"

#include <afxwin.h>

#include <doctest/doctest.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

using namespace umbra::testing;

namespace {

/// How a child process came to its end.
struct Ending
{
    DWORD exitCode = 0;
    std::string output;
};

/// Runs one of the skipped test cases below in a process of its own.
Ending RunCase(const char* testCase)
{
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    REQUIRE(::CreatePipe(&readEnd, &writeEnd, &inheritable, 0));
    ::SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    char program[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, program, sizeof program);
    std::string command =
        std::string("\"") + program + "\" --no-skip \"--test-case=" + testCase + "\"";
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = writeEnd;
    start.hStdError = writeEnd;
    PROCESS_INFORMATION process{};
    REQUIRE(::CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                             &start, &process));
    ::CloseHandle(writeEnd);
    Ending ending;
    char buffer[512];
    DWORD count = 0;
    while (::ReadFile(readEnd, buffer, sizeof buffer, &count, nullptr) && count > 0)
        ending.output.append(buffer, count);
    ::CloseHandle(readEnd);
    ::WaitForSingleObject(process.hProcess, 20000);
    ::GetExitCodeProcess(process.hProcess, &ending.exitCode);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return ending;
}

/// Whether the part stands in the text.
bool Contains(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_CASE("on purpose: read from nowhere" * doctest::skip())
{
    volatile int* nowhere = reinterpret_cast<volatile int*>(0x10);
    CHECK(*nowhere == 0);
}

TEST_CASE("on purpose: abort" * doctest::skip())
{
    std::abort();
}

TEST_CASE("on purpose: throw out of a function that may not" * doctest::skip())
{
    const auto breakPromise = [] { throw std::runtime_error("broken promise"); };
    const auto promise = [&]() noexcept { breakPromise(); };
    promise();
}

TEST_CASE("on purpose: hang" * doctest::skip())
{
    for (;;)
        ::Sleep(1000);
}

TEST_CASE("a crash is reported with its kind, its test, its address and its callers")
{
    const Ending ending = RunCase("on purpose: read from nowhere");
    CHECK(ending.exitCode == crashExitCode);
    INFO(ending.output);
    CHECK(Contains(ending.output, "access violation (c0000005)"));
    const char* nowhere = sizeof(void*) == 8 ? "reading 0000000000000010" : "reading 00000010";
    CHECK(Contains(ending.output, nowhere));
    CHECK(Contains(ending.output, "in: on purpose: read from nowhere"));
    CHECK(Contains(ending.output, "test-testing.exe+0x"));
    CHECK(Contains(ending.output, "kernel32.dll+0x")); // The outermost caller: nothing is lost.
}

TEST_CASE("an abort is reported")
{
    const Ending ending = RunCase("on purpose: abort");
    INFO(ending.output);
    CHECK(ending.exitCode == crashExitCode);
    CHECK(Contains(ending.output, "*** abort"));
    CHECK(Contains(ending.output, "test-testing.exe+0x"));
}

TEST_CASE("an exception that may not be thrown is reported")
{
    const Ending ending = RunCase("on purpose: throw out of a function that may not");
    INFO(ending.output);
    CHECK(ending.exitCode == crashExitCode);
    CHECK(Contains(ending.output, "*** terminate"));
}

TEST_CASE("a program that hangs is ended with the place where it does")
{
    ::SetEnvironmentVariableA("UMBRA_RUN_TIME_MILLISECONDS", "2000");
    const Ending ending = RunCase("on purpose: hang");
    ::SetEnvironmentVariableA("UMBRA_RUN_TIME_MILLISECONDS", nullptr);
    INFO(ending.output);
    CHECK(ending.exitCode == hangExitCode);
    CHECK(Contains(ending.output, "*** the time is up"));
    CHECK(Contains(ending.output, "in: on purpose: hang"));
    CHECK(Contains(ending.output, "test-testing.exe+0x"));
}

TEST_CASE("a program without a matching test fails")
{
    const Ending ending = RunCase("no test has this name");
    INFO(ending.output);
    CHECK(ending.exitCode == EXIT_FAILURE);
    CHECK(Contains(ending.output, "no test case matches"));
}
