// The characters of a CString and what stands before them: a counted buffer, which strings share
// until one of them writes.
#pragma once

#include <classes/CException.h>

#include <atomic>
#include <string>
#include <utility>

namespace afxint {

/// What stands before the characters of a string.
struct Buffer
{
    std::atomic<int> references; ///< The strings that share it, or `locked`.
    int length;
    int capacity; ///< Without the terminator.
};

constexpr int locked = -1;
constexpr int longest = INT_MAX - 64;

/// The buffer of all empty strings; it is never counted nor written.
struct EmptyBuffer
{
    Buffer head{1, 0, 0};
    wchar_t terminator = L'\0';
};
extern EmptyBuffer nothing;

template <class Char>
Buffer& HeadOf(const Char* data)
{
    return const_cast<Buffer*>(reinterpret_cast<const Buffer*>(data))[-1];
}

template <class Char>
Char* Nothing()
{
    return reinterpret_cast<Char*>(&nothing.head + 1);
}

template <class Char>
bool IsLocked(const Char* data)
{
    return HeadOf(data).references == locked;
}

/// Whether the characters may be written in place.
template <class Char>
bool IsOwned(const Char* data)
{
    return data != Nothing<Char>() && HeadOf(data).references <= 1;
}

template <class Char>
void SetLengthOf(Char* data, int length)
{
    HeadOf(data).length = length;
    data[length] = Char();
}

/// The length of text that ends with a terminator, or after so many characters.
template <class Char>
int LengthWithin(const Char* text, int longestLength)
{
    const Char* end = std::char_traits<Char>::find(text, longestLength, Char());
    return end == NULL ? longestLength : static_cast<int>(end - text);
}

// What allocates throws CMemoryException for want of memory, and leaves the string as it was.

/// New characters of a string's own, with room for `capacity` of them.
template <class Char>
Char* CopyOf(const Char* text, int length, int capacity)
{
    void* memory = malloc(sizeof(Buffer) + (static_cast<size_t>(capacity) + 1) * sizeof(Char));
    if (memory == NULL)
        AfxThrowMemoryException();
    Buffer* head = ::new (memory) Buffer{1, 0, capacity};
    auto* copy = reinterpret_cast<Char*>(head + 1);
    std::char_traits<Char>::copy(copy, text, length);
    SetLengthOf(copy, length);
    return copy;
}

/// The same characters for another string; a copy of those that are locked.
template <class Char>
Char* Share(Char* data)
{
    if (data == Nothing<Char>())
        return data;
    if (!IsLocked(data)) {
        ++HeadOf(data).references;
        return data;
    }
    return CopyOf(data, HeadOf(data).length, HeadOf(data).length);
}

/// Ends a string's use of the characters; the last one's frees them.
template <class Char>
void Release(Char* data)
{
    if (data == Nothing<Char>())
        return;
    Buffer& head = HeadOf(data);
    if (head.references == locked || --head.references == 0)
        free(&head);
}

/// Makes the characters the string's own, with room for at least `capacity` of them.
template <class Char>
void MakeWritable(Char*& data, int capacity)
{
    if (capacity < 0)
        AfxThrowInvalidArgException();
    const Buffer& head = HeadOf(data);
    const bool owned = IsOwned(data);
    if (owned && head.capacity >= capacity)
        return;
    capacity = max(capacity, head.length);
    if (owned) // Growing: leave room, so that appending piece by piece stays cheap.
        capacity = static_cast<int>(min<LONGLONG, int>(
            max<LONGLONG, int>(head.capacity + head.capacity / 2LL, capacity), longest));
    Char* copy = CopyOf(data, head.length, capacity);
    if (IsLocked(data))
        HeadOf(copy).references = locked;
    Release(data);
    data = copy;
}

/// Gives the string other characters, which may be a part of its present ones.
template <class Char>
void Assign(Char*& data, const Char* text, int length)
{
    if (length < 0 || (text == NULL && length > 0))
        AfxThrowInvalidArgException();
    if (IsOwned(data) && HeadOf(data).capacity >= length) {
        std::char_traits<Char>::move(data, text, length);
        SetLengthOf(data, length);
        return;
    }
    if (length == 0 && !IsLocked(data)) {
        Release(std::exchange(data, Nothing<Char>()));
        return;
    }
    Char* copy = CopyOf(text, length, length);
    if (IsLocked(data))
        HeadOf(copy).references = locked;
    Release(std::exchange(data, copy));
}

/// Adds characters, which may be a part of the present ones.
template <class Char>
void AppendTo(Char*& data, const Char* text, int added)
{
    const int length = HeadOf(data).length;
    if (added == 0)
        return;
    if (added > longest - length)
        AfxThrowMemoryException();
    const bool isPart = text >= data && text <= data + length;
    const ptrdiff_t offset = isPart ? text - data : 0;
    MakeWritable(data, length + added);
    std::char_traits<Char>::move(data + length, isPart ? data + offset : text, added);
    SetLengthOf(data, length + added);
}

} // namespace afxint
