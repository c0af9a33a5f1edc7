// A help program in the Windows directory, for as long as it lives.
#pragma once

#include "tests/Folders.h"

#include <windows.h>

#include <string>

class HelpProgram
{
public:
    HelpProgram()
        : m_installed(::CopyFileA(ProgramPath("test-helpprogram.exe").c_str(), Path().c_str(),
                                  FALSE) != FALSE)
    {
    }
    ~HelpProgram() { ::DeleteFileA(Path().c_str()); }
    HelpProgram(const HelpProgram&) = delete;
    HelpProgram& operator=(const HelpProgram&) = delete;

    bool IsInstalled() const { return m_installed; }

    static std::string Path()
    {
        char folder[MAX_PATH] = "";
        ::GetWindowsDirectoryA(folder, MAX_PATH);
        return std::string(folder) + "\\winhlp32.exe";
    }

private:
    bool m_installed;
};
