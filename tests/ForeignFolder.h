// A folder whose name an English keyboard has no keys for.
#pragma once

#include "tests/Folders.h"

#include "testing/Text.h"

#include <windows.h>

#include <string>

/// A folder among the temporary ones whose name has a letter beyond ASCII, with the toolkit's
/// images below it, for as long as it lives.
class ForeignFolder
{
public:
    ForeignFolder() : m_path(TemporaryPath((_T("umbra-") + Letter()).c_str()))
    {
        ::CreateDirectory(m_path.c_str(), nullptr);
        ::CreateDirectory((m_path + _T("\\images")).c_str(), nullptr);
        ForEachImage([this](const umbra::testing::TString& name) {
            ::CopyFile(::ImagePath(name.c_str()).c_str(), ImagePath(name.c_str()).c_str(), FALSE);
        });
    }
    ~ForeignFolder()
    {
        ForEachImage([this](const umbra::testing::TString& name) {
            ::DeleteFile(ImagePath(name.c_str()).c_str());
        });
        ::RemoveDirectory((m_path + _T("\\images")).c_str());
        ::RemoveDirectory(m_path.c_str());
    }
    ForeignFolder(const ForeignFolder&) = delete;
    ForeignFolder& operator=(const ForeignFolder&) = delete;

    /// Whether this system's code page has such a letter, and the folder is there.
    bool IsThere() const
    {
        return !Letter().empty() &&
               ::GetFileAttributes(ImagePath(_T("Next.gif")).c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    const umbra::testing::TString& Path() const { return m_path; } ///< Without a last backslash.
    umbra::testing::TString ImagePath(LPCTSTR name) const
    {
        return m_path + _T("\\images\\") + name;
    }

private:
    /// The first of some letters that the code page has; empty when it has none.
    static umbra::testing::TString Letter()
    {
#ifdef UNICODE
        return L"\x7D75";
#else
        for (const wchar_t* letter : {L"\x00FC", L"\x7D75", L"\x0416", L"\x05D0"}) {
            char bytes[8] = "";
            BOOL replaced = FALSE;
            ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, letter, -1, bytes, sizeof(bytes),
                                  nullptr, &replaced);
            if (!replaced && bytes[0] != '\0')
                return bytes;
        }
        return {};
#endif
    }

    template <class Action>
    static void ForEachImage(Action action)
    {
        WIN32_FIND_DATA found;
        const HANDLE search = ::FindFirstFile(::ImagePath(_T("*.gif")).c_str(), &found);
        if (search == INVALID_HANDLE_VALUE)
            return;
        do
            action(found.cFileName);
        while (::FindNextFile(search, &found));
        ::FindClose(search);
    }

    umbra::testing::TString m_path;
};
