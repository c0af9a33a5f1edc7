// Picture files as plain bitmaps.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

/// Loads a picture file (BMP, GIF, JPEG and whatever else the system's picture loader reads) as a
/// bitmap that the caller owns and deletes with DeleteObject. A name that does not load as it
/// stands is tried once more below the current working directory. NULL when there is no such
/// picture, when it is an icon or a metafile, or when the path is too long; nothing is reported.
UMBRA_API HBITMAP LoadPictureBitmap(LPCTSTR path);
