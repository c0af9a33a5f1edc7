// The generic names of text functions (_tcsncmp and its kin) in a program that defines _MBCS. The
// compiler's headers declare them for plain characters, but its libraries have only the functions
// for unsigned ones that they stand for.
#pragma once

#if defined(_MBCS) && !defined(_UNICODE)
#include <mbstring.h>
#include <tchar.h>

namespace afxint {

template <class T>
struct PlainCharacters
{
    using Type = T;
};
template <>
struct PlainCharacters<unsigned char*>
{
    using Type = char*;
};
template <>
struct PlainCharacters<const unsigned char*>
{
    using Type = const char*;
};
template <>
struct PlainCharacters<unsigned char**>
{
    using Type = char**;
};
template <class T>
using Plain = typename PlainCharacters<T>::Type;

/// A function of multibyte text, for plain characters.
template <auto Function>
struct MultibyteName;
template <class Result, class... Parameters, Result(__cdecl* Function)(Parameters...)>
struct MultibyteName<Function>
{
    static Plain<Result> Call(Plain<Parameters>... arguments)
    {
        // Casts that are none for what is no text.
        return (Plain<Result>)Function((Parameters)arguments...);
    }
};

// These give a pointer to what they are given, constant or not.
template <class Char>
Char* MultibyteChr(Char* text, unsigned int character)
{
    const auto bytes = reinterpret_cast<const unsigned char*>(text);
    return (Char*)_mbschr(bytes, character);
}
template <class Char>
Char* MultibyteRchr(Char* text, unsigned int character)
{
    const auto bytes = reinterpret_cast<const unsigned char*>(text);
    return (Char*)_mbsrchr(bytes, character);
}
template <class Char>
Char* MultibyteStr(Char* text, const char* part)
{
    const auto bytes = reinterpret_cast<const unsigned char*>(text);
    return (Char*)_mbsstr(bytes, reinterpret_cast<const unsigned char*>(part));
}
template <class Char>
Char* MultibytePbrk(Char* text, const char* characters)
{
    const auto bytes = reinterpret_cast<const unsigned char*>(text);
    return (Char*)_mbspbrk(bytes, reinterpret_cast<const unsigned char*>(characters));
}

} // namespace afxint

#undef _tcscspn
#define _tcscspn afxint::MultibyteName<_mbscspn>::Call
#undef _tcsncat
#define _tcsncat afxint::MultibyteName<_mbsnbcat>::Call
#undef _tcsncpy
#define _tcsncpy afxint::MultibyteName<_mbsnbcpy>::Call
#undef _tcsspn
#define _tcsspn afxint::MultibyteName<_mbsspn>::Call
#undef _tcstok
#define _tcstok afxint::MultibyteName<_mbstok>::Call
#undef _tcsnset
#define _tcsnset afxint::MultibyteName<_mbsnbset>::Call
#undef _tcsrev
#define _tcsrev afxint::MultibyteName<_mbsrev>::Call
#undef _tcsset
#define _tcsset afxint::MultibyteName<_mbsset>::Call
#undef _tcscmp
#define _tcscmp afxint::MultibyteName<_mbscmp>::Call
#undef _tcsicmp
#define _tcsicmp afxint::MultibyteName<_mbsicmp>::Call
#undef _tcsnccmp
#define _tcsnccmp afxint::MultibyteName<_mbsncmp>::Call
#undef _tcsncmp
#define _tcsncmp afxint::MultibyteName<_mbsnbcmp>::Call
#undef _tcsncicmp
#define _tcsncicmp afxint::MultibyteName<_mbsnicmp>::Call
#undef _tcsnicmp
#define _tcsnicmp afxint::MultibyteName<_mbsnbicmp>::Call
#undef _tcscoll
#define _tcscoll afxint::MultibyteName<_mbscoll>::Call
#undef _tcsicoll
#define _tcsicoll afxint::MultibyteName<_mbsicoll>::Call
#undef _tcsnccoll
#define _tcsnccoll afxint::MultibyteName<_mbsncoll>::Call
#undef _tcsncoll
#define _tcsncoll afxint::MultibyteName<_mbsnbcoll>::Call
#undef _tcsncicoll
#define _tcsncicoll afxint::MultibyteName<_mbsnicoll>::Call
#undef _tcsnicoll
#define _tcsnicoll afxint::MultibyteName<_mbsnbicoll>::Call
#undef _tcsclen
#define _tcsclen afxint::MultibyteName<_mbslen>::Call
#undef _tcsnccat
#define _tcsnccat afxint::MultibyteName<_mbsncat>::Call
#undef _tcsnccpy
#define _tcsnccpy afxint::MultibyteName<_mbsncpy>::Call
#undef _tcsncset
#define _tcsncset afxint::MultibyteName<_mbsnset>::Call
#undef _tcsdec
#define _tcsdec afxint::MultibyteName<_mbsdec>::Call
#undef _tcsinc
#define _tcsinc afxint::MultibyteName<_mbsinc>::Call
#undef _tcsnbcnt
#define _tcsnbcnt afxint::MultibyteName<_mbsnbcnt>::Call
#undef _tcsnccnt
#define _tcsnccnt afxint::MultibyteName<_mbsnccnt>::Call
#undef _tcsnextc
#define _tcsnextc afxint::MultibyteName<_mbsnextc>::Call
#undef _tcsninc
#define _tcsninc afxint::MultibyteName<_mbsninc>::Call
#undef _tcsspnp
#define _tcsspnp afxint::MultibyteName<_mbsspnp>::Call
#undef _tcslwr
#define _tcslwr afxint::MultibyteName<_mbslwr>::Call
#undef _tcsupr
#define _tcsupr afxint::MultibyteName<_mbsupr>::Call
#undef _tclen
#define _tclen afxint::MultibyteName<_mbclen>::Call
#undef _tccpy
#define _tccpy afxint::MultibyteName<_mbccpy>::Call
#undef _tcsncat_s
#define _tcsncat_s afxint::MultibyteName<_mbsnbcat_s>::Call
#undef _tcsncpy_s
#define _tcsncpy_s afxint::MultibyteName<_mbsnbcpy_s>::Call
#undef _tcstok_s
#define _tcstok_s afxint::MultibyteName<_mbstok_s>::Call
#undef _tcsnset_s
#define _tcsnset_s afxint::MultibyteName<_mbsnbset_s>::Call
#undef _tcsset_s
#define _tcsset_s afxint::MultibyteName<_mbsset_s>::Call
#undef _tcsnccat_s
#define _tcsnccat_s afxint::MultibyteName<_mbsncat_s>::Call
#undef _tcsnccpy_s
#define _tcsnccpy_s afxint::MultibyteName<_mbsncpy_s>::Call
#undef _tcsncset_s
#define _tcsncset_s afxint::MultibyteName<_mbsnset_s>::Call
#undef _tcslwr_s
#define _tcslwr_s afxint::MultibyteName<_mbslwr_s>::Call
#undef _tcsupr_s
#define _tcsupr_s afxint::MultibyteName<_mbsupr_s>::Call
#undef _tcschr
#define _tcschr afxint::MultibyteChr
#undef _tcsrchr
#define _tcsrchr afxint::MultibyteRchr
#undef _tcsstr
#define _tcsstr afxint::MultibyteStr
#undef _tcspbrk
#define _tcspbrk afxint::MultibytePbrk
#endif
