// A printer as the system's dialogs name it: two blocks of memory.
#pragma once

#include <classes/CString.h>

namespace afxint {

/// The parts of a printer's names. Empty without a block.
CString PrinterDriver(HGLOBAL names);
CString PrinterDevice(HGLOBAL names);
CString PrinterPort(HGLOBAL names);

/// The caller deletes it. NULL without a block of names, and when there is no such printer.
HDC CreatePrinterContext(HGLOBAL names, HGLOBAL mode);

/// The settings, locked; the caller calls GlobalUnlock. NULL without a block.
LPDEVMODE LockPrinterMode(HGLOBAL mode);

} // namespace afxint
