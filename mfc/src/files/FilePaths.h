// What files and the search for files share.
#pragma once

#include <classes/CString.h>
#include <classes/CTime.h>

namespace afxint {

/// The absolute path of a file, which need not exist; the name itself when it cannot be one.
CString FullPathOf(LPCTSTR name);

/// The name without its extension.
CString TitleOf(const CString& fileName);

/// The time of a file; zero for a time that the file system does not keep.
CTime TimeOfFile(const FILETIME& time);

} // namespace afxint
