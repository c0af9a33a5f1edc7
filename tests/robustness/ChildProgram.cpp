#include "tests/robustness/ChildProgram.h"

#include <fstream>
#include <sstream>
#include <stdlib.h>

namespace {

const char argumentVariable[] = "UMBRA_CHILD_ARGUMENT";
const char limitVariable[] = "UMBRA_RUN_TIME_MILLISECONDS";
const DWORD pollMilliseconds = 100;
const DWORD longestRun = 24 * 3600 * 1000; // The parent looks after the child's progress.

/// The program that runs.
std::string OwnPath()
{
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    return path;
}

/// Where the child's output goes.
std::string TemporaryFile()
{
    const std::string process = std::to_string(::GetCurrentProcessId());
    char folder[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, folder);
    return folder + ("umbra-child-" + process + ".txt");
}

/// The contents of a file.
std::string ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The environment is handed down; it is put back after the start.
class Variable
{
public:
    Variable(const char* name, const std::string& value) : m_name(name)
    {
        char former[256] = "";
        m_hadOne = ::GetEnvironmentVariableA(name, former, sizeof(former)) > 0;
        m_former = former;
        ::SetEnvironmentVariableA(name, value.c_str());
    }
    ~Variable() { ::SetEnvironmentVariableA(m_name, m_hadOne ? m_former.c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* m_name;
    std::string m_former;
    bool m_hadOne;
};

/// Starts the child; NULL when that fails.
HANDLE Start(const char* testCase, const std::string& argument, HANDLE output)
{
    const Variable argumentForChild(argumentVariable, argument);
    const Variable limitForChild(limitVariable, std::to_string(longestRun));
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = output;
    PROCESS_INFORMATION process = {};
    std::string command =
        "\"" + OwnPath() + "\" --no-skip \"--test-case=" + std::string(testCase) + "\"";
    if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                          &startup, &process))
        return nullptr;
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

/// FALSE when the child was stopped.
bool WaitForChild(HANDLE process, const std::function<long()>& progress, DWORD patience)
{
    long last = progress();
    DWORD since = ::GetTickCount();
    while (::WaitForSingleObject(process, pollMilliseconds) == WAIT_TIMEOUT) {
        if (progress() != last) {
            last = progress();
            since = ::GetTickCount();
        } else if (::GetTickCount() - since > patience) {
            ::TerminateProcess(process, 1);
            ::WaitForSingleObject(process, patience);
            return false;
        }
    }
    return true;
}

} // namespace

SharedMemory::SharedMemory(const std::string& name, size_t size)
    : m_mapping(::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                     static_cast<DWORD>(size), name.c_str())),
      m_memory(::MapViewOfFile(m_mapping, FILE_MAP_ALL_ACCESS, 0, 0, size))
{
}

SharedMemory::~SharedMemory()
{
    ::UnmapViewOfFile(m_memory);
    ::CloseHandle(m_mapping);
}

std::string ChildEnd::Describe() const
{
    const std::string what = ended ? "crashes (" + std::to_string(exitCode) + ")" : "hangs";
    return what + "\n" + output;
}

ChildEnd RunChild(const char* testCase, const std::string& argument,
                  const std::function<long()>& progress, DWORD patience)
{
    ChildEnd end;
    const std::string path = TemporaryFile();
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    const HANDLE output =
        ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, &inherited,
                      CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr);
    const HANDLE process = Start(testCase, argument, output);
    ::CloseHandle(output);
    if (process != nullptr) {
        end.ended = WaitForChild(process, progress, patience);
        ::GetExitCodeProcess(process, &end.exitCode);
        ::CloseHandle(process);
    } else {
        end.output = "the child could not be started\n";
        end.exitCode = 1;
    }
    end.output += ReadAll(path);
    ::DeleteFileA(path.c_str());
    return end;
}

std::string ChildArgument()
{
    char argument[256] = "";
    ::GetEnvironmentVariableA(argumentVariable, argument, sizeof(argument));
    return argument;
}
