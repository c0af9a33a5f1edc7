#include <afx.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <memory>
#include <string>
#include <vector>

namespace {

std::string ContentOf(CFile& file)
{
    std::string content(static_cast<size_t>(file.GetLength()), '?');
    file.SeekToBegin();
    content.resize(file.Read(content.data(), static_cast<UINT>(content.size())));
    return content;
}

/// Takes its memory from itself, and has no more than that.
class CSmallMemFile : public CMemFile
{
public:
    explicit CSmallMemFile(UINT nGrowBytes) : CMemFile(nGrowBytes) {}
    ~CSmallMemFile() override { Close(); }
    int m_nAllocated = 0;
    int m_nFreed = 0;
    size_t m_nCopied = 0;

protected:
    BYTE* Alloc(SIZE_T nBytes) override
    {
        ++m_nAllocated;
        return nBytes <= sizeof(room_) ? room_ : NULL;
    }
    BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) override
    {
        CHECK(lpMem == room_);
        return nBytes <= sizeof(room_) ? room_ : NULL;
    }
    BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes) override
    {
        m_nCopied += nBytes;
        return CMemFile::Memcpy(lpMemTarget, lpMemSource, nBytes);
    }
    void Free(BYTE* lpMem) override
    {
        CHECK(lpMem == room_);
        ++m_nFreed;
    }

private:
    BYTE room_[64];
};

} // namespace

TEST_CASE("what is written to memory is read from it")
{
    CMemFile file;
    CHECK(file.GetLength() == 0);
    file.Write("0123456789", 10);
    file.Write(NULL, 0);
    CHECK(file.GetLength() == 10);
    CHECK(file.GetPosition() == 10);
    CHECK(file.Seek(-3, CFile::end) == 7);
    CHECK(file.Seek(-2, CFile::current) == 5);
    file.Write("five", 4);
    CHECK(file.GetLength() == 10);
    char buffer[20];
    CHECK(file.Read(buffer, 20) == 1);
    CHECK(file.Read(buffer, 20) == 0);
    CHECK(file.Read(NULL, 0) == 0);
    CHECK(ContentOf(file) == "01234five9");
    file.Flush();
    file.Close();
    CHECK(file.GetLength() == 0);
}

TEST_CASE("memory grows with the file and survives")
{
    CMemFile file(16);
    std::string expected;
    for (int i = 0; i < 5000; ++i) {
        const std::string text = std::to_string(i);
        file.Write(text.data(), static_cast<UINT>(text.size()));
        expected += text;
    }
    CHECK(ContentOf(file) == expected);
    file.AssertValid();
}

TEST_CASE("a file may be made longer and shorter, and has zeros where nothing was written")
{
    CMemFile file;
    file.Write("abc", 3);
    file.SetLength(6);
    CHECK(file.GetPosition() == 3);
    CHECK(file.Seek(8, CFile::begin) == 8);
    char buffer[4];
    CHECK(file.Read(buffer, 4) == 0);
    file.Write("x", 1);
    CHECK(ContentOf(file) == std::string("abc\0\0\0\0\0x", 9));
    file.SetLength(2);
    CHECK(file.GetPosition() == 2);
    CHECK(ContentOf(file) == "ab");
    file.SetLength(4);
    CHECK(ContentOf(file) == std::string("ab\0\0", 4));
}

TEST_CASE("positions that do not exist are refused")
{
    CMemFile file;
    CHECK(CauseOf([&] { file.Seek(-1, CFile::begin); }) == CFileException::badSeek);
    CHECK(CauseOf([&] { file.Seek(-1, CFile::current); }) == CFileException::badSeek);
    CHECK(CauseOf([&] { file.Seek(0, 7); }) == CFileException::badSeek);
    file.Write("abc", 3);
    CHECK(CauseOf([&] { file.Seek(LLONG_MAX, CFile::current); }) == CFileException::badSeek);
    CHECK(file.GetPosition() == 3);
    file.Seek(static_cast<LONGLONG>(PTRDIFF_MAX), CFile::begin);
    CHECK(Throws<CMemoryException>([&] { file.Write("x", 1); }));
    CHECK(Throws<CMemoryException>([&] { file.SetLength(ULLONG_MAX); }));
    CHECK(file.GetLength() == 3);
    CHECK(ContentOf(file) == "abc");
}

TEST_CASE("a block of the caller's is the file, and does not grow")
{
    BYTE block[] = "content";
    CMemFile file(block, 7);
    CHECK(file.GetLength() == 7);
    CHECK(ContentOf(file) == "content");
    file.SeekToBegin();
    file.Write("C", 1);
    CHECK(block[0] == 'C');
    file.SeekToEnd();
    CHECK(Throws<CMemoryException>([&] { file.Write("x", 1); }));
    CHECK(file.GetLength() == 7);
    CHECK(file.Detach() == block);
    CHECK(file.GetLength() == 0);
    file.Attach(block, 3);
    CHECK(ContentOf(file) == "Con");
    CHECK(Throws<CInvalidArgException>([] { CMemFile(NULL, 3); }));
}

TEST_CASE("a block that may grow begins empty and is the caller's still")
{
    BYTE* const block = static_cast<BYTE*>(malloc(4));
    CMemFile file;
    file.Attach(block, 4, 100);
    CHECK(file.GetLength() == 0);
    file.Write("ab", 2);
    CHECK(block[0] == 'a');
    file.Write("cdefgh", 6);
    CHECK(ContentOf(file) == "abcdefgh");
    free(file.Detach());
}

TEST_CASE("detached memory is the caller's")
{
    CMemFile file;
    file.Write("abc", 3);
    BYTE* const block = file.Detach();
    REQUIRE(block != NULL);
    CHECK(std::string(reinterpret_cast<char*>(block), 3) == "abc");
    CHECK(file.GetLength() == 0);
    CHECK(file.Detach() == NULL);
    free(block);
}

TEST_CASE("the memory itself can be read and written")
{
    CMemFile file;
    CHECK(file.GetBufferPtr(CMemFile::bufferCheck) == TRUE);
    void* start = NULL;
    void* end = NULL;
    CHECK(file.GetBufferPtr(CMemFile::bufferWrite, 5, &start, &end) == 5);
    CHECK(static_cast<BYTE*>(end) - static_cast<BYTE*>(start) == 5);
    memcpy(start, "abc", 3);
    CHECK(file.GetLength() == 0);
    CHECK(file.GetBufferPtr(CMemFile::bufferCommit, 3) == 0);
    CHECK(file.GetLength() == 3);
    CHECK(file.GetPosition() == 3);
    CHECK(Throws<CInvalidArgException>([&] { file.GetBufferPtr(CMemFile::bufferCommit, 100000); }));
    CHECK(ContentOf(file) == "abc");

    file.Seek(1, CFile::begin);
    CHECK(file.GetBufferPtr(CMemFile::bufferRead, 10, &start, &end) == 2);
    CHECK(std::string(static_cast<char*>(start), static_cast<char*>(end)) == "bc");
    CHECK(file.GetPosition() == 3);
    CHECK(file.GetBufferPtr(CMemFile::bufferRead, 10, &start, &end) == 0);
    file.Seek(1000000, CFile::begin);
    CHECK(file.GetBufferPtr(CMemFile::bufferRead, 10, &start, &end) == 0);
    CHECK(start == end);
    file.Seek(5, CFile::begin);
    CHECK(file.GetBufferPtr(CMemFile::bufferWrite, 1, &start, &end) == 1);
    *static_cast<char*>(start) = 'x';
    file.GetBufferPtr(CMemFile::bufferCommit, 1);
    CHECK(ContentOf(file) == std::string("abc\0\0x", 6));
    CHECK(Throws<CInvalidArgException>([&] { file.GetBufferPtr(CMemFile::bufferRead, 1); }));
    CHECK(Throws<CInvalidArgException>([&] { file.GetBufferPtr(77, 1, &start, &end); }));
}

TEST_CASE("a derived class has memory of its own")
{
    int freed = 0;
    {
        CSmallMemFile file(8);
        file.Write("0123456789", 10);
        CHECK(file.m_nAllocated == 1);
        CHECK(file.m_nCopied == 10);
        CHECK(Throws<CMemoryException>([&] { file.Write(std::string(60, 'x').data(), 60); }));
        CHECK(ContentOf(file) == "0123456789"); // As before.
        file.Close();
        freed = file.m_nFreed;
    }
    CHECK(freed == 1);
}

TEST_CASE("what memory cannot do is not supported")
{
    CMemFile file;
    CHECK(Throws<CNotSupportedException>([&] { std::unique_ptr<CFile>(file.Duplicate()); }));
    CHECK(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    CHECK(Throws<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
    CHECK(Throws<CInvalidArgException>([&] { file.Write(NULL, 1); }));
    file.Write("x", 1);
    file.SeekToBegin();
    CHECK(Throws<CInvalidArgException>([&] { file.Read(NULL, 1); }));
    CFileStatus status;
    CHECK_FALSE(file.GetStatus(status));
}
