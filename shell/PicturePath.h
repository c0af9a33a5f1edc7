// The path of a picture below the working directory.
#pragma once

#include <afxwin.h>

namespace umbra {

/// Writes directory + "//" + path into `out`, a buffer of `capacity` characters with room for the
/// terminator. FALSE when it does not fit; `out` is then an empty string.
BOOL JoinPicturePath(LPCTSTR directory, LPCTSTR path, LPTSTR out, size_t capacity);

} // namespace umbra
