// The characters of a CString and what stands before them: a counted buffer, which strings share
// until one of them writes.
#pragma once

#include <classes/Platform.h>

#include <atomic>

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
    char terminator = '\0';
};
extern EmptyBuffer nothing;

inline Buffer& HeadOf(const char* data)
{
    return const_cast<Buffer*>(reinterpret_cast<const Buffer*>(data))[-1];
}

inline char* Nothing()
{
    return reinterpret_cast<char*>(&nothing.head + 1);
}

inline bool IsLocked(const char* data)
{
    return HeadOf(data).references == locked;
}

/// Whether the characters may be written in place.
inline bool IsOwned(const char* data)
{
    return data != Nothing() && HeadOf(data).references <= 1;
}

inline void SetLengthOf(char* data, int length)
{
    HeadOf(data).length = length;
    data[length] = '\0';
}

// What allocates throws CMemoryException for want of memory, and leaves the string as it was.

/// New characters of a string's own, with room for `capacity` of them.
char* CopyOf(const char* text, int length, int capacity);

/// The same characters for another string; a copy of those that are locked.
char* Share(char* data);

/// Ends a string's use of the characters; the last one's frees them.
void Release(char* data);

/// Makes the characters the string's own, with room for at least `capacity` of them.
void MakeWritable(char*& data, int capacity);

/// Gives the string other characters, which may be a part of its present ones.
void Assign(char*& data, const char* text, int length);

/// Adds characters, which may be a part of the present ones.
void AppendTo(char*& data, const char* text, int added);

} // namespace afxint
