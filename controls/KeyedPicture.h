// Pictures with a key colour: building the mask and drawing through it.
#pragma once

#include "umbra_api.h"

#include <afxwin.h>

/// Makes `mask` a new monochrome bitmap of the picture's size, white where the picture has the key
/// colour, and blackens the picture there, so that DrawKeyedPicture lets the background through.
/// The former mask is deleted. A picture without a bitmap leaves the mask empty.
UMBRA_API void BuildKeyMask(CBitmap& picture, CBitmap& mask, COLORREF key);

/// Draws the picture through its mask into `place` of the target, from the picture's top-left
/// corner, unscaled. An empty picture draws the mask alone.
UMBRA_API void DrawKeyedPicture(CDC& target, const CRect& place, CBitmap& mask, CBitmap& picture);
