#include "faces/ShadeRandom.h"

namespace {

ShadeRandom processStream;

} // namespace

RandomJump JumpAhead(std::uint64_t steps)
{
    RandomJump jump = {1, 0};
    RandomJump power = {ShadeRandom::multiplier, ShadeRandom::increment};
    for (; steps != 0; steps >>= 1) {
        if (steps & 1)
            jump = {jump.factor * power.factor, jump.offset * power.factor + power.offset};
        power = {power.factor * power.factor, power.offset * power.factor + power.offset};
    }
    return jump;
}

ShadeRandom& ShadeRandom::OfProcess()
{
    return processStream;
}

void ShadeRandom::Skip(std::uint64_t count)
{
    const RandomJump jump = JumpAhead(count);
    m_state = m_state * jump.factor + jump.offset;
}
