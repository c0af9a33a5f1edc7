// Knows how many bytes of arguments a system function takes off the stack, which only 32-bit ones
// do.
#pragma once

namespace umbra::testing {

/// By the function's name. 0 for one that leaves them to its caller, for one imported by ordinal,
/// for an unknown one, and for all in 64-bit programs.
unsigned ArgumentBytesOf(const char* function);

} // namespace umbra::testing
