// What differs between narrow characters, those of the multibyte code page, and wide ones: the
// functions of the C library and of the system.
#pragma once

#include <classes/Platform.h>

#include <string_view>

namespace afxint {

template <class Char>
struct CharacterTraits;

/// A character has one unit (a byte) or two.
template <>
struct CharacterTraits<char>
{
    /// Whether the second unit of a character may look like another character: in the code pages of
    /// East Asia.
    static bool HasMisleadingUnits();
    /// Whether a text of two units or more begins with a character of two.
    static bool BeginsWithPair(std::string_view text);
    static bool IsSpace(std::string_view character);
    static void MakeUpper(LPSTR text, int length);
    static void MakeLower(LPSTR text, int length);

    static size_t Length(LPCSTR text) { return strlen(text); }
    static int Compare(LPCSTR left, LPCSTR right);
    static int CompareNoCase(LPCSTR left, LPCSTR right);
    static int Collate(LPCSTR left, LPCSTR right);
    static int CollateNoCase(LPCSTR left, LPCSTR right);

    /// Units without the terminator; negative for a format that is no good.
    static int PrintedLength(LPCSTR format, va_list args);
    static void Print(LPSTR text, size_t room, LPCSTR format, va_list args);
    /// FormatMessage of a format in memory; LocalFree frees the result.
    static LPSTR PrintMessage(LPCSTR format, va_list* args);

    static DWORD ReadEnvironment(LPCSTR name, LPSTR value, DWORD room);
    /// NULL for want of memory.
    static BSTR MakeSystemString(std::string_view text);
};

/// A character has one unit of UTF-16 or two.
template <>
struct CharacterTraits<wchar_t>
{
    static bool HasMisleadingUnits() { return false; }
    static bool BeginsWithPair(std::wstring_view text);
    static bool IsSpace(std::wstring_view character);
    static void MakeUpper(LPWSTR text, int length);
    static void MakeLower(LPWSTR text, int length);

    static size_t Length(LPCWSTR text) { return wcslen(text); }
    static int Compare(LPCWSTR left, LPCWSTR right) { return wcscmp(left, right); }
    static int CompareNoCase(LPCWSTR left, LPCWSTR right) { return _wcsicmp(left, right); }
    static int Collate(LPCWSTR left, LPCWSTR right) { return wcscoll(left, right); }
    static int CollateNoCase(LPCWSTR left, LPCWSTR right) { return _wcsicoll(left, right); }

    static int PrintedLength(LPCWSTR format, va_list args);
    static void Print(LPWSTR text, size_t room, LPCWSTR format, va_list args);
    static LPWSTR PrintMessage(LPCWSTR format, va_list* args);

    static DWORD ReadEnvironment(LPCWSTR name, LPWSTR value, DWORD room);
    static BSTR MakeSystemString(std::wstring_view text);
};

} // namespace afxint
