#include "faces/ShadeRandom.h"

namespace {

ShadeRandom processStream;

} // namespace

RandomLeap LeapOf(std::uint64_t steps)
{
    RandomLeap leap = {1, 0};
    RandomLeap power = {ShadeRandom::multiplier, ShadeRandom::increment};
    for (; steps != 0; steps >>= 1) {
        if (steps & 1)
            leap = {leap.factor * power.factor, leap.offset * power.factor + power.offset};
        power = {power.factor * power.factor, power.offset * power.factor + power.offset};
    }
    return leap;
}

ShadeRandom& ShadeRandom::OfProcess()
{
    return processStream;
}

void ShadeRandom::Skip(std::uint64_t count)
{
    const RandomLeap leap = LeapOf(count);
    m_state = m_state * leap.factor + leap.offset;
}
