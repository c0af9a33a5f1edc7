// What the source with DllMain of an extension DLL includes.
#pragma once
#include <afxwin.h>
