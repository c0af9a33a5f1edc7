// The file names of the libraries of this flavour.
#pragma once

#ifdef UNICODE
#define UMBRA_DLL "umbrau.dll"
#define UMBRA_MFC_DLL "umbra-mfcu.dll"
#else
#define UMBRA_DLL "umbra.dll"
#define UMBRA_MFC_DLL "umbra-mfc.dll"
#endif
