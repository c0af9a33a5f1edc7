// The handles in drawing objects; NULL for objects that are not there.
#pragma once

#include <classes/CBitmap.h>
#include <classes/CBrush.h>
#include <classes/CRgn.h>

namespace afxint {

inline HRGN HandleOf(const CRgn* region)
{
    return static_cast<HRGN>(region->GetSafeHandle());
}

inline HBRUSH HandleOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(brush->GetSafeHandle());
}

inline HBITMAP HandleOf(const CBitmap* bitmap)
{
    return static_cast<HBITMAP>(bitmap->GetSafeHandle());
}

} // namespace afxint
