// The styles of a shaded face, for CxShadeButton::SetShade.
#pragma once

/// The shade styles. The numbers are the interface.
enum ShadeStyle : unsigned {
    SHADE_NOISE = 0,        ///< Flat mid-grey.
    SHADE_DIAGONAL = 1,     ///< Ramp, dark at bottom right, light at top left.
    SHADE_ROWS = 2,         ///< Ramp, dark at the bottom, light at the top.
    SHADE_COLUMNS = 3,      ///< Ramp, light at the left, dark at the right.
    SHADE_ROW_BUMP = 4,     ///< Cubic profile from bottom to top.
    SHADE_COLUMN_BUMP = 5,  ///< Cubic profile from left to right.
    SHADE_CROSS_BUMP = 6,   ///< Both cubic profiles.
    SHADE_ROUNDED_BUMP = 7, ///< Flatter row profile with rounded ramps at both sides.
    SHADE_SCRATCHED = 8     ///< Ramp of style 1 with 200 random scratches.
};
