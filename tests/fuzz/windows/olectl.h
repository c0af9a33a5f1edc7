#pragma once

#include "ocidl.h"

HRESULT OleLoadPicturePath(wchar_t* path, void* caller, DWORD reserved, COLORREF color,
                           const IID& kind, void** picture);
