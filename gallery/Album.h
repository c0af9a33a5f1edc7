// CAlbum: takes the pictures of the gallery and remembers what their index has to show.
#pragma once

#include <umbra.h>

#include <vector>

class CAlbum
{
public:
    explicit CAlbum(const CString& folder) : m_folder(folder) {}

    /// A picture of a window as the screen shows it. Name and caption are ASCII.
    void Take(CWnd& window, const char* name, const char* caption);
    void WriteIndex();
    void Fail(const CString& what);
    BOOL IsComplete() const { return m_complete; }

private:
    struct Entry
    {
        CStringA name;
        CStringA caption;
    };

    CString m_folder;
    std::vector<Entry> m_entries;
    BOOL m_complete = TRUE;
};
