// Where the test programs find and leave files.
#pragma once

#include <windows.h>

#include <string.h>
#include <string>

/// The folder of the test program, without a last backslash; the toolkit's images lie below it.
inline std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    *strrchr(path, '\\') = '\0';
    return path;
}

/// A program that stands beside the test program.
inline std::string ProgramPath(const char* name)
{
    return ProgramFolder() + "\\" + name;
}

/// One of the toolkit's images.
inline std::string ImagePath(const char* name)
{
    return ProgramFolder() + "\\images\\" + name;
}

/// A file among the temporary ones, which need not be there.
inline std::string TemporaryPath(const char* name)
{
    char folder[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, folder);
    return std::string(folder) + name;
}
