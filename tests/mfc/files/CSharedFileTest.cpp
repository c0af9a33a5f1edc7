#include <afxadv.h>

#include <doctest/doctest.h>

#include "tests/mfc/Throws.h"

#include <string>

namespace {

std::string ContentOf(HGLOBAL memory, size_t length)
{
    const char* text = static_cast<const char*>(::GlobalLock(memory));
    const std::string content(text, text + length);
    ::GlobalUnlock(memory);
    return content;
}

HGLOBAL MakeMemory(const std::string& content)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, content.size());
    memcpy(::GlobalLock(memory), content.data(), content.size());
    ::GlobalUnlock(memory);
    return memory;
}

bool IsLocked(HGLOBAL memory)
{
    return (::GlobalFlags(memory) & GMEM_LOCKCOUNT) != 0;
}

} // namespace

TEST_CASE("what is written can be given to others, unlocked")
{
    CSharedFile file;
    const std::string text(10000, 't');
    file.Write(text.data(), 5000);
    file.Write(text.data(), 5000);
    CHECK(file.GetLength() == 10000);
    const HGLOBAL memory = file.Detach();
    REQUIRE(memory != NULL);
    CHECK_FALSE(IsLocked(memory));
    CHECK(::GlobalSize(memory) >= 10000);
    CHECK(ContentOf(memory, 10000) == text);
    CHECK(file.GetLength() == 0);
    CHECK(file.Detach() == NULL);
    CHECK(::GlobalFree(memory) == NULL);
}

TEST_CASE("an archive goes to the clipboard's kind of memory and comes back")
{
    CSharedFile file;
    {
        CArchive ar(&file, CArchive::store);
        ar << 5 << CString(_T("text"));
    }
    const HGLOBAL memory = file.Detach();
    CSharedFile copy;
    copy.SetHandle(memory);
    CArchive ar(&copy, CArchive::load);
    int number = 0;
    CString text;
    ar >> number >> text;
    CHECK(number == 5);
    CHECK(text == "text");
}

TEST_CASE("memory of others is the file, and is owned by it")
{
    CSharedFile file;
    file.Write("before", 6);
    const HGLOBAL memory = MakeMemory(std::string(64, 'a'));
    file.SetHandle(memory);
    CHECK(IsLocked(memory));
    CHECK(file.GetLength() >= 64);
    CHECK(file.GetPosition() == 0);
    file.Write("b", 1);
    file.SeekToEnd();
    const std::string more(100000, 'c');
    file.Write(more.data(), static_cast<UINT>(more.size()));
    const HGLOBAL grown = file.Detach();
    CHECK(ContentOf(grown, 2) == "ba");
    ::GlobalFree(grown);
}

TEST_CASE("memory that must not grow does not")
{
    CSharedFile file;
    file.SetHandle(MakeMemory(std::string(16, 'a')), FALSE);
    file.SeekToEnd();
    const std::string more(100000, 'c');
    CHECK(
        Throws<CMemoryException>([&] { file.Write(more.data(), static_cast<UINT>(more.size())); }));
    file.SeekToBegin();
    char first = 0;
    CHECK(file.Read(&first, 1) == 1);
    CHECK(first == 'a');
    CHECK(Throws<CInvalidArgException>([&] { file.SetHandle(NULL); }));
}

TEST_CASE("memory is freed with the file")
{
    const HGLOBAL memory = MakeMemory(std::string(16, 'a'));
    {
        CSharedFile file;
        file.SetHandle(memory);
    }
    CHECK(::GlobalFlags(memory) == GMEM_INVALID_HANDLE);
}
