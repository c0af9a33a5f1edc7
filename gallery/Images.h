// Where the program's picture files are: in the folder images beside it.
#pragma once

#include <umbra.h>

/// A folder with a backslash at its end; the empty one stays empty.
CString EndWithBackslash(const CString& folder);

/// The folder of the program file, with a backslash at its end.
CString GalleryFolder();

/// The toolkit's image folder, with a backslash at its end.
CString ImageFolder();

/// Whether the picture files can be had.
bool HasImages();

/// The full path of a file in the image folder, "badge.gif".
CString PictureFile(LPCTSTR fileName);
