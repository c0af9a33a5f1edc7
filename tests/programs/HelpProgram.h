// A help program in the Windows directory, for as long as it lives.
#pragma once

#include "tests/Folders.h"

#include "testing/Text.h"

#include <windows.h>

#include <string>

class HelpProgram
{
public:
    HelpProgram()
        : m_installed(::CopyFile(ProgramPath(_T("test-helpprogram.exe")).c_str(), Path().c_str(),
                                 FALSE) != FALSE)
    {
    }
    ~HelpProgram() { ::DeleteFile(Path().c_str()); }
    HelpProgram(const HelpProgram&) = delete;
    HelpProgram& operator=(const HelpProgram&) = delete;

    bool IsInstalled() const { return m_installed; }

    static umbra::testing::TString Path()
    {
        TCHAR folder[MAX_PATH] = _T("");
        ::GetWindowsDirectory(folder, MAX_PATH);
        return umbra::testing::TString(folder) + _T("\\winhlp32.exe");
    }

private:
    bool m_installed;
};
