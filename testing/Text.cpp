#include "testing/Text.h"

namespace umbra::testing {

std::string Printable(const TString& text)
{
#ifdef UNICODE
    const int length = static_cast<int>(text.size());
    const int bytes =
        ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, nullptr, 0, nullptr, nullptr);
    std::string printable(static_cast<size_t>(bytes), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, printable.data(), bytes, nullptr,
                          nullptr);
    return printable;
#else
    return text;
#endif
}

std::wstring Widened(const TString& text)
{
#ifdef UNICODE
    return text;
#else
    const int length = static_cast<int>(text.size());
    const int units = ::MultiByteToWideChar(CP_ACP, 0, text.c_str(), length, nullptr, 0);
    std::wstring wide(static_cast<size_t>(units), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text.c_str(), length, wide.data(), units);
    return wide;
#endif
}

} // namespace umbra::testing
