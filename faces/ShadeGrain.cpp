#include "faces/ShadeGrain.h"

// The factor is 2^shift / divisor, rounded up where that is no whole number, and 2^(shift - 15) is
// then above the divisor. Rounding adds less than 1 to the factor, so less than 2^15 / 2^shift
// < 1 / divisor to the quotient of any number: too little to reach the next whole one.
GrainDivider DividerOf(int divisor)
{
    int shift = 15;
    while (1 << (shift - 15) < divisor)
        ++shift;
    const std::uint32_t scaled = std::uint32_t{1} << shift;
    return {(scaled + divisor - 1) / divisor, shift};
}
