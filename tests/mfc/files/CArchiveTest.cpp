#include <afxwin.h>

#include <doctest/doctest.h>

#include "tests/mfc/LittleMemory.h"
#include "tests/mfc/Throws.h"
#include "tests/mfc/files/ArchiveBytes.h"
#include "tests/mfc/files/TestFolder.h"

#include <vector>

namespace {

using namespace std::string_literals;

/// A disk that is full from the start.
class CFullFile : public CFile
{
public:
    int m_nWrites = 0;

    void Write(const void*, UINT) override
    {
        ++m_nWrites;
        AfxThrowFileException(CFileException::diskFull);
    }
};

/// Gives one byte at a time, as a slow connection does.
class CDripFile : public CMemFile
{
public:
    UINT Read(void* lpBuf, UINT nCount) override { return CMemFile::Read(lpBuf, min(nCount, 1u)); }
};

template <class Value>
Value LoadOne(const std::string& bytes)
{
    Value value{};
    LoadFrom(bytes, [&](CArchive& ar) { ar >> value; });
    return value;
}

/// The bytes that a value takes; it comes back from them as it was.
template <class Value>
std::string BytesOf(Value value)
{
    const std::string bytes = Stored([&](CArchive& ar) { ar << value; });
    CHECK(LoadOne<Value>(bytes) == value);
    return bytes;
}

enum Colour { red = 1, green = 2 };

} // namespace

TEST_CASE("values take their own number of bytes, the low ones first")
{
    CHECK(BytesOf<BYTE>(0xAB) == "\xAB"s);
    CHECK(BytesOf<char>('a') == "a"s);
    CHECK(BytesOf<bool>(true) == "\x01"s);
    CHECK(BytesOf<WORD>(0x1234) == "\x34\x12"s);
    CHECK(BytesOf<short>(-2) == "\xFE\xFF"s);
    CHECK(BytesOf<wchar_t>(0x20AC) == "\xAC\x20"s);
    CHECK(BytesOf<int>(-2) == "\xFE\xFF\xFF\xFF"s);
    CHECK(BytesOf<LONG>(1) == "\x01\0\0\0"s);
    CHECK(BytesOf<UINT>(2) == "\x02\0\0\0"s);
    CHECK(BytesOf<DWORD>(0x12345678) == "\x78\x56\x34\x12"s);
    CHECK(BytesOf<LONGLONG>(-2) == "\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s);
    CHECK(BytesOf<ULONGLONG>(1) == "\x01\0\0\0\0\0\0\0"s);
    CHECK(BytesOf<float>(1.0f) == "\0\0\x80\x3F"s);
    CHECK(BytesOf<double>(-2.0) == "\0\0\0\0\0\0\0\xC0"s);
    CHECK(LoadOne<bool>("\x07"s));
}

TEST_CASE("an enumeration is stored as a number, and loads through one")
{
    const std::string bytes = Stored([](CArchive& ar) { ar << red << green; });
    CHECK(bytes == "\x01\0\0\0\x02\0\0\0"s);
    Colour colour = red;
    LoadFrom(bytes, [&](CArchive& ar) { ar >> (int&)colour >> (int&)colour; });
    CHECK(colour == green);
}

TEST_CASE("points, sizes, rectangles and times go to an archive and come back")
{
    const CTime time(2004, 5, 6, 7, 8, 9);
    const CTimeSpan span(1, 2, 3, 4);
    const std::string bytes = Stored([&](CArchive& ar) {
        ar << CPoint(1, -2) << CSize(3, 4) << CRect(5, 6, 7, -8) << time << span;
    });
    CHECK(bytes.size() == 8 + 8 + 16 + 8 + 8);
    CPoint point;
    CSize size;
    CRect rect;
    CTime loadedTime;
    CTimeSpan loadedSpan;
    LoadFrom(bytes, [&](CArchive& ar) {
        ar >> point >> size >> rect >> loadedTime >> loadedSpan;
        CHECK(ar.IsBufferEmpty());
    });
    CHECK(point == CPoint(1, -2));
    CHECK(size == CSize(3, 4));
    CHECK(rect == CRect(5, 6, 7, -8));
    CHECK(loadedTime == time);
    CHECK(loadedSpan == span);
    CTime again;
    LoadFrom(bytes.substr(32), [&](CArchive& ar) { again.Serialize64(ar); });
    CHECK(again == time);
}

TEST_CASE("strings of every length go to an archive and come back")
{
    for (const int length :
         {0, 1, 254, 255, 256, 4095, 4096, 0xFFFD, 0xFFFE, 0xFFFF, 0x10000, 200000}) {
        CAPTURE(length);
        const CStringA narrow('n', length);
        const CStringW wide(L'\x20AC', length);
        const std::string bytes = Stored([&](CArchive& ar) { ar << narrow << wide << 5; });
        CStringA loadedNarrow("before");
        CStringW loadedWide(L"before");
        int behind = 0;
        LoadFrom(bytes, [&](CArchive& ar) { ar >> loadedNarrow >> loadedWide >> behind; });
        CHECK(loadedNarrow == narrow);
        CHECK(loadedWide == wide);
        CHECK(behind == 5);
    }
    CHECK(Stored([](CArchive& ar) { ar << CStringA("abc"); }) == "\x03"
                                                                 "abc"s);
    CHECK(Stored([](CArchive& ar) { ar << CStringW(L"ab"); }) == "\xFF\xFE\xFF\x02"
                                                                 "a\0b\0"s);
}

TEST_CASE("a string with a terminator amid is stored whole")
{
    CString text(_T("a0b"));
    text.SetAt(1, '\0');
    CString loaded;
    LoadFrom(Stored([&](CArchive& ar) { ar << text; }), [&](CArchive& ar) { ar >> loaded; });
    CHECK(loaded.GetLength() == 3);
    CHECK(loaded[2] == 'b');
}

TEST_CASE("narrow text loads into wide strings and wide text into narrow ones")
{
    const std::string bytes =
        Stored([](CArchive& ar) { ar << CStringA("narrow") << CStringW(L"wide"); });
    CStringW wide;
    CStringA narrow;
    LoadFrom(bytes, [&](CArchive& ar) { ar >> wide >> narrow; });
    CHECK(wide == L"narrow");
    CHECK(narrow == "wide");
}

TEST_CASE("text lines are written and read without numbers or terminators")
{
    const std::string bytes =
        Stored([](CArchive& ar) { ar.WriteString(_T("first\r\nsecond\n\nlast")); });
    CHECK(bytes.size() == 19 * sizeof(TCHAR));
    LoadFrom(bytes, [](CArchive& ar) {
        CString line;
        CHECK(ar.ReadString(line));
        CHECK(line == "first");
        CHECK(ar.ReadString(line));
        CHECK(line == "second");
        CHECK(ar.ReadString(line));
        CHECK(line == "");
        CHECK(ar.ReadString(line));
        CHECK(line == "last");
        CHECK_FALSE(ar.ReadString(line));
        CHECK(line == "");
    });
    LoadFrom(bytes, [](CArchive& ar) {
        TCHAR line[10];
        CHECK(ar.ReadString(line, 10) == line);
        CHECK(CString(line) == "first");
        CHECK(ar.ReadString(line, 4) == line);
        CHECK(CString(line) == "sec");
        CHECK(ar.ReadString(line, 10) == line);
        CHECK(CString(line) == "ond");
        CHECK(ar.ReadString(line, 10) == line);
        CHECK(CString(line) == "");
        CHECK(ar.ReadString(line, 10) == line);
        CHECK(CString(line) == "last");
        CHECK(ar.ReadString(line, 10) == NULL);
        CHECK(CString(line) == "");
    });
    const CString longLine('x', 5000);
    LoadFrom(Stored([&](CArchive& ar) { ar.WriteString(longLine + _T("\n")); }), [&](CArchive& ar) {
        CString line;
        CHECK(ar.ReadString(line));
        CHECK(line == longLine);
    });
}

TEST_CASE("an archive knows what it is for")
{
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    CHECK(storing.IsStoring());
    CHECK_FALSE(storing.IsLoading());
    CHECK(storing.GetFile() == &file);
    CHECK(storing.IsBufferEmpty());
    CHECK(storing.m_pDocument == NULL);
    CHECK(storing.GetObjectSchema() == static_cast<UINT>(-1));
    storing << 1;
    CHECK_FALSE(storing.IsBufferEmpty());
    int value = 0;
    CHECK(ArchiveCauseOf([&] { storing >> value; }) == CArchiveException::writeOnly);
    storing.Close();
    file.SeekToBegin();
    CArchive loading(&file, CArchive::load);
    CHECK(loading.IsLoading());
    CHECK_FALSE(loading.IsStoring());
    CHECK(ArchiveCauseOf([&] { loading << 1; }) == CArchiveException::readOnly);
    loading >> value;
    CHECK(value == 1);
    CHECK(Throws<CInvalidArgException>([] { CArchive(NULL, CArchive::load); }));
}

TEST_CASE("a closed archive takes and gives nothing more")
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    ar.Close();
    ar.Close();
    ar.Abort();
    CHECK(ar.GetFile() == NULL);
    CHECK(ArchiveCauseOf([&] { ar << 1; }) == CArchiveException::generic);
    CHECK(ArchiveCauseOf([&] { ar.Flush(); }) == CArchiveException::generic);
    CHECK(file.GetLength() == 0);
}

TEST_CASE("blocks of any size pass through buffers of any size")
{
    std::vector<BYTE> block(10000);
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = static_cast<BYTE>(i * 7);
    BYTE room[200];
    for (const int size : {0, 1, 128, 200, 9999, 10000, 10001}) {
        CAPTURE(size);
        for (const bool ownRoom : {false, true}) {
            CMemFile file;
            CArchive storing(&file, CArchive::store, ownRoom ? min(size, 200) : size,
                             ownRoom ? room : NULL);
            storing << static_cast<BYTE>(1);
            storing.Write(block.data(), static_cast<INT>(block.size()));
            storing.Write(block.data(), 0);
            storing.Close();
            CHECK(file.GetLength() == block.size() + 1);
            file.SeekToBegin();
            CArchive loading(&file, CArchive::load, ownRoom ? min(size, 200) : size,
                             ownRoom ? room : NULL);
            BYTE first = 0;
            loading >> first;
            std::vector<BYTE> loaded(block.size() + 5);
            CHECK(loading.Read(loaded.data(), static_cast<UINT>(loaded.size())) == block.size());
            loaded.resize(block.size());
            CHECK(loaded == block);
            CHECK(loading.Read(loaded.data(), 1) == 0);
        }
    }
}

TEST_CASE("a file that gives little at a time is read all the same")
{
    CDripFile file;
    CArchive storing(&file, CArchive::store);
    const CString text('t', 5000);
    storing << 12345 << text;
    storing.Close();
    file.SeekToBegin();
    CArchive loading(&file, CArchive::load);
    int number = 0;
    CString loaded;
    loading >> number >> loaded;
    CHECK(number == 12345);
    CHECK(loaded == text);
}

TEST_CASE("what is behind an archive in the file can be read when the archive is over")
{
    const TestFolder folder;
    CFile file(folder / _T("both.dat"), CFile::modeCreate | CFile::modeReadWrite);
    file.Write("head", 4);
    {
        CArchive ar(&file, CArchive::store);
        ar << 7;
        ar.Flush();
        CHECK(file.GetLength() == 8);
        ar << 8;
    }
    file.Write("tail", 4);
    file.Seek(4, CFile::begin);
    {
        CArchive ar(&file, CArchive::load);
        int value = 0;
        ar >> value;
        CHECK(value == 7);
        ar.Flush();
        CHECK(file.GetPosition() == 8);
        ar >> value;
        CHECK(value == 8);
    }
    char text[4];
    CHECK(file.Read(text, 4) == 4);
    CHECK(std::string(text, 4) == "tail");
}

TEST_CASE("a value that is cut short throws and keeps what it had")
{
    const std::string number = "\x01\x02\x03"s;
    int value = 42;
    double fraction = 1.5;
    CHECK(CauseOfLoading(number, [&](CArchive& ar) { ar >> value; }) ==
          CArchiveException::endOfFile);
    CHECK(value == 42);
    CHECK(CauseOfLoading(number, [&](CArchive& ar) { ar >> fraction; }) ==
          CArchiveException::endOfFile);
    CHECK(fraction == 1.5);
    CRect rect(1, 2, 3, 4);
    CHECK(CauseOfLoading("\x05\0\0\0\x06\0\0"s, [&](CArchive& ar) { ar >> rect; }) ==
          CArchiveException::endOfFile);
    CHECK(rect == CRect(1, 2, 3, 4));
    CTime time(77);
    CHECK(CauseOfLoading(number, [&](CArchive& ar) { ar >> time; }) ==
          CArchiveException::endOfFile);
    CHECK(time == CTime(77));
}

TEST_CASE("a length that cannot be true ends with the file, and the string keeps its text")
{
    const std::string lengths[] = {
        "\x05"s + "abc",
        "\xFF\x00\xF0"s + "abc",
        "\xFF\xFF\xFF\xFE\xFF\xFF\xFF"s + "abc",
        "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"s + "abc",
        "\xFF\xFE\xFF\xFF\xFF\xFF\xFE\xFF\xFF\xFF"s + "abc",
        "\xFF\xFE\xFF\x02"s + "abc",
        "\xFF\xFE"s,
        "\xFF"s,
        ""s,
    };
    for (const std::string& bytes : lengths) {
        CAPTURE(bytes.size());
        const LittleMemory noGreatBlocks; // Nothing is allocated for what is not there.
        REQUIRE(noGreatBlocks.IsInstalled());
        CStringA narrow("kept");
        CStringW wide(L"kept");
        CHECK(CauseOfLoading(bytes, [&](CArchive& ar) { ar >> narrow; }) ==
              CArchiveException::endOfFile);
        CHECK(CauseOfLoading(bytes, [&](CArchive& ar) { ar >> wide; }) ==
              CArchiveException::endOfFile);
        CHECK(narrow == "kept");
        CHECK(wide == L"kept");
    }
}

TEST_CASE("an exception of an archive names the file")
{
    CString name;
    try {
        LoadFrom("", [](CArchive& ar) {
            int value;
            ar >> value;
        });
    } catch (CArchiveException* e) {
        name = e->m_strFileName;
        e->Delete();
    }
    CHECK(name == "memory.dat");
}

TEST_CASE("what the file cannot write is told once, and not again by the archive's end")
{
    CFullFile file;
    CHECK(CauseOf([&] {
              CArchive ar(&file, CArchive::store);
              ar << 1;
              ar.Close();
          }) == CFileException::diskFull);
    CHECK(file.m_nWrites == 1);
    CHECK(CauseOf([&] {
              CArchive ar(&file, CArchive::store);
              ar << 1;
          }) == CFileException::diskFull);
    CHECK(file.m_nWrites == 2);
    {
        CArchive ar(&file, CArchive::store);
        ar << 1;
        ar.Abort();
    }
    {
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete);
        ar << 1;
    }
    CHECK(file.m_nWrites == 2);
}

TEST_CASE("an archive that loads may outlive the opening of its file")
{
    const TestFolder folder;
    WriteFile(folder / _T("four.dat"), "fourmore");
    CFile file(folder / _T("four.dat"), CFile::modeRead);
    CArchive ar(&file, CArchive::load);
    int value = 0;
    ar >> value;
    file.Close();
}

TEST_CASE("wrong arguments are refused")
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    CHECK(Throws<CInvalidArgException>([&] { ar.Write(NULL, 1); }));
    CHECK(Throws<CInvalidArgException>([&] { ar.Write("x", -1); }));
    CHECK(Throws<CInvalidArgException>([&] { ar.WriteString(NULL); }));
    CHECK(Throws<CInvalidArgException>([&] { ar.WriteClass(NULL); }));
    CMemFile empty;
    CArchive loading(&empty, CArchive::load);
    TCHAR line[4];
    CHECK(Throws<CInvalidArgException>([&] { loading.Read(NULL, 1); }));
    CHECK(Throws<CInvalidArgException>([&] { loading.ReadString(NULL, 4); }));
    CHECK(Throws<CInvalidArgException>([&] { loading.ReadString(line, 0); }));
    CHECK(loading.Read(NULL, 0) == 0);
}
