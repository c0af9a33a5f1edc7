#include "controls/ShadeGrain.h"

// The factor is 2^(15 + shift) / divisor, rounded up where that is no whole number, and 2^shift is
// then above the divisor. Rounding adds less than 1 to the factor, so less than 2^15 / 2^(15 + shift)
// < 1 / divisor to the quotient of any number: too little to reach the next whole one.
GrainDivider DividerOf(int divisor)
{
    std::uint16_t shift = 0;
    while (2 << shift <= divisor)
        ++shift;
    if (1 << shift == divisor)
        return {0x8000, shift};
    ++shift;
    const std::uint32_t scaled = std::uint32_t{1} << (15 + shift);
    return {static_cast<std::uint16_t>((scaled + divisor - 1) / divisor), shift};
}
