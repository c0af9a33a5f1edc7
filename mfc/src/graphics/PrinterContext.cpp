#include "graphics/PrinterContext.h"

namespace afxint {

namespace {

CString Part(HGLOBAL names, WORD DEVNAMES::*place)
{
    const auto* block = names == NULL ? NULL : static_cast<const DEVNAMES*>(::GlobalLock(names));
    if (block == NULL)
        return CString();
    const CString part = reinterpret_cast<LPCTSTR>(block) + block->*place;
    ::GlobalUnlock(names);
    return part;
}

} // namespace

CString PrinterDriver(HGLOBAL names)
{
    return Part(names, &DEVNAMES::wDriverOffset);
}

CString PrinterDevice(HGLOBAL names)
{
    return Part(names, &DEVNAMES::wDeviceOffset);
}

CString PrinterPort(HGLOBAL names)
{
    return Part(names, &DEVNAMES::wOutputOffset);
}

HDC CreatePrinterContext(HGLOBAL names, HGLOBAL mode)
{
    if (names == NULL)
        return NULL;
    const LPDEVMODE settings = LockPrinterMode(mode);
    const HDC context =
        ::CreateDC(PrinterDriver(names), PrinterDevice(names), PrinterPort(names), settings);
    if (settings != NULL)
        ::GlobalUnlock(mode);
    return context;
}

LPDEVMODE LockPrinterMode(HGLOBAL mode)
{
    return mode == NULL ? NULL : static_cast<LPDEVMODE>(::GlobalLock(mode));
}

} // namespace afxint
