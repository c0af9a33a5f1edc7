#include <classes/CException.h>
#include <classes/Conversions.h>

namespace {

/// The buffer when it has room for so many characters, else new memory.
template <class Char>
Char* RoomFor(size_t characters, Char* buffer, int bufferLength)
{
    if (characters <= static_cast<size_t>(bufferLength))
        return buffer;
    void* memory = malloc(characters * sizeof(Char));
    if (memory == NULL)
        AfxThrowMemoryException();
    return static_cast<Char*>(memory);
}

} // namespace

LPWSTR AfxWiden(LPCSTR text, UINT codePage, LPWSTR buffer, int bufferLength)
{
    if (text == NULL)
        return NULL;
    const int needed = ::MultiByteToWideChar(codePage, 0, text, -1, NULL, 0);
    if (needed <= 0)
        AfxThrowInvalidArgException();
    LPWSTR wide = RoomFor(needed, buffer, bufferLength);
    ::MultiByteToWideChar(codePage, 0, text, -1, wide, needed);
    return wide;
}

LPSTR AfxNarrow(LPCWSTR text, UINT codePage, LPSTR buffer, int bufferLength)
{
    if (text == NULL)
        return NULL;
    const int needed = ::WideCharToMultiByte(codePage, 0, text, -1, NULL, 0, NULL, NULL);
    if (needed <= 0)
        AfxThrowInvalidArgException();
    LPSTR narrow = RoomFor(needed, buffer, bufferLength);
    ::WideCharToMultiByte(codePage, 0, text, -1, narrow, needed, NULL, NULL);
    return narrow;
}

LPSTR AfxCopyText(LPCSTR text, LPSTR buffer, int bufferLength)
{
    if (text == NULL)
        return NULL;
    const size_t characters = strlen(text) + 1;
    LPSTR copy = RoomFor(characters, buffer, bufferLength);
    memcpy(copy, text, characters);
    return copy;
}

LPWSTR AfxCopyText(LPCWSTR text, LPWSTR buffer, int bufferLength)
{
    if (text == NULL)
        return NULL;
    const size_t characters = wcslen(text) + 1;
    LPWSTR copy = RoomFor(characters, buffer, bufferLength);
    memcpy(copy, text, characters * sizeof(wchar_t));
    return copy;
}

void AfxReleaseConverted(void* converted, const void* buffer)
{
    if (converted != buffer)
        free(converted);
}

/// What stands before each result of a scope.
struct AFX_CONVERSIONS::Block
{
    Block* older;
};

AFX_CONVERSIONS::~AFX_CONVERSIONS()
{
    while (newest_ != NULL) {
        Block* older = newest_->older;
        free(newest_);
        newest_ = older;
    }
}

LPWSTR AFX_CONVERSIONS::Widen(LPCSTR text)
{
    if (text == NULL)
        return NULL;
    // No text has more UTF-16 units than bytes.
    const int room = static_cast<int>(strlen(text)) + 1;
    auto* wide = static_cast<LPWSTR>(Allocate(room * sizeof(wchar_t)));
    if (::MultiByteToWideChar(CP_ACP, 0, text, -1, wide, room) == 0)
        AfxThrowInvalidArgException();
    return wide;
}

LPSTR AFX_CONVERSIONS::Narrow(LPCWSTR text)
{
    if (text == NULL)
        return NULL;
    const int room = ::WideCharToMultiByte(CP_ACP, 0, text, -1, NULL, 0, NULL, NULL);
    if (room <= 0)
        AfxThrowInvalidArgException();
    auto* narrow = static_cast<LPSTR>(Allocate(room));
    ::WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, room, NULL, NULL);
    return narrow;
}

void* AFX_CONVERSIONS::Allocate(size_t bytes)
{
    auto* block = static_cast<Block*>(malloc(sizeof(Block) + bytes));
    if (block == NULL)
        AfxThrowMemoryException();
    block->older = newest_;
    newest_ = block;
    return block + 1;
}

BSTR A2BSTR(LPCSTR lp)
{
    return lp == NULL ? NULL : W2BSTR(CA2W(lp));
}

BSTR W2BSTR(LPCWSTR lp)
{
    if (lp == NULL)
        return NULL;
    BSTR result = ::SysAllocString(lp);
    if (result == NULL)
        AfxThrowMemoryException();
    return result;
}
