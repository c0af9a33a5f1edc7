#include <afx.h>

#include <doctest/doctest.h>

#include "tests/mfc/files/TestFolder.h"
#include "tests/mfc/Throws.h"

#include <set>
#include <string>

namespace {

/// The names that the usual loop meets, without the dots.
std::set<CString> NamesOf(LPCTSTR pattern)
{
    std::set<CString> names;
    CFileFind finder;
    BOOL more = finder.FindFile(pattern);
    while (more) {
        more = finder.FindNextFile();
        if (!finder.IsDots())
            names.emplace(finder.GetFileName());
    }
    return names;
}

} // namespace

TEST_CASE("a search meets every file of the pattern")
{
    const TestFolder folder;
    WriteFile(folder / _T("a.txt"), "");
    WriteFile(folder / _T("b.txt"), "");
    WriteFile(folder / _T("c.dat"), "");
    CHECK(NamesOf(folder / _T("*.txt")) == std::set<CString>{_T("a.txt"), _T("b.txt")});
    CHECK(NamesOf(folder / _T("*.*")) == std::set<CString>{_T("a.txt"), _T("b.txt"), _T("c.dat")});
    CHECK(NamesOf(folder / _T("c.dat")) == std::set<CString>{_T("c.dat")});
    CHECK(NamesOf(folder / _T("*.none")).empty());

    TCHAR directory[MAX_PATH] = _T("");
    ::GetCurrentDirectory(MAX_PATH, directory);
    REQUIRE(::SetCurrentDirectory(folder.Path()));
    CHECK(NamesOf(NULL) == std::set<CString>{_T("a.txt"), _T("b.txt"), _T("c.dat")});
    CFileFind relative;
    REQUIRE(relative.FindFile(_T("a.*")));
    relative.FindNextFile();
    CHECK(relative.GetFilePath().CompareNoCase(folder / _T("a.txt")) == 0);
    ::SetCurrentDirectory(directory);
}

TEST_CASE("a found file tells its names, size, times and attributes")
{
    const TestFolder folder;
    const CString path = folder / _T("some.file.txt");
    WriteFile(path, "content");
    CFileStatus status;
    REQUIRE(CFile::GetStatus(path, status));
    status.m_mtime = CTime(2020, 5, 6, 7, 8, 9);
    status.m_attribute = CFile::readOnly | CFile::hidden;
    CFile::SetStatus(path, status);

    CFileFind finder;
    REQUIRE(finder.FindFile(folder / _T("*.txt")));
    CHECK_FALSE(finder.FindNextFile());
    CHECK(finder.GetFileName() == "some.file.txt");
    CHECK(finder.GetFileTitle() == "some.file");
    CHECK(finder.GetFilePath().CompareNoCase(path) == 0);
    CHECK(finder.GetRoot().CompareNoCase(folder.Path()) == 0);
    CString url = finder.GetFileURL();
    CHECK(url.Find(_T("file://")) == 0);
    CHECK(url.Find('\\') == -1);
    CHECK(finder.GetLength() == 7);
    CHECK(finder.IsReadOnly());
    CHECK(finder.IsHidden());
    CHECK_FALSE(finder.IsDirectory());
    CHECK_FALSE(finder.IsDots());
    CHECK_FALSE(finder.IsSystem());
    CHECK_FALSE(finder.IsTemporary());
    CHECK_FALSE(finder.IsCompressed());
    CHECK_FALSE(finder.IsNormal());
    CHECK(finder.MatchesMask(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM));
    CHECK_FALSE(finder.MatchesMask(FILE_ATTRIBUTE_SYSTEM));
    CTime written;
    CHECK(finder.GetLastWriteTime(written));
    CHECK(written == CTime(2020, 5, 6, 7, 8, 9));
    FILETIME time = {};
    CHECK(finder.GetLastWriteTime(&time));
    CHECK(CTime(time) == written);
    CHECK(finder.GetCreationTime(&time));
    CHECK(finder.GetLastAccessTime(&time));
    CHECK_FALSE(finder.GetCreationTime(static_cast<FILETIME*>(NULL)));
}

TEST_CASE("folders and the two entries of dots are told apart")
{
    const TestFolder folder;
    REQUIRE(::CreateDirectory(folder / _T("..dots"), NULL));
    int dots = 0;
    int folders = 0;
    CFileFind finder;
    BOOL more = finder.FindFile(folder / _T("*"));
    while (more) {
        more = finder.FindNextFile();
        dots += finder.IsDots();
        folders += finder.IsDirectory();
    }
    CHECK(dots == 2);
    CHECK(folders == 3);
}

TEST_CASE("without a found file there is nothing to ask")
{
    const TestFolder folder;
    CFileFind finder;
    CHECK_FALSE(finder.FindNextFile());
    CHECK_FALSE(finder.FindFile(folder / _T("missing.*")));
    CHECK(::GetLastError() == ERROR_FILE_NOT_FOUND);
    CHECK_FALSE(finder.FindNextFile());
    CHECK(Throws<CInvalidArgException>([&] { finder.GetFileName(); }));
    FILETIME time = {};
    CHECK_FALSE(finder.GetLastWriteTime(&time));

    WriteFile(folder / _T("a.txt"), "");
    REQUIRE(finder.FindFile(folder / _T("*.txt")));
    CHECK(Throws<CInvalidArgException>([&] { finder.GetLength(); }));
    CHECK_FALSE(finder.FindNextFile());
    CHECK(finder.GetFileName() == "a.txt");
    CHECK_FALSE(finder.FindNextFile());
    CHECK(::GetLastError() == ERROR_NO_MORE_FILES);
    finder.Close();
    CHECK(Throws<CInvalidArgException>([&] { finder.GetFileName(); }));
    CHECK(finder.FindFile(folder / _T("a.txt")));
}
