// The styles of a shaded face, for CxShadeButton::SetShade.
#pragma once

// The shade styles. The numbers are the interface.
enum ShadeStyle : unsigned
{
    SHADE_NOISE = 0,        // flat mid-grey
    SHADE_DIAGONAL = 1,     // ramp, dark at bottom right, light at top left
    SHADE_ROWS = 2,         // ramp, dark at the bottom, light at the top
    SHADE_COLUMNS = 3,      // ramp, light at the left, dark at the right
    SHADE_ROW_BUMP = 4,     // cubic profile from bottom to top
    SHADE_COLUMN_BUMP = 5,  // cubic profile from left to right
    SHADE_CROSS_BUMP = 6,   // both cubic profiles
    SHADE_ROUNDED_BUMP = 7, // flatter row profile with rounded ramps at both sides
    SHADE_SCRATCHED = 8     // ramp of style 1 with 200 random scratches
};
