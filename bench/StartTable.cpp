#include "bench/Race.h"
#include "bench/Tables.h"

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

std::string ProgramBesideThis(const char* name)
{
    char path[MAX_PATH];
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string program = path;
    program.resize(program.find_last_of('\\') + 1);
    return program + name;
}

// Whether the program came to its end by itself.
bool RunToItsEnd(std::string program)
{
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessA(nullptr, program.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process))
        return false;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code == 0;
}

} // namespace

void PrintStartTable()
{
    const std::string plain = ProgramBesideThis("umbra_bench_plain_start.exe");
    const std::string page = ProgramBesideThis("umbra_bench_page_start.exe");
    if (!RunToItsEnd(plain) || !RunToItsEnd(page)) {
        std::printf("A program did not start.\n");
        return;
    }
    Race race;
    race.Add("plain", [&] { RunToItsEnd(plain); });
    race.Add("page", [&] { RunToItsEnd(page); });
    race.Run(41);
    const double plainTime = race.NanosecondsOf("plain");
    const double pageTime = race.NanosecondsOf("page");
    std::printf("Milliseconds from the start of a process until all of its first page is painted; "
                "plain shows the\nsystem's own controls, the page has shaded buttons with pictures "
                "and a label.\n\n"
                "| plain | CBaseDialog | ratio |\n"
                "|--:|--:|--:|\n"
                "| %.1f | %.1f | %.3f |%s\n",
                plainTime / 1e6, pageTime / 1e6, pageTime / plainTime,
                race.IsSteady() ? "" : " disturbed |");
}
