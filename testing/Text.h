// Text of windows and files, in the characters that the program is built with.
#pragma once

#include <windows.h>

#include <tchar.h>

#include <string>

namespace umbra::testing {

using TString = std::basic_string<TCHAR>;

/// For messages of the test kit: wide text as UTF-8, narrow text as it is.
std::string Printable(const TString& text);

/// A number's digits.
template <class Number>
TString ToText(Number number)
{
    const std::string digits = std::to_string(number);
    return TString(digits.begin(), digits.end());
}

/// As UTF-16, by the system's code page.
std::wstring Widened(const TString& text);

} // namespace umbra::testing

/// The name by which a program imports a function of the system that takes text:
/// TEXT_FUNCTION("SetWindowText").
#ifdef UNICODE
#define TEXT_FUNCTION(name) name "W"
#else
#define TEXT_FUNCTION(name) name "A"
#endif
