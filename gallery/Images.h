// Where the program's picture files are: in the folder images beside it.
#pragma once

#include <umbra.h>

/// The folder of the program file, with a backslash at its end.
CString GalleryFolder();

/// The toolkit's image folder, with a backslash at its end.
CString ImageFolder();

/// Whether the picture files can be had.
bool HasImages();

/// The full path of a file in the image folder, "badge.gif".
CString PictureFile(const char* fileName);
