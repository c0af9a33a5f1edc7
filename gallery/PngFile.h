// Writing PNG files, by the system's imaging component.
#pragma once

#include <umbra.h>

/// FALSE when the file could not be written. COM must be up.
BOOL WritePng(const CString& path, HBITMAP bitmap);
