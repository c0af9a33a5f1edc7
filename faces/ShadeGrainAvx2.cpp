// Compiled for AVX2; called only where the processor has it.

#include "faces/ShadeGrainLoops.h"

#include <cstddef>
#include <cstring>
#include <immintrin.h>

namespace {

// 32 states, eight to a vector.
struct Avx2Lanes
{
    static constexpr int pixelsAtOnce = 32;
    static constexpr int vectors = 4;
    static constexpr int words = vectors * 8;

    struct Jump
    {
        explicit Jump(RandomJump jump)
            : factor(_mm256_set1_epi32(static_cast<int>(jump.factor))),
              offset(_mm256_set1_epi32(static_cast<int>(jump.offset * 2)))
        {
        }
        __m256i factor;
        __m256i offset;
    };

    struct Divider
    {
        explicit Divider(GrainDivider divider)
            : factor(_mm256_set1_epi16(static_cast<short>(divider.factor))),
              shift(_mm_cvtsi32_si128(divider.shift - 16))
        {
        }
        __m256i factor;
        __m128i shift;
    };

    struct BumpTerms
    {
        explicit BumpTerms(const CrossBumpJob& job)
            : row(_mm256_set1_epi16(job.row)), low(Spread(job.low)), high(Spread(job.high))
        {
        }
        __m256i row;
        __m256i low;
        __m256i high;
    };

    // Each vector takes every fourth pixel, so that numbers fall into place without crossing over.
    static constexpr int WordOf(int pixel) { return pixel % 4 * 8 + pixel / 4; }

    Avx2Lanes(std::uint32_t state, const std::uint32_t* factors, const std::uint32_t* offsets)
    {
        const __m256i doubled = _mm256_set1_epi32(static_cast<int>(state * 2));
        for (std::ptrdiff_t i = 0; i < vectors; ++i)
            states[i] = _mm256_add_epi32(_mm256_mullo_epi32(doubled, Load(factors + i * 8)),
                                         Load(offsets + i * 8));
    }

    explicit Avx2Lanes(const std::uint32_t* saved)
    {
        for (std::ptrdiff_t i = 0; i < vectors; ++i)
            states[i] = Load(saved + i * 8);
    }

    void Save(std::uint32_t* saved) const
    {
        for (std::ptrdiff_t i = 0; i < vectors; ++i)
            Store(saved + i * 8, states[i]);
    }

    void Advance(const Jump& jump)
    {
        for (int i = 0; i < vectors; ++i)
            states[i] = _mm256_add_epi32(_mm256_mullo_epi32(states[i], jump.factor), jump.offset);
    }

    __m256i Pixels(const Divider& divider, const std::uint8_t* base, __m256i add) const
    {
        const __m256i even = Divide(states[0], states[2], divider);
        const __m256i odd = Divide(states[1], states[3], divider);
        const __m256i grain = _mm256_or_si256(_mm256_and_si256(even, _mm256_set1_epi16(0xFF)),
                                              _mm256_slli_epi16(odd, 8));
        return _mm256_add_epi8(_mm256_add_epi8(Load(base), add), grain);
    }

    static __m256i CrossBumpPixels(const BumpTerms& terms, const std::int16_t* columns)
    {
        // Packing keeps the sums within a byte, which the bounds are, too. It works within the
        // halves; the permutation puts their quarters in order.
        const __m256i packed = _mm256_permute4x64_epi64(
            _mm256_packs_epi16(CrossBumpWords(terms, columns), CrossBumpWords(terms, columns + 16)),
            _MM_SHUFFLE(3, 1, 2, 0));
        const __m256i value = _mm256_add_epi8(packed, Spread(128));
        return _mm256_min_epu8(_mm256_max_epu8(value, terms.low), terms.high);
    }

    static __m256i Spread(std::uint8_t value) { return _mm256_set1_epi8(static_cast<char>(value)); }

    static void Store(void* target, __m256i vector)
    {
        _mm256_storeu_si256(static_cast<__m256i*>(target), vector);
    }

    // The first count bytes, 1 to 31.
    static void StorePart(std::uint8_t* target, __m256i vector, int count)
    {
        __m128i part = _mm256_castsi256_si128(vector);
        if (count & 16) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(target), part);
            part = _mm256_extracti128_si256(vector, 1);
            target += 16;
        }
        if (count & 8) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(target), part);
            part = _mm_srli_si128(part, 8);
            target += 8;
        }
        if (count & 4) {
            StoreWord<std::uint32_t>(target, part);
            part = _mm_srli_si128(part, 4);
            target += 4;
        }
        if (count & 2) {
            StoreWord<std::uint16_t>(target, part);
            part = _mm_srli_si128(part, 2);
            target += 2;
        }
        if (count & 1)
            StoreWord<std::uint8_t>(target, part);
    }

private:
    static __m256i Load(const void* source)
    {
        return _mm256_loadu_si256(static_cast<const __m256i*>(source));
    }

    template <class Word>
    static void StoreWord(std::uint8_t* target, __m128i vector)
    {
        const Word word = static_cast<Word>(_mm_cvtsi128_si32(vector));
        std::memcpy(target, &word, sizeof(word));
    }

    // The quotients of the numbers of two vectors, taken in turn.
    static __m256i Divide(__m256i first, __m256i second, const Divider& divider)
    {
        const __m256i numbers =
            _mm256_blend_epi16(_mm256_srli_epi32(first, 17), _mm256_srli_epi32(second, 1), 0xAA);
        return _mm256_srl_epi16(_mm256_mulhi_epu16(numbers, divider.factor), divider.shift);
    }

    static __m256i CrossBumpWords(const BumpTerms& terms, const std::int16_t* columns)
    {
        const __m256i sum = _mm256_add_epi16(Load(columns), terms.row);
        // Adding 127 to negative ones makes the shift a division that rounds toward zero.
        const __m256i rounding = _mm256_srli_epi16(_mm256_srai_epi16(sum, 15), 9);
        return _mm256_srai_epi16(_mm256_add_epi16(sum, rounding), 7);
    }

    __m256i states[vectors];
};

} // namespace

GrainKernels GrainKernelsAvx2()
{
    return KernelsOf<Avx2Lanes>();
}
