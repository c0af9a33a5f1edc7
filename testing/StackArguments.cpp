#include "testing/StackArguments.h"

#include <windows.h>

#include <cstring>

namespace umbra::testing {

namespace {

struct StackArguments
{
    const char* function;
    unsigned bytes;
};

// The names of 32-bit import libraries tell; the build makes the table from them.
constexpr StackArguments table[] = {
#ifndef _WIN64
#include "StackArguments.inc"
#endif
    {nullptr, 0},
};

} // namespace

unsigned ArgumentBytesOf(const char* function)
{
    if (IS_INTRESOURCE(function))
        return 0;
    const StackArguments* entry = table;
    while (entry->function != nullptr && std::strcmp(entry->function, function) != 0)
        ++entry;
    return entry->bytes;
}

} // namespace umbra::testing
