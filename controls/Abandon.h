// Letting go of what outlives its wrapper on purpose.
#pragma once

#include <afxwin.h>

namespace umbra {

/// The bitmap belongs to whoever supplied it from now on; nothing is deleted.
inline void Abandon(CBitmap& bitmap)
{
    bitmap.Detach();
}

} // namespace umbra
