// Version.cpp : a source without the precompiled header, in a folder of its own

#include <Windows.h>
#include "..\Include\version.h"

#ifdef __AFXWIN_H__
#error This file goes without the precompiled header.
#endif
#pragma comment(lib, "Version.lib")

int CompanyNameLength()
{
	WCHAR path[MAX_PATH];
	static BYTE data[4000];
	WCHAR* name = NULL;
	UINT length = 0;
	GetModuleFileNameW(NULL, path, MAX_PATH);
	if (!GetFileVersionInfoW(path, 0, sizeof(data), data))
		return -1;
	if (!VerQueryValueW(data, L"\\StringFileInfo\\080404b0\\CompanyName", (void**)&name, &length))
		return -2;
	return lstrlenW(name);
}
