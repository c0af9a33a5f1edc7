// What the DDX_ and DDV_ functions share.
#pragma once

#include <classes/CDataExchange.h>
#include <classes/CString.h>

namespace afxint {

/// The checks belong to the control that was prepared last.
struct ExchangeAccess
{
    static HWND LastControl(const CDataExchange& exchange) { return exchange.lastControl_; }
};

CString ReadText(HWND control);

/// Shows the message and ends the exchange.
[[noreturn]] void Refuse(CDataExchange* exchange, LPCTSTR message, UINT id);
/// The same with the string of that id.
[[noreturn]] void Refuse(CDataExchange* exchange, UINT id);

} // namespace afxint
