// The few names of Windows and of the class library that the toolkit's pure parts use, so that they
// compile for the system that builds them. What a harness calls through them, it defines itself.
#pragma once

#include <climits>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <strings.h>

#define __declspec(mark)
#define WINAPI
#define CALLBACK

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned;
using UINT_PTR = std::uintptr_t;
using LPARAM = std::intptr_t;
using COLORREF = DWORD;
using LPCSTR = const char*;
using TCHAR = char;
using LPTSTR = char*;
using LPCTSTR = const char*;
using LPCWSTR = const wchar_t*;
using LPOLESTR = wchar_t*;

// The harnesses are of the narrow flavour.
#define _T(text) text
template <class T, std::size_t count>
constexpr std::size_t _countof(const T (&)[count])
{
    return count;
}

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;
constexpr int MAX_PATH = 260;

struct HandleTarget;
using HANDLE = void*;
using HGDIOBJ = void*;
using HDC = HandleTarget*;
using HFONT = void*;
using HBITMAP = void*;
using HKEY = HandleTarget*;
using HINSTANCE = HandleTarget*;
using HWND = HandleTarget*;

/// Formats, so that what a trace reads is watched as well, and says nothing.
__attribute__((format(printf, 1, 2))) inline void TRACE(const char* format, ...)
{
    char text[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
}

inline WORD LOWORD(LONG value)
{
    return static_cast<WORD>(value & 0xFFFF);
}
inline WORD HIWORD(LONG value)
{
    return static_cast<WORD>(value >> 16 & 0xFFFF);
}

// Colours and palette bitmaps.
constexpr BYTE GetRValue(COLORREF color)
{
    return color & 0xFF;
}
constexpr BYTE GetGValue(COLORREF color)
{
    return color >> 8 & 0xFF;
}
constexpr BYTE GetBValue(COLORREF color)
{
    return color >> 16 & 0xFF;
}
constexpr COLORREF RGB(int red, int green, int blue)
{
    return static_cast<COLORREF>(red | green << 8 | blue << 16);
}

struct RGBQUAD
{
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

struct BITMAPINFOHEADER
{
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

struct BITMAPINFO
{
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

constexpr DWORD BI_RGB = 0;
constexpr UINT DIB_RGB_COLORS = 0;
constexpr int COLORONCOLOR = 3;
constexpr int COLOR_BTNFACE = 15;
constexpr int COLOR_BTNSHADOW = 16;
constexpr int COLOR_BTNHIGHLIGHT = 20;
COLORREF GetSysColor(int index);
int SetStretchBltMode(HDC dc, int mode);
int SetDIBitsToDevice(HDC dc, int x, int y, DWORD width, DWORD height, int fromX, int fromY,
                      UINT firstRow, UINT rows, const void* bits, const BITMAPINFO* info,
                      UINT usage);

// The registry and the shell.
inline const HKEY HKEY_CLASSES_ROOT = nullptr;
constexpr LONG ERROR_SUCCESS = 0;
constexpr LONG ERROR_FILE_NOT_FOUND = 2;
constexpr LONG ERROR_MORE_DATA = 234;
constexpr DWORD KEY_QUERY_VALUE = 1;
LONG RegOpenKeyEx(HKEY root, const char* name, DWORD options, DWORD access, HKEY* key);
LONG RegQueryValue(HKEY key, const char* name, char* value, LONG* size);
LONG RegCloseKey(HKEY key);
HINSTANCE ShellExecute(HWND window, const char* verb, const char* target, const char* parameters,
                       const char* folder, int show);
UINT WinExec(const char* command, UINT show);

// Pictures.
constexpr UINT CP_THREAD_ACP = 3;
constexpr UINT IMAGE_BITMAP = 0;
constexpr UINT LR_COPYRETURNORG = 4;
int MultiByteToWideChar(UINT codePage, DWORD flags, const char* text, int length, wchar_t* wide,
                        int capacity);
HANDLE CopyImage(HANDLE image, UINT type, int width, int height, UINT flags);
BOOL DeleteObject(HGDIOBJ object);
inline HANDLE LongToHandle(long value)
{
    return reinterpret_cast<HANDLE>(value);
}

// Fonts.
struct LOGFONT
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[32];
};

struct TEXTMETRIC
{
    LONG tmHeight;
    LONG tmExternalLeading;
};

struct SIZE
{
    LONG cx;
    LONG cy;
};

struct CREATESTRUCT
{
    int cy;
    int cx;
    int y;
    int x;
};

constexpr int LOGPIXELSY = 90;
constexpr LONG FW_NORMAL = 400;
constexpr BYTE DEFAULT_CHARSET = 1;
using FontCallback = int(const LOGFONT*, const TEXTMETRIC*, DWORD, LPARAM);
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC dc);
int GetDeviceCaps(HDC dc, int index);
int MulDiv(int number, int factor, int divisor);
int EnumFonts(HDC dc, const char* face, FontCallback* callback, LPARAM argument);
HFONT CreateFontIndirect(const LOGFONT* description);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
BOOL GetTextMetrics(HDC dc, TEXTMETRIC* metrics);
BOOL GetTextExtentPoint32(HDC dc, const char* text, int length, SIZE* size);
LONG GetDialogBaseUnits();
inline char* lstrcpy(char* out, const char* text)
{
    return std::strcpy(out, text);
}
