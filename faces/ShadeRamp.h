// The ramps and profiles that faces are made of.
#pragma once

#include <cstdint>

/// rise * i / length for i = 0, 1, 2, ... length, rounded toward zero, without dividing each time.
///
/// The step is a little too large, by less than 2^-52; after `length` steps that is less than
/// 1 / length as long as length < 2^26, too little to reach the next whole number. With |rise|
/// below 2^10 the sum stays within 63 bits.
class Ramp
{
public:
    static constexpr int maxLength = 1 << 26;

    Ramp(int rise, int length)
        : m_step((static_cast<std::uint64_t>(rise < 0 ? -rise : rise) << fraction) / length + 1),
          m_negative(rise < 0)
    {
    }

    void Advance() { m_sum += m_step; }
    int Value() const
    {
        const int value = static_cast<int>(m_sum >> fraction);
        return m_negative ? -value : value;
    }

private:
    static constexpr int fraction = 52;

    std::uint64_t m_sum = 0;
    std::uint64_t m_step;
    bool m_negative;
};

/// The cubic profile over a ramp of 0 to 255: -125 to 125.
inline int CubicProfile(int ramp)
{
    const int t = ramp - 127;
    return t * t * t / 128 / 128;
}
