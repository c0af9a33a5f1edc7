// Stands before the calls with which the toolkit opens things, and notes them.
#pragma once

#include "testing/ImportHook.h"
#include "testing/Text.h"

#include "tests/LibraryFiles.h"
#include "tests/StartStandIn.h"

#include <windows.h>

#include <string>
#include <vector>

class ShellSpy
{
public:
    struct Opened
    {
        umbra::testing::TString target;
        int show;
    };

    /// `answer` is what the shell is to answer: above 32 is a success.
    explicit ShellSpy(UINT_PTR answer = 33)
    {
        Answer() = answer;
        Targets().clear();
        Commands().clear();
    }

    bool IsInstalled() const { return m_shell.IsInstalled() && m_start.IsInstalled(); }
    const std::vector<Opened>& Asked() const { return Targets(); }
    const std::vector<Opened>& Run() const { return Commands(); }

private:
    static UINT_PTR& Answer()
    {
        static UINT_PTR answer;
        return answer;
    }
    static std::vector<Opened>& Targets()
    {
        static std::vector<Opened> targets;
        return targets;
    }
    static std::vector<Opened>& Commands()
    {
        static std::vector<Opened> commands;
        return commands;
    }
    static HINSTANCE WINAPI Open(HWND, LPCTSTR, LPCTSTR target, LPCTSTR, LPCTSTR, INT show)
    {
        Targets().push_back({target, show});
        return reinterpret_cast<HINSTANCE>(Answer());
    }
    static UINT Execute(LPCTSTR command, UINT show)
    {
        Commands().push_back({command, static_cast<int>(show)});
        return 33;
    }

    umbra::testing::ImportHook m_shell{umbra::testing::FindModule(UMBRA_DLL), "shell32",
                                       TEXT_FUNCTION("ShellExecute"), Open};
    umbra::testing::ImportHook m_start{umbra::testing::FindModule(UMBRA_DLL), "kernel32",
                                       StartStandIn<Execute>::function,
                                       StartStandIn<Execute>::Start};
};
