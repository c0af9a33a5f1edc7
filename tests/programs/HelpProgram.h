// A help program in the Windows directory, for as long as it lives.
#pragma once

#include <windows.h>

#include <string.h>
#include <string>

class HelpProgram
{
public:
    HelpProgram() : m_installed(::CopyFileA(Source().c_str(), Path().c_str(), FALSE) != FALSE) {}
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
    static std::string Source()
    {
        char path[MAX_PATH] = "";
        ::GetModuleFileNameA(nullptr, path, MAX_PATH);
        *strrchr(path, '\\') = '\0';
        return std::string(path) + "\\test-helpprogram.exe";
    }

    bool m_installed;
};
