// The nine shade styles by name.
#pragma once

#include <umbra.h>

struct ShadeStyleName
{
    ShadeStyle style;
    const char* name; ///< As in source text.
    const char* text; ///< For people.
};

inline const ShadeStyleName shadeStyles[] = {
    {SHADE_NOISE, "SHADE_NOISE", "Noise"},
    {SHADE_DIAGONAL, "SHADE_DIAGONAL", "Diagonal"},
    {SHADE_ROWS, "SHADE_ROWS", "Rows"},
    {SHADE_COLUMNS, "SHADE_COLUMNS", "Columns"},
    {SHADE_ROW_BUMP, "SHADE_ROW_BUMP", "Row bump"},
    {SHADE_COLUMN_BUMP, "SHADE_COLUMN_BUMP", "Column bump"},
    {SHADE_CROSS_BUMP, "SHADE_CROSS_BUMP", "Cross bump"},
    {SHADE_ROUNDED_BUMP, "SHADE_ROUNDED_BUMP", "Rounded bump"},
    {SHADE_SCRATCHED, "SHADE_SCRATCHED", "Scratched"},
};
