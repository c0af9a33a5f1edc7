// Where the faces under test are: what hosts cannot see is not exported by umbra.dll, so all of
// faces/ is linked into the test program itself.
#pragma once

#include <afxwin.h>

/// The module whose calls are those of the faces.
inline HMODULE FacesModule()
{
    return ::GetModuleHandle(nullptr);
}
