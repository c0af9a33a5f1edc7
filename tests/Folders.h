// Where the test programs find and leave files.
#pragma once

#include <windows.h>

#include <string.h>
#include <string>

#include "testing/Text.h"

/// The folder of the test program, without a last backslash; the toolkit's images lie below it.
inline umbra::testing::TString ProgramFolder()
{
    TCHAR path[MAX_PATH] = _T("");
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    *_tcsrchr(path, '\\') = '\0';
    return path;
}

/// A program that stands beside the test program.
inline umbra::testing::TString ProgramPath(LPCTSTR name)
{
    return ProgramFolder() + _T("\\") + name;
}

/// One of the toolkit's images.
inline umbra::testing::TString ImagePath(LPCTSTR name)
{
    return ProgramFolder() + _T("\\images\\") + name;
}

/// A file among the temporary ones, which need not be there.
inline umbra::testing::TString TemporaryPath(LPCTSTR name)
{
    TCHAR folder[MAX_PATH] = _T("");
    ::GetTempPath(MAX_PATH, folder);
    return umbra::testing::TString(folder) + name;
}
