#include <afx.h>

#include <doctest/doctest.h>

#include "tests/mfc/files/TestFolder.h"
#include "tests/mfc/Throws.h"

#include <memory>
#include <string>

namespace {

std::string ContentOf(LPCTSTR path)
{
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    std::string content(static_cast<size_t>(file.GetLength()), '?');
    content.resize(file.Read(content.data(), static_cast<UINT>(content.size())));
    return content;
}

} // namespace

TEST_CASE("what is written to a file is read from it")
{
    const TestFolder folder;
    const CString path = folder / _T("file.txt");
    CFile file;
    REQUIRE(file.Open(path, CFile::modeCreate | CFile::modeReadWrite));
    file.Write("0123456789", 10);
    file.Write("", 0);
    CHECK(file.GetLength() == 10);
    CHECK(file.GetPosition() == 10);
    file.SeekToBegin();
    char buffer[20] = "";
    CHECK(file.Read(buffer, 4) == 4);
    CHECK(std::string(buffer, 4) == "0123");
    CHECK(file.Read(buffer, 20) == 6);
    CHECK(file.Read(buffer, 20) == 0);
    CHECK(file.Read(NULL, 0) == 0);
    CHECK(file.Seek(-3, CFile::end) == 7);
    CHECK(file.Seek(1, CFile::current) == 8);
    CHECK(file.Seek(2, CFile::begin) == 2);
    CHECK(file.SeekToEnd() == 10);
    file.SetLength(5);
    CHECK(file.GetLength() == 5);
    file.Flush();
    file.Close();
    CHECK(file.m_hFile == CFile::hFileNull);
    CHECK(ContentOf(path) == "01234");
}

TEST_CASE("a file tells its names")
{
    const TestFolder folder;
    const CString path = folder / _T("some.file.txt");
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    CHECK(file.GetFileName() == "some.file.txt");
    CHECK(file.GetFileTitle() == "some.file");
    CHECK(file.GetFilePath().CompareNoCase(path) == 0);
    file.SetFilePath(_T("C:\\other\\name.dat"));
    CHECK(file.GetFileName() == "name.dat");
    file.Close();
    CHECK(file.GetFilePath() == "");

    TCHAR directory[MAX_PATH] = _T("");
    ::GetCurrentDirectory(MAX_PATH, directory);
    REQUIRE(::SetCurrentDirectory(folder.Path()));
    CFile relative(_T("some.file.txt"), CFile::modeRead);
    CHECK(relative.GetFilePath().CompareNoCase(path) == 0);
    ::SetCurrentDirectory(directory);
}

TEST_CASE("creating empties a file, unless told not to")
{
    const TestFolder folder;
    const CString path = folder / _T("file.txt");
    WriteFile(path, "content");
    CFile kept(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite);
    CHECK(kept.GetLength() == 7);
    kept.Close();
    CFile emptied(path, CFile::modeCreate | CFile::modeReadWrite);
    CHECK(emptied.GetLength() == 0);
}

TEST_CASE("failure to open is told by the result and the cause")
{
    const TestFolder folder;
    CFile file;
    CFileException error;
    CHECK_FALSE(file.Open(folder / _T("missing.txt"), CFile::modeRead, &error));
    CHECK(error.m_cause == CFileException::fileNotFound);
    CHECK(error.m_lOsError == ERROR_FILE_NOT_FOUND);
    CHECK(error.m_strFileName == folder / _T("missing.txt"));
    CHECK(file.m_hFile == CFile::hFileNull);
    CHECK_FALSE(file.Open(folder / _T("missing\\file.txt"), CFile::modeRead, &error));
    CHECK(error.m_cause == CFileException::badPath);
    CHECK_FALSE(file.Open(folder.Path(), CFile::modeRead, &error));
    CHECK(error.m_cause == CFileException::accessDenied);
    CHECK_FALSE(file.Open(_T(""), CFile::modeRead, &error));
    CHECK(error.m_cause == CFileException::badPath);
    CHECK_FALSE(file.Open(folder / _T("missing.txt"), CFile::modeRead));
}

TEST_CASE("the constructor and the operations throw with the cause")
{
    const TestFolder folder;
    CHECK(CauseOf([&] { CFile(folder / _T("missing.txt"), CFile::modeRead); }) ==
          CFileException::fileNotFound);
    CHECK(CauseOf([&] { CFile::Remove(folder / _T("missing.txt")); }) ==
          CFileException::fileNotFound);
    CHECK(CauseOf([&] { CFile::Rename(folder / _T("missing.txt"), folder / _T("x")); }) ==
          CFileException::fileNotFound);

    WriteFile(folder / _T("readonly.txt"), "");
    REQUIRE(::SetFileAttributes(folder / _T("readonly.txt"), FILE_ATTRIBUTE_READONLY));
    CHECK(CauseOf([&] { CFile::Remove(folder / _T("readonly.txt")); }) ==
          CFileException::accessDenied);

    WriteFile(folder / _T("file.txt"), "content");
    CFile file(folder / _T("file.txt"), CFile::modeRead);
    CHECK(CauseOf([&] { file.Write("x", 1); }) == CFileException::accessDenied);
    CHECK(CauseOf([&] { file.Seek(-1, CFile::begin); }) == CFileException::badSeek);
    CHECK(CauseOf([&] { file.SetLength(3); }) != CFileException::none);
    CHECK(Throws<CInvalidArgException>([&] { file.Read(NULL, 1); }));
    file.Close();
    CHECK(CauseOf([&] { file.GetLength(); }) == CFileException::invalidFile);
    char buffer[1];
    CHECK(CauseOf([&] { file.Read(buffer, 1); }) == CFileException::invalidFile);
    CHECK(CauseOf([&] { file.Close(); }) == CFileException::none);
}

TEST_CASE("sharing is refused as the modes say")
{
    const TestFolder folder;
    const CString path = folder / _T("file.txt");
    WriteFile(path, "content");
    CFileException error;
    CFile second;
    {
        CFile exclusive(path, CFile::modeRead | CFile::shareExclusive);
        CHECK_FALSE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &error));
        CHECK(error.m_cause == CFileException::sharingViolation);
    }
    {
        CFile denyWrite(path, CFile::modeRead | CFile::shareDenyWrite);
        CHECK_FALSE(second.Open(path, CFile::modeWrite | CFile::shareDenyNone, &error));
        CHECK(second.Open(path, CFile::modeRead | CFile::shareDenyNone));
        second.Close();
    }
    CFile denyNone(path, CFile::modeReadWrite | CFile::shareDenyNone);
    CHECK(second.Open(path, CFile::modeReadWrite | CFile::shareDenyNone));
}

TEST_CASE("ranges are locked against other handles")
{
    const TestFolder folder;
    const CString path = folder / _T("file.txt");
    WriteFile(path, "0123456789");
    CFile first(path, CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(path, CFile::modeReadWrite | CFile::shareDenyNone);
    first.LockRange(2, 3);
    CHECK(CauseOf([&] { second.LockRange(4, 1); }) == CFileException::lockViolation);
    CHECK(CauseOf([&] { second.LockRange(5, 1); }) == CFileException::none);
    first.UnlockRange(2, 3);
    CHECK(CauseOf([&] { second.LockRange(4, 1); }) == CFileException::none);
    CHECK(CauseOf([&] { first.UnlockRange(2, 3); }) == CFileException::lockViolation);
}

TEST_CASE("a duplicate shares the place in the file and lives on its own")
{
    const TestFolder folder;
    CFile file(folder / _T("file.txt"), CFile::modeCreate | CFile::modeReadWrite);
    file.Write("abc", 3);
    const std::unique_ptr<CFile> copy(file.Duplicate());
    CHECK(copy->m_hFile != file.m_hFile);
    CHECK(copy->GetPosition() == 3);
    CHECK(copy->GetFileName() == "file.txt");
    file.Close();
    copy->Write("d", 1);
    CHECK(copy->GetLength() == 4);
}

TEST_CASE("an attached handle is closed with the object, a closed one is let go")
{
    const TestFolder folder;
    const CString path = folder / _T("file.txt");
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
    }
    HANDLE handle = ::CreateFile(path, GENERIC_READ, 0, NULL, OPEN_EXISTING, 0, NULL);
    REQUIRE(handle != INVALID_HANDLE_VALUE);
    {
        CFile file(handle);
        CHECK(static_cast<HANDLE>(file) == handle);
    }
    CHECK_NOTHROW(CFile(path, CFile::modeWrite));
    CFile aborted(path, CFile::modeWrite | CFile::shareExclusive);
    aborted.Abort();
    CHECK(aborted.m_hFile == CFile::hFileNull);
    CHECK_NOTHROW(CFile(path, CFile::modeWrite));
}

TEST_CASE("the status tells size, times and attributes, and sets them")
{
    const TestFolder folder;
    const CString path = folder / _T("file.txt");
    WriteFile(path, "content");
    CFileStatus status;
    REQUIRE(CFile::GetStatus(path, status));
    CHECK(status.m_size == 7);
    CHECK((status.m_attribute & (CFile::readOnly | CFile::directory)) == 0);
    CHECK(CString(status.m_szFullName).CompareNoCase(path) == 0);
    const CTimeSpan age = CTime::GetCurrentTime() - status.m_mtime;
    CHECK(age.GetTotalSeconds() >= -2);
    CHECK(age.GetTotalSeconds() < 60);

    const CTime changed(2020, 5, 6, 7, 8, 9);
    status.m_mtime = changed;
    status.m_attribute = CFile::readOnly;
    CFile::SetStatus(path, status);
    CFileStatus after;
    REQUIRE(CFile::GetStatus(path, after));
    CHECK(after.m_mtime == changed);
    CHECK((after.m_attribute & CFile::readOnly) != 0);

    CFile file(path, CFile::modeRead);
    CFileStatus ofHandle;
    REQUIRE(file.GetStatus(ofHandle));
    CHECK(ofHandle.m_mtime == changed);
    CHECK(ofHandle.m_size == 7);
    CHECK(CString(ofHandle.m_szFullName).CompareNoCase(path) == 0);
    file.Close();
    CHECK_FALSE(file.GetStatus(ofHandle));

    after.m_attribute = CFile::normal;
    after.m_mtime = changed + CTimeSpan(1, 0, 0, 0);
    CFile::SetStatus(path, after);
    REQUIRE(CFile::GetStatus(path, status));
    CHECK(status.m_mtime == changed + CTimeSpan(1, 0, 0, 0));
    CHECK((status.m_attribute & CFile::readOnly) == 0);

    CHECK_FALSE(CFile::GetStatus(folder / _T("missing.txt"), status));
    CHECK(CauseOf([&] { CFile::SetStatus(folder / _T("missing.txt"), after); }) ==
          CFileException::fileNotFound);
    REQUIRE(CFile::GetStatus(folder.Path(), status));
    CHECK((status.m_attribute & CFile::directory) != 0);
}

TEST_CASE("files are renamed and removed")
{
    const TestFolder folder;
    WriteFile(folder / _T("a.txt"), "a");
    WriteFile(folder / _T("b.txt"), "b");
    CFile::Rename(folder / _T("a.txt"), folder / _T("c.txt"));
    CHECK(ContentOf(folder / _T("c.txt")) == "a");
    CHECK(CauseOf([&] { CFile::Rename(folder / _T("b.txt"), folder / _T("c.txt")); }) ==
          CFileException::accessDenied);
    CFile::Remove(folder / _T("c.txt"));
    CFileStatus status;
    CHECK_FALSE(CFile::GetStatus(folder / _T("c.txt"), status));
}
