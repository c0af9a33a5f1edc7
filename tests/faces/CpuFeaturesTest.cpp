#include "faces/CpuFeatures.h"

#include <doctest/doctest.h>

#ifdef _MSC_VER
#include <intrin.h>
#else
#include <cpuid.h>
#endif

#include <cstdint>

namespace {

/// The processor's answer to one question.
struct Registers
{
    unsigned eax, ebx, ecx, edx;
};

/// What the processor itself says; zeros for leaves that it does not have.
Registers AskProcessor(unsigned leaf)
{
    Registers answer = {};
#ifdef _MSC_VER
    int numbers[4];
    __cpuid(numbers, 0);
    if (static_cast<unsigned>(numbers[0]) >= leaf) {
        __cpuidex(numbers, static_cast<int>(leaf), 0);
        answer = {static_cast<unsigned>(numbers[0]), static_cast<unsigned>(numbers[1]),
                  static_cast<unsigned>(numbers[2]), static_cast<unsigned>(numbers[3])};
    }
#else
    __get_cpuid_count(leaf, 0, &answer.eax, &answer.ebx, &answer.ecx, &answer.edx);
#endif
    return answer;
}

/// The register files whose contents the system keeps when it changes threads.
std::uint64_t AskSystemState()
{
#ifdef _MSC_VER
    return _xgetbv(0);
#else
    std::uint32_t low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return static_cast<std::uint64_t>(high) << 32 | low;
#endif
}

} // namespace

TEST_CASE("AVX2 counts as there when the processor has it and the system keeps its registers")
{
    const bool inProcessor = (AskProcessor(7).ebx >> 5 & 1) != 0;
    const bool systemTells = (AskProcessor(1).ecx >> 27 & 1) != 0;
    const bool keptBySystem = systemTells && (AskSystemState() & 6) == 6;
    CHECK(CpuHasAvx2() == (inProcessor && keptBySystem));
}
