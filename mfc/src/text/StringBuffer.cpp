#include "text/StringBuffer.h"

#include <classes/CException.h>

#include <utility>

namespace afxint {

constinit EmptyBuffer nothing;

namespace {

char* Allocate(int capacity)
{
    void* memory = malloc(sizeof(Buffer) + static_cast<size_t>(capacity) + 1);
    if (memory == NULL)
        AfxThrowMemoryException();
    Buffer* head = ::new (memory) Buffer{1, 0, capacity};
    char* data = reinterpret_cast<char*>(head + 1);
    data[0] = '\0';
    return data;
}

} // namespace

void Release(char* data)
{
    if (data == Nothing())
        return;
    Buffer& head = HeadOf(data);
    if (head.references == locked || --head.references == 0)
        free(&head);
}

char* CopyOf(const char* text, int length, int capacity)
{
    char* copy = Allocate(capacity);
    memcpy(copy, text, length);
    SetLengthOf(copy, length);
    return copy;
}

char* Share(char* data)
{
    if (data == Nothing())
        return data;
    if (!IsLocked(data)) {
        ++HeadOf(data).references;
        return data;
    }
    return CopyOf(data, HeadOf(data).length, HeadOf(data).length);
}

void MakeWritable(char*& data, int capacity)
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
    char* copy = CopyOf(data, head.length, capacity);
    if (IsLocked(data))
        HeadOf(copy).references = locked;
    Release(data);
    data = copy;
}

void Assign(char*& data, const char* text, int length)
{
    if (length < 0 || (text == NULL && length > 0))
        AfxThrowInvalidArgException();
    if (IsOwned(data) && HeadOf(data).capacity >= length) {
        if (length > 0)
            memmove(data, text, length);
        SetLengthOf(data, length);
        return;
    }
    if (length == 0 && !IsLocked(data)) {
        Release(std::exchange(data, Nothing()));
        return;
    }
    char* copy = CopyOf(text, length, length);
    if (IsLocked(data))
        HeadOf(copy).references = locked;
    Release(std::exchange(data, copy));
}

void AppendTo(char*& data, const char* text, int added)
{
    const int length = HeadOf(data).length;
    if (added == 0)
        return;
    if (added > longest - length)
        AfxThrowMemoryException();
    const bool isPart = text >= data && text <= data + length;
    const ptrdiff_t offset = isPart ? text - data : 0;
    MakeWritable(data, length + added);
    memmove(data + length, isPart ? data + offset : text, added);
    SetLengthOf(data, length + added);
}

} // namespace afxint
