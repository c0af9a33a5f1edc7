// What every header of the class library stands on: the Windows headers, the plain macros of the
// library, and the diagnostics.
#pragma once

// The characters of the program and of the library that it links have to be the same. UMBRA_NARROW
// and UMBRA_UNICODE come with the library's targets.
#if defined(UMBRA_NARROW) && defined(UMBRA_UNICODE)
#error "a program links one flavour of Umbra: umbra::umbra, or umbra::umbra-unicode"
#elif defined(UMBRA_NARROW) && (defined(UNICODE) || defined(_UNICODE))
#error "UNICODE is defined, but the narrow Umbra is linked: link umbra::umbra-unicode"
#elif defined(UMBRA_UNICODE) && !(defined(UNICODE) && defined(_UNICODE))
#error "the Unicode Umbra is linked: define UNICODE and _UNICODE, or link umbra::umbra"
#elif defined(UNICODE) != defined(_UNICODE)
#error "UNICODE is for the Windows headers and _UNICODE for tchar.h: define both or neither"
#endif
#if defined(UNICODE) && !defined(_UNICODE) // So that the error above stays the only one.
#define _UNICODE
#elif defined(_UNICODE) && !defined(UNICODE)
#define UNICODE
#endif

#ifndef NOMINMAX
#define NOMINMAX // The min and max macros break the standard library; templates stand in below.
#endif

// The oldest system that is meant, unless the program names another one.
#ifndef _WIN32_WINNT
#ifdef WINVER
#define _WIN32_WINNT WINVER
#else
#define _WIN32_WINNT 0x0501
#endif
#endif
#ifndef WINVER
#define WINVER _WIN32_WINNT
#endif
#ifndef _WIN32_IE
#define _WIN32_IE 0x0600
#endif

#include <windows.h>
#include <windowsx.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlwapi.h>
#include <oleauto.h>
#include <tchar.h>

#include <limits.h>
#include <math.h>
#include <stdarg.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <type_traits>

#include <classes/MultibyteNames.h>

// Function-like macros of the Windows headers over names of members.
#undef GetNextWindow
#undef GetCurrentTime
#undef SubclassWindow
#undef SubclassDialog
#undef GetFirstChild
#undef GetNextSibling
#undef CopyRgn
#undef DeleteFont
#undef DeletePen
#undef DeleteBrush
#undef DeleteBitmap
#undef DeletePalette
#undef DeleteRgn
#undef SelectFont
#undef SelectPen
#undef SelectBrush
#undef SelectBitmap
#undef InsetRect
#undef IntersectRgn
#undef SubtractRgn
#undef UnionRgn
#undef XorRgn
#undef GetInstanceModule
#undef IsMinimized
#undef IsMaximized
#undef IsRestored
#undef SetWindowFont
#undef GetWindowFont
#undef GetWindowID
#undef GetWindowInstance
#undef GetWindowStyle
#undef GetWindowExStyle
#undef GetWindowOwner
#undef IsLButtonDown
#undef IsMButtonDown
#undef IsRButtonDown
#undef MapWindowRect
#undef SetDlgMsgResult
#undef SetWindowRedraw
#undef CheckDefDlgRecursion
#undef DefDlgProcEx

#define _MFC_VER 0x0800
#define _ATL_VER 0x0800
#ifndef _AFXDLL
#define _AFXDLL
#endif
#define _AFX

// What leaves the DLL is marked with this, and nothing else does. Hosts find functions through the
// import library and data by the linker's automatic import, so it is empty for them.
#ifdef umbra_mfc_EXPORTS // Defined while the DLL itself is built.
#define AFX_EXPORTED __declspec(dllexport)
#else
#define AFX_EXPORTED
#endif

// Storage classes that programs write before names of their own. The linker exports all of an
// extension DLL that marks nothing, so they are empty.
#define AFX_CLASS_EXPORT
#define AFX_CLASS_IMPORT
#define AFX_EXT_CLASS
#define AFX_EXT_API
#define AFX_EXT_DATA
#define AFX_EXT_DATADEF
#define AFX_DATA
#define AFX_DATADEF
#define AFX_COMDAT
#define AFX_IMPORT_DATA
#define AFX_API
#define AFX_CDECL __cdecl
#define AFXAPI __stdcall
#define AFXAPI_DATA
#define AFX_INLINE inline
#define _AFX_INLINE inline
#define AFX_MSG_CALL
#define AFX_NOVTABLE
#define AFX_STATIC static
#define BASED_CODE
#define BASED_DEBUG
#define afx_msg

#ifndef UNUSED_ALWAYS
#define UNUSED_ALWAYS(x) (void)(x)
#endif
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) (void)(x)
#endif

typedef struct AfxPosition_* POSITION; ///< A place in a list or map; NULL is before or past it.

/// Called when an ASSERT fails in a debug build: tells the file and line in a message box.
/// Returns TRUE when the program is to stop in the debugger.
AFX_EXPORTED BOOL AFXAPI AfxAssertFailedLine(LPCSTR file, int line);
/// Stops in the debugger, when there is one.
AFX_EXPORTED void AFXAPI AfxDebugBreak();
/// Writes a line to the debugger in a debug build (the TRACE macros end here).
AFX_EXPORTED void AFX_CDECL AfxTrace(LPCTSTR format, ...);

#ifdef _DEBUG
#define AFX_DEBUG_BREAK AfxDebugBreak()
#define ASSERT(f)                                                                                  \
    ((void)((f) || !::AfxAssertFailedLine(__FILE__, __LINE__) || (::AfxDebugBreak(), false)))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(p) (::AfxAssertValidObject((p), __FILE__, __LINE__))
#define DEBUG_ONLY(f) ((void)(f))
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(p) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#endif
#define ASSERT_POINTER(p, type) ASSERT((p) != NULL)
#define ASSERT_NULL_OR_POINTER(p, type) ((void)0)
#define ASSUME(f) ASSERT(f)
#ifndef _ASSERTE
#define _ASSERTE(f) ASSERT(f)
#endif
#define ATLASSERT(f) ASSERT(f)

/// The smaller of two values, also of different types, as the macro of the Windows headers gives.
template <class A, class B>
constexpr std::common_type_t<A, B> min(const A& a, const B& b)
{
    using T = std::common_type_t<A, B>;
    return static_cast<T>(b) < static_cast<T>(a) ? static_cast<T>(b) : static_cast<T>(a);
}

/// The greater of two values, also of different types.
template <class A, class B>
constexpr std::common_type_t<A, B> max(const A& a, const B& b)
{
    using T = std::common_type_t<A, B>;
    return static_cast<T>(a) < static_cast<T>(b) ? static_cast<T>(b) : static_cast<T>(a);
}
