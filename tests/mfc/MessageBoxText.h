// What a message box says.
#pragma once

#include <afx.h>

/// The text of the box: its label that is not empty. The icon is a label without a text.
inline CString MessageBoxText(HWND box)
{
    for (HWND label = ::FindWindowEx(box, nullptr, _T("Static"), nullptr); label != nullptr;
         label = ::FindWindowEx(box, label, _T("Static"), nullptr)) {
        TCHAR text[512] = _T("");
        if (::GetWindowText(label, text, _countof(text)) > 0)
            return text;
    }
    return {};
}
