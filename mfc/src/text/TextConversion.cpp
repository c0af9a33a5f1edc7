#include "text/TextConversion.h"

CStringA afxint::Converted(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed = ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, NULL, 0, NULL, NULL);
    CStringA narrow;
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.GetBufferSetLength(needed), needed,
                          NULL, NULL);
    return narrow;
}

CStringW afxint::Converted(std::string_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed = ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, NULL, 0);
    CStringW wide;
    ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.GetBufferSetLength(needed), needed);
    return wide;
}
