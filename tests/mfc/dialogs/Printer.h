// A printer in the form of the system's dialogs, for a computer that has none.
#pragma once

#include <afxdlgs.h>

#include "testing/NextDialog.h"
#include "testing/OpenDialogs.h"

/// Copies a block into movable memory, which whoever takes it frees.
inline HGLOBAL MakeBlock(const void* data, size_t size)
{
    const HGLOBAL block = ::GlobalAlloc(GHND, size);
    memcpy(::GlobalLock(block), data, size);
    ::GlobalUnlock(block);
    return block;
}

/// Names of a printer. The driver is that of the display, of which device contexts can be made.
inline HGLOBAL MakePrinterNames()
{
    struct
    {
        DEVNAMES offsets;
        TCHAR driver[10], device[10], port[10];
    } names{};
    _tcscpy(names.driver, _T("DISPLAY"));
    _tcscpy(names.device, _T("Paper"));
    _tcscpy(names.port, _T("LPT9:"));
    const auto place = [&](const TCHAR* part) {
        return static_cast<WORD>(part - reinterpret_cast<const TCHAR*>(&names));
    };
    names.offsets.wDriverOffset = place(names.driver);
    names.offsets.wDeviceOffset = place(names.device);
    names.offsets.wOutputOffset = place(names.port);
    return MakeBlock(&names, sizeof(names));
}

inline HGLOBAL MakePrinterMode(short copies)
{
    DEVMODE mode{};
    mode.dmSize = sizeof(mode);
    mode.dmFields = DM_COPIES;
    mode.dmCopies = copies;
    return MakeBlock(&mode, sizeof(mode));
}

/// Whether the system knows a printer to print on.
inline bool HasPrinter()
{
    PRINTDLG defaults{};
    defaults.lStructSize = sizeof(defaults);
    defaults.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
    if (!::PrintDlg(&defaults))
        return false;
    ::GlobalFree(defaults.hDevNames);
    ::GlobalFree(defaults.hDevMode);
    return true;
}

/// Some systems say that there is no printer, whatever the flags; and some show the dialog then.
class LeftDialogs
{
private:
    static void Leave(HWND box)
    {
        const WPARAM button = umbra::testing::IsMessageBox(box) ? IDOK : IDCANCEL;
        ::PostMessage(box, WM_COMMAND, button, 0);
    }
    umbra::testing::NextDialog first_{Leave}, second_{Leave}, third_{Leave};
};
