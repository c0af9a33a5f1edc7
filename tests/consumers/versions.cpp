// Sees whether the versions of the system that a host names reach its own code.
#include <umbra.h>

static_assert(WINVER == UMBRA_TEST_VERSION);
static_assert(_WIN32_WINNT == UMBRA_TEST_VERSION);
