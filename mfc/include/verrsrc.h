// The constants of version resources under the name that newer resource scripts use.
#include <winver.h>
