// The mark of what umbra.dll exports: classes, functions and data that hosts may use.
#pragma once

#ifdef umbra_EXPORTS // Defined while the DLL itself is built.
#define UMBRA_API __declspec(dllexport)
#else
#define UMBRA_API __declspec(dllimport)
#endif
