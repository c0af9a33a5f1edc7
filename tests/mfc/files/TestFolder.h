// A folder for the files of one test.
#pragma once

#include <afx.h>

#include <shlwapi.h>

/// An empty folder of its own below the system's folder for temporary files; the destructor removes
/// it with the files in it.
class TestFolder
{
public:
    TestFolder()
    {
        TCHAR temporary[MAX_PATH] = _T("");
        ::GetTempPath(MAX_PATH, temporary);
        path_.Format(_T("%sumbra-%lu-%d"), temporary, ::GetCurrentProcessId(), ++made);
        ::CreateDirectory(path_, NULL);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder()
    {
        WIN32_FIND_DATA found;
        const HANDLE search = ::FindFirstFile(*this / _T("*"), &found);
        for (BOOL more = search != INVALID_HANDLE_VALUE; more;
             more = ::FindNextFile(search, &found)) {
            const CString entry = *this / found.cFileName;
            ::SetFileAttributes(entry, FILE_ATTRIBUTE_NORMAL);
            if (!::DeleteFile(entry))
                ::RemoveDirectory(entry);
        }
        ::FindClose(search);
        ::RemoveDirectory(path_);
    }

    const CString& Path() const { return path_; }
    /// The path of a file in the folder.
    CString operator/(LPCTSTR name) const { return path_ + _T("\\") + name; }

private:
    static inline int made = 0;
    CString path_;
};

/// Makes a file of the given content.
inline void WriteFile(LPCTSTR path, const char* content)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(content, static_cast<UINT>(strlen(content)));
}
