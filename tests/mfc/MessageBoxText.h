// What a message box says.
#pragma once

#include <windows.h>

#include <string>

/// The text of the box: its label that is not empty. The icon is a label without a text.
inline std::string MessageBoxText(HWND box)
{
    for (HWND label = ::FindWindowExA(box, nullptr, "Static", nullptr); label != nullptr;
         label = ::FindWindowExA(box, label, "Static", nullptr)) {
        char text[512] = "";
        if (::GetWindowTextA(label, text, sizeof(text)) > 0)
            return text;
    }
    return {};
}
