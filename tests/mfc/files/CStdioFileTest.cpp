#include <afx.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"
#include "tests/mfc/files/TestFolder.h"

#include <memory>
#include <string>

namespace {

/// The bytes of a file.
std::string ContentOf(LPCTSTR path)
{
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    std::string content(static_cast<size_t>(file.GetLength()), '?');
    content.resize(file.Read(content.data(), static_cast<UINT>(content.size())));
    return content;
}

} // namespace

TEST_CASE("lines are written in text mode and read without their ends")
{
    const TestFolder folder;
    const CString path = folder / _T("lines.txt");
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        CHECK(file.m_pStream != NULL);
        CHECK(file.GetFileName() == "lines.txt");
        file.WriteString(_T("first\nsec"));
        file.WriteString(_T("ond\n\nlast"));
        file.WriteString(_T(""));
        file.Close();
        CHECK(file.m_pStream == NULL);
        CHECK(file.m_hFile == CFile::hFileNull);
    }
    CHECK(ContentOf(path) == "first\r\nsecond\r\n\r\nlast");

    CStdioFile file;
    REQUIRE(file.Open(path, CFile::modeRead));
    CString line(_T("before"));
    CHECK(file.ReadString(line));
    CHECK(line == "first");
    CHECK(file.ReadString(line));
    CHECK(line == "second");
    CHECK(file.ReadString(line));
    CHECK(line == "");
    CHECK(file.ReadString(line));
    CHECK(line == "last");
    CHECK_FALSE(file.ReadString(line));
    CHECK(line == "");
}

TEST_CASE("the other form of reading keeps the end of the line when there is room")
{
    const TestFolder folder;
    WriteFile(folder / _T("lines.txt"), "first\r\nsecond\r\nx");
    CStdioFile file(folder / _T("lines.txt"), CFile::modeRead);
    TCHAR line[8];
    CHECK(file.ReadString(line, 8) == line);
    CHECK(CString(line) == "first\n");
    CHECK(file.ReadString(line, 4) == line);
    CHECK(CString(line) == "sec");
    CHECK(file.ReadString(line, 8) == line);
    CHECK(CString(line) == "ond\n");
    CHECK(file.ReadString(line, 8) == line);
    CHECK(CString(line) == "x");
    CHECK(file.ReadString(line, 8) == NULL);
}

TEST_CASE("a line of any length is read whole")
{
    const TestFolder folder;
    const CString path = folder / _T("long.txt");
    for (const int length : {254, 255, 256, 257, 1000, 100000}) {
        CAPTURE(length);
        const CString text('x', length);
        CStdioFile(path, CFile::modeCreate | CFile::modeWrite).WriteString(text + _T("\nnext"));
        CStdioFile file(path, CFile::modeRead);
        CString line;
        CHECK(file.ReadString(line));
        CHECK(line == text);
        CHECK(file.ReadString(line));
        CHECK(line == "next");
    }
}

TEST_CASE("bytes pass unchanged in binary mode, at any position")
{
    const TestFolder folder;
    const CString path = folder / _T("bytes.dat");
    CStdioFile file(path, CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.Write("0123\n56789", 10);
    file.Write(NULL, 0);
    CHECK(file.GetLength() == 10);
    CHECK(file.GetPosition() == 10);
    CHECK(file.Seek(-6, CFile::end) == 4);
    char buffer[20];
    CHECK(file.Read(buffer, 3) == 3);
    CHECK(std::string(buffer, 3) == "\n56");
    CHECK(file.Seek(1, CFile::current) == 8);
    CHECK(file.Read(buffer, 20) == 2);
    CHECK(file.Read(buffer, 20) == 0);
    CHECK(file.Read(NULL, 0) == 0);
    file.SeekToBegin();
    CHECK(file.GetPosition() == 0);
    CHECK(file.SeekToEnd() == 10);
    CHECK(CauseOf([&] { file.Seek(-100, CFile::begin); }) == CFileException::badSeek);
    file.SetLength(5);
    CHECK(file.GetLength() == 5);
    CHECK(file.GetPosition() == 5);
    file.Flush();
    file.Close();
    CHECK(ContentOf(path) == "0123\n");
}

TEST_CASE("what is written is in the file at the latest when it is flushed")
{
    const TestFolder folder;
    const CString path = folder / _T("bytes.dat");
    CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::shareDenyNone |
                              CFile::typeBinary);
    file.Write("abc", 3);
    file.Flush();
    CFile reader(path, CFile::modeRead | CFile::shareDenyNone);
    CHECK(reader.GetLength() == 3);
    file.Write("de", 2);
    CHECK(file.GetLength() == 5);
}

TEST_CASE("a file can be opened to add to it")
{
    const TestFolder folder;
    const CString path = folder / _T("log.txt");
    for (int i = 0; i < 2; ++i) {
        CStdioFile log;
        REQUIRE(log.Open(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite));
        log.SeekToEnd();
        log.WriteString(_T("entry\n"));
    }
    CHECK(ContentOf(path) == "entry\r\nentry\r\n");
}

TEST_CASE("a stream that is open already is taken over, and closed by Close only")
{
    const TestFolder folder;
    WriteFile(folder / _T("some.txt"), "some\r\ntext");
    FILE* stream = ::_tfopen(folder / _T("some.txt"), _T("rt"));
    REQUIRE(stream != NULL);
    {
        CStdioFile file(stream);
        CHECK(file.m_pStream == stream);
        CHECK(file.m_hFile != CFile::hFileNull);
        CString line;
        CHECK(file.ReadString(line));
        CHECK(line == "some");
    }
    CHECK(::fgetc(stream) == 't'); // Still open.
    CStdioFile file(stream);
    file.Close();
    CFile::Remove(folder / _T("some.txt")); // Which an open file would forbid.
    CHECK(Throws<CInvalidArgException>([] { CStdioFile none(static_cast<FILE*>(NULL)); }));
}

TEST_CASE("a file that cannot be opened says why")
{
    const TestFolder folder;
    CStdioFile file;
    CFileException failure;
    CHECK_FALSE(file.Open(folder / _T("missing.txt"), CFile::modeRead, &failure));
    CHECK(failure.m_cause == CFileException::fileNotFound);
    CHECK(file.m_pStream == NULL);
    CHECK_FALSE(file.Open(folder / _T("missing.txt"), CFile::modeRead));
    CHECK(CauseOf([&] { CStdioFile(folder / _T("missing.txt"), CFile::modeRead); }) ==
          CFileException::fileNotFound);
}

TEST_CASE("a file that is not open, or open for something else, throws")
{
    const TestFolder folder;
    CStdioFile closed;
    CString line;
    CHECK(CauseOf([&] { closed.ReadString(line); }) == CFileException::invalidFile);
    CHECK(CauseOf([&] { closed.WriteString(_T("x")); }) == CFileException::invalidFile);
    CHECK(CauseOf([&] { closed.GetPosition(); }) == CFileException::invalidFile);
    closed.Close();
    closed.Abort();
    closed.Flush();

    WriteFile(folder / _T("some.txt"), "some");
    CStdioFile reading(folder / _T("some.txt"), CFile::modeRead);
    CHECK(CauseOf([&] {
              reading.WriteString(_T("x"));
              reading.Flush();
          }) != CFileException::none);
    CStdioFile writing(folder / _T("other.txt"), CFile::modeCreate | CFile::modeWrite);
    // The C library may also call this the end of the file.
    BOOL hasRead = FALSE;
    CauseOf([&] { hasRead = writing.ReadString(line); });
    CHECK_FALSE(hasRead);
    CHECK(Throws<CInvalidArgException>([&] { writing.WriteString(NULL); }));
    CHECK(Throws<CInvalidArgException>([&] { writing.Write(NULL, 1); }));
}

TEST_CASE("what a stream cannot do is not supported")
{
    const TestFolder folder;
    CStdioFile file(folder / _T("some.txt"), CFile::modeCreate | CFile::modeWrite);
    CHECK(Throws<CNotSupportedException>([&] { std::unique_ptr<CFile>(file.Duplicate()); }));
    CHECK(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    CHECK(Throws<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
}

TEST_CASE("a file is closed at its end, aborted or not, and can be opened again")
{
    const TestFolder folder;
    const CString path = folder / _T("some.txt");
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(_T("one"));
    }
    CHECK(ContentOf(path) == "one");
    CStdioFile file(path, CFile::modeRead);
    file.Abort();
    CHECK(file.m_pStream == NULL);
    CHECK(file.GetFilePath() == "");
    REQUIRE(file.Open(path, CFile::modeRead));
    CFileStatus status;
    CHECK(file.GetStatus(status));
    CHECK(status.m_size == 3);
    CHECK(file.IsKindOf(RUNTIME_CLASS(CFile)));
}

TEST_CASE("an archive works on a buffered file")
{
    const TestFolder folder;
    const CString path = folder / _T("archive.dat");
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
        CArchive ar(&file, CArchive::store);
        ar << 10 << CString(_T("text\n"));
    }
    CStdioFile file(path, CFile::modeRead | CFile::typeBinary);
    CArchive ar(&file, CArchive::load);
    int number = 0;
    CString text;
    ar >> number >> text;
    CHECK(number == 10);
    CHECK(text == "text\n");
}
