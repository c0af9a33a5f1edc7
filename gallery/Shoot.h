// Draws every page of the gallery into picture files.
#pragma once

#include <umbra.h>

/// Writes one PNG file a page or state, and an index.html that shows them, into the folder, which
/// is made if need be. FALSE when any of them could not be written; the reasons go to the standard
/// error stream.
BOOL ShootGallery(const CString& folder);
