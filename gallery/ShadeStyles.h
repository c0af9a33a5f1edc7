// The nine shade styles by name.
#pragma once

#include <umbra.h>

struct ShadeStyleName
{
    ShadeStyle style;
    LPCTSTR name; ///< As in source text.
    LPCTSTR text; ///< For people.
};

inline const ShadeStyleName shadeStyles[] = {
    {SHADE_NOISE, _T("SHADE_NOISE"), _T("Noise")},
    {SHADE_DIAGONAL, _T("SHADE_DIAGONAL"), _T("Diagonal")},
    {SHADE_ROWS, _T("SHADE_ROWS"), _T("Rows")},
    {SHADE_COLUMNS, _T("SHADE_COLUMNS"), _T("Columns")},
    {SHADE_ROW_BUMP, _T("SHADE_ROW_BUMP"), _T("Row bump")},
    {SHADE_COLUMN_BUMP, _T("SHADE_COLUMN_BUMP"), _T("Column bump")},
    {SHADE_CROSS_BUMP, _T("SHADE_CROSS_BUMP"), _T("Cross bump")},
    {SHADE_ROUNDED_BUMP, _T("SHADE_ROUNDED_BUMP"), _T("Rounded bump")},
    {SHADE_SCRATCHED, _T("SHADE_SCRATCHED"), _T("Scratched")},
};
