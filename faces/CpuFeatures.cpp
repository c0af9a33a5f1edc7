#include "faces/CpuFeatures.h"

// The one place where compilers differ.
#ifdef _MSC_VER

#include <immintrin.h>
#include <intrin.h>

bool CpuHasAvx2()
{
    constexpr int osSavesState = 1 << 27; // leaf 1, ECX
    constexpr int avx2 = 1 << 5;          // leaf 7, EBX
    constexpr unsigned xmmAndYmm = 6;     // of XCR0

    int registers[4];
    __cpuid(registers, 0);
    if (registers[0] < 7)
        return false;
    __cpuid(registers, 1);
    if ((registers[2] & osSavesState) == 0 || (_xgetbv(0) & xmmAndYmm) != xmmAndYmm)
        return false;
    __cpuidex(registers, 7, 0);
    return (registers[1] & avx2) != 0;
}

#else

bool CpuHasAvx2()
{
    return __builtin_cpu_supports("avx2") != 0;
}

#endif
