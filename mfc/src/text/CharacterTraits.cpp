#include "text/CharacterTraits.h"

#include <mbctype.h>
#include <mbstring.h>
#include <wctype.h>

namespace afxint {

namespace {

const unsigned char* Bytes(LPCSTR text)
{
    return reinterpret_cast<const unsigned char*>(text);
}

/// The code of the character as the C library's multibyte functions take it.
unsigned CharacterCode(std::string_view character)
{
    const unsigned first = static_cast<unsigned char>(character[0]);
    return character.size() == 1 ? first : first << 8 | static_cast<unsigned char>(character[1]);
}

/// Changes each character by a function of the C library.
void ChangeCharacters(LPSTR text, int length, unsigned (*change)(unsigned))
{
    for (int position = 0; position < length;) {
        const std::string_view rest(text + position, length - position);
        const bool isPair = rest.size() > 1 && CharacterTraits<char>::BeginsWithPair(rest);
        const unsigned changed = change(CharacterCode(rest.substr(0, isPair ? 2 : 1)));
        if (isPair)
            text[position++] = static_cast<char>(changed >> 8);
        text[position++] = static_cast<char>(changed);
    }
}

} // namespace

bool CharacterTraits<char>::HasMisleadingUnits()
{
    const int codePage = _getmbcp();
    return codePage == 932 || codePage == 936 || codePage == 949 || codePage == 950 ||
           codePage == 1361;
}

bool CharacterTraits<char>::BeginsWithPair(std::string_view text)
{
    return _ismbblead(static_cast<unsigned char>(text[0])) != 0;
}

bool CharacterTraits<char>::IsSpace(std::string_view character)
{
    return character.size() == 1 ? isspace(static_cast<unsigned char>(character[0])) != 0
                                 : _ismbcspace(CharacterCode(character)) != 0;
}

void CharacterTraits<char>::MakeUpper(LPSTR text, int length)
{
    if (HasMisleadingUnits())
        ChangeCharacters(text, length, _mbctoupper);
    else
        ::CharUpperBuffA(text, length);
}

void CharacterTraits<char>::MakeLower(LPSTR text, int length)
{
    if (HasMisleadingUnits())
        ChangeCharacters(text, length, _mbctolower);
    else
        ::CharLowerBuffA(text, length);
}

int CharacterTraits<char>::Compare(LPCSTR left, LPCSTR right)
{
    return _mbscmp(Bytes(left), Bytes(right));
}

int CharacterTraits<char>::CompareNoCase(LPCSTR left, LPCSTR right)
{
    return _mbsicmp(Bytes(left), Bytes(right));
}

int CharacterTraits<char>::Collate(LPCSTR left, LPCSTR right)
{
    return _mbscoll(Bytes(left), Bytes(right));
}

int CharacterTraits<char>::CollateNoCase(LPCSTR left, LPCSTR right)
{
    return _mbsicoll(Bytes(left), Bytes(right));
}

int CharacterTraits<char>::PrintedLength(LPCSTR format, va_list args)
{
    return _vscprintf(format, args);
}

void CharacterTraits<char>::Print(LPSTR text, size_t room, LPCSTR format, va_list args)
{
    _vsnprintf(text, room, format, args);
}

LPSTR CharacterTraits<char>::PrintMessage(LPCSTR format, va_list* args)
{
    LPSTR text = NULL;
    ::FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                     reinterpret_cast<LPSTR>(&text), 0, args);
    return text;
}

DWORD CharacterTraits<char>::ReadEnvironment(LPCSTR name, LPSTR value, DWORD room)
{
    return ::GetEnvironmentVariableA(name, value, room);
}

BSTR CharacterTraits<char>::MakeSystemString(std::string_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed = ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, NULL, 0);
    BSTR result = ::SysAllocStringLen(NULL, needed);
    if (result != NULL)
        ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, result, needed);
    return result;
}

bool CharacterTraits<wchar_t>::BeginsWithPair(std::wstring_view text)
{
    return IS_HIGH_SURROGATE(text[0]) && IS_LOW_SURROGATE(text[1]);
}

bool CharacterTraits<wchar_t>::IsSpace(std::wstring_view character)
{
    return character.size() == 1 && iswspace(character[0]) != 0;
}

void CharacterTraits<wchar_t>::MakeUpper(LPWSTR text, int length)
{
    ::CharUpperBuffW(text, length);
}

void CharacterTraits<wchar_t>::MakeLower(LPWSTR text, int length)
{
    ::CharLowerBuffW(text, length);
}

int CharacterTraits<wchar_t>::PrintedLength(LPCWSTR format, va_list args)
{
    return _vscwprintf(format, args);
}

void CharacterTraits<wchar_t>::Print(LPWSTR text, size_t room, LPCWSTR format, va_list args)
{
    _vsnwprintf(text, room, format, args);
}

LPWSTR CharacterTraits<wchar_t>::PrintMessage(LPCWSTR format, va_list* args)
{
    LPWSTR text = NULL;
    ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                     reinterpret_cast<LPWSTR>(&text), 0, args);
    return text;
}

DWORD CharacterTraits<wchar_t>::ReadEnvironment(LPCWSTR name, LPWSTR value, DWORD room)
{
    return ::GetEnvironmentVariableW(name, value, room);
}

BSTR CharacterTraits<wchar_t>::MakeSystemString(std::wstring_view text)
{
    return ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

} // namespace afxint
