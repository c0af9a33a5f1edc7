// The random numbers of the grain.
#pragma once

#include <cstdint>

/// Several steps of the random recurrence at once: state * factor + offset, modulo 2^32.
struct RandomJump
{
    std::uint32_t factor;
    std::uint32_t offset;
};

/// The jump of the given number of steps.
RandomJump JumpAhead(std::uint64_t steps);

/// The random numbers of the Microsoft C run-time, 0 to 32767, in a stream of their own: the
/// run-time's rand is neither used nor disturbed.
class ShadeRandom
{
public:
    static constexpr int largest = 32767;
    static constexpr std::uint32_t multiplier = 214013;
    static constexpr std::uint32_t increment = 2531011;

    /// A stream that starts as an unseeded program's rand does.
    ShadeRandom() = default;
    explicit ShadeRandom(std::uint32_t state) : m_state(state) {}

    /// The process's stream, which all faces draw from.
    static ShadeRandom& OfProcess();

    int Next()
    {
        m_state = m_state * multiplier + increment;
        return static_cast<int>(m_state >> 16 & largest);
    }
    /// Passes over the next numbers.
    void Skip(std::uint64_t count);

    std::uint32_t GetState() const { return m_state; }

private:
    std::uint32_t m_state = 1;
};
