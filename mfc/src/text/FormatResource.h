// Formats that stand in the resources.
#pragma once

#include <classes/CException.h>
#include <classes/CString.h>

namespace afxint {

/// The string of that id; throws CResourceException when there is none.
template <class String = CString>
String LoadFormat(UINT id)
{
    String format;
    if (!format.LoadString(id))
        AfxThrowResourceException();
    return format;
}

} // namespace afxint
