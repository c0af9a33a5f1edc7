// Painting into a context that is handed in, for WM_PRINTCLIENT.
#pragma once

#include <afxwin.h>

namespace umbra {

/// Has `paint` draw into the context that came with the message, and leaves the context as it was.
template <class Paint>
LRESULT PrintClient(WPARAM context, Paint paint)
{
    CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(context));
    if (dc == nullptr)
        return 0;
    const int saved = dc->SaveDC();
    paint(*dc);
    dc->RestoreDC(saved);
    return 0;
}

} // namespace umbra
