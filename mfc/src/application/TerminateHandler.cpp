// What the compiler's run-time calls when an exception finds no handler.
#include <cstdlib>
#include <exception>

/// The run-time's own writes the exception's type to a console that our programs do not have, and
/// brings 70 KB of text functions along for that.
void __gnu_cxx::__verbose_terminate_handler()
{
    std::abort();
}
