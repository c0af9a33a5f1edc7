// A folder whose name an English keyboard has no keys for.
#pragma once

#include "tests/Folders.h"

#include <windows.h>

#include <string>

/// A folder among the temporary ones whose name has a letter beyond ASCII, with the toolkit's
/// images below it, for as long as it lives.
class ForeignFolder
{
public:
    ForeignFolder() : m_path(TemporaryPath(("umbra-" + Letter()).c_str()))
    {
        ::CreateDirectoryA(m_path.c_str(), nullptr);
        ::CreateDirectoryA((m_path + "\\images").c_str(), nullptr);
        ForEachImage([this](const std::string& name) {
            ::CopyFileA(::ImagePath(name.c_str()).c_str(), ImagePath(name.c_str()).c_str(), FALSE);
        });
    }
    ~ForeignFolder()
    {
        ForEachImage(
            [this](const std::string& name) { ::DeleteFileA(ImagePath(name.c_str()).c_str()); });
        ::RemoveDirectoryA((m_path + "\\images").c_str());
        ::RemoveDirectoryA(m_path.c_str());
    }
    ForeignFolder(const ForeignFolder&) = delete;
    ForeignFolder& operator=(const ForeignFolder&) = delete;

    /// Whether this system's code page has such a letter, and the folder is there.
    bool IsThere() const
    {
        return !Letter().empty() &&
               ::GetFileAttributesA(ImagePath("Next.gif").c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    const std::string& Path() const { return m_path; } ///< Without a last backslash.
    std::string ImagePath(const char* name) const { return m_path + "\\images\\" + name; }

private:
    /// The first of some letters that the code page has; empty when it has none.
    static std::string Letter()
    {
        for (const wchar_t* letter : {L"\x00FC", L"\x7D75", L"\x0416", L"\x05D0"}) {
            char bytes[8] = "";
            BOOL replaced = FALSE;
            ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, letter, -1, bytes, sizeof(bytes),
                                  nullptr, &replaced);
            if (!replaced && bytes[0] != '\0')
                return bytes;
        }
        return {};
    }

    template <class Action>
    static void ForEachImage(Action action)
    {
        WIN32_FIND_DATAA found;
        const HANDLE search = ::FindFirstFileA(::ImagePath("*.gif").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE)
            return;
        do
            action(found.cFileName);
        while (::FindNextFileA(search, &found));
        ::FindClose(search);
    }

    std::string m_path;
};
