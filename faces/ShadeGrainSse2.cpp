#include "faces/ShadeGrainLoops.h"

#include <cstddef>
#include <cstring>
#include <emmintrin.h>

namespace {

// 16 states, two to a vector: in the low word of each half, where the 32-bit multiplication of SSE2
// takes its operands. The upper words hold nothing of use.
struct Sse2Lanes
{
    static constexpr int pixelsAtOnce = 16;
    static constexpr int vectors = 8;
    static constexpr int words = vectors * 4;

    struct Jump
    {
        explicit Jump(RandomJump jump)
            : factor(_mm_set1_epi32(static_cast<int>(jump.factor))),
              offset(_mm_set1_epi32(static_cast<int>(jump.offset * 2)))
        {
        }
        __m128i factor;
        __m128i offset;
    };

    struct Divider
    {
        explicit Divider(GrainDivider divider)
            : factor(_mm_set1_epi16(static_cast<short>(divider.factor))),
              shift(_mm_cvtsi32_si128(divider.shift - 16))
        {
        }
        __m128i factor;
        __m128i shift;
    };

    struct BumpTerms
    {
        explicit BumpTerms(const CrossBumpJob& job)
            : row(_mm_set1_epi16(job.row)), low(Spread(job.low)), high(Spread(job.high))
        {
        }
        __m128i row;
        __m128i low;
        __m128i high;
    };

    // Even pixels lie in the first four vectors, odd ones in the others.
    static constexpr int WordOf(int pixel)
    {
        return (pixel % 2 * 4 + pixel / 4) * 4 + pixel / 2 % 2 * 2;
    }

    Sse2Lanes(std::uint32_t state, const std::uint32_t* factors, const std::uint32_t* offsets)
    {
        const __m128i doubled = _mm_set1_epi32(static_cast<int>(state * 2));
        for (std::ptrdiff_t i = 0; i < vectors; ++i)
            states[i] =
                _mm_add_epi32(_mm_mul_epu32(doubled, Load(factors + i * 4)), Load(offsets + i * 4));
    }

    explicit Sse2Lanes(const std::uint32_t* saved)
    {
        for (std::ptrdiff_t i = 0; i < vectors; ++i)
            states[i] = Load(saved + i * 4);
    }

    void Save(std::uint32_t* saved) const
    {
        for (std::ptrdiff_t i = 0; i < vectors; ++i)
            Store(saved + i * 4, states[i]);
    }

    void Advance(const Jump& jump)
    {
        for (int i = 0; i < vectors; ++i)
            states[i] = _mm_add_epi32(_mm_mul_epu32(states[i], jump.factor), jump.offset);
    }

    __m128i Pixels(const Divider& divider, const std::uint8_t* base, __m128i add) const
    {
        const __m128i even = Divide(states, divider);
        const __m128i odd = Divide(states + 4, divider);
        const __m128i grain =
            _mm_or_si128(_mm_and_si128(even, _mm_set1_epi16(0xFF)), _mm_slli_epi16(odd, 8));
        return _mm_add_epi8(_mm_add_epi8(grain, add), Load(base));
    }

    static __m128i CrossBumpPixels(const BumpTerms& terms, const std::int16_t* columns)
    {
        // Packing keeps the sums within a byte, which the bounds are, too.
        const __m128i packed =
            _mm_packs_epi16(CrossBumpWords(terms, columns), CrossBumpWords(terms, columns + 8));
        const __m128i value = _mm_add_epi8(packed, Spread(128));
        return _mm_min_epu8(_mm_max_epu8(value, terms.low), terms.high);
    }

    static __m128i Spread(std::uint8_t value) { return _mm_set1_epi8(static_cast<char>(value)); }

    static void Store(void* target, __m128i vector)
    {
        _mm_storeu_si128(static_cast<__m128i*>(target), vector);
    }

    // The first count bytes, 1 to 15.
    static void StorePart(std::uint8_t* target, __m128i vector, int count)
    {
        if (count & 8) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(target), vector);
            vector = _mm_srli_si128(vector, 8);
            target += 8;
        }
        if (count & 4) {
            StoreWord<std::uint32_t>(target, vector);
            vector = _mm_srli_si128(vector, 4);
            target += 4;
        }
        if (count & 2) {
            StoreWord<std::uint16_t>(target, vector);
            vector = _mm_srli_si128(vector, 2);
            target += 2;
        }
        if (count & 1)
            StoreWord<std::uint8_t>(target, vector);
    }

private:
    static __m128i Load(const void* source)
    {
        return _mm_loadu_si128(static_cast<const __m128i*>(source));
    }

    template <class Word>
    static void StoreWord(std::uint8_t* target, __m128i vector)
    {
        const Word word = static_cast<Word>(_mm_cvtsi128_si32(vector));
        std::memcpy(target, &word, sizeof(word));
    }

    // The low words of two vectors, in order.
    static __m128i LowWords(__m128i first, __m128i second)
    {
        return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(first), _mm_castsi128_ps(second),
                                               _MM_SHUFFLE(2, 0, 2, 0)));
    }

    // The quotients of eight states' numbers.
    static __m128i Divide(const __m128i* four, const Divider& divider)
    {
        const __m128i numbers = _mm_packs_epi32(_mm_srli_epi32(LowWords(four[0], four[1]), 17),
                                                _mm_srli_epi32(LowWords(four[2], four[3]), 17));
        return _mm_srl_epi16(_mm_mulhi_epu16(numbers, divider.factor), divider.shift);
    }

    static __m128i CrossBumpWords(const BumpTerms& terms, const std::int16_t* columns)
    {
        const __m128i sum = _mm_add_epi16(Load(columns), terms.row);
        // Adding 127 to negative ones makes the shift a division that rounds toward zero.
        const __m128i rounding = _mm_srli_epi16(_mm_srai_epi16(sum, 15), 9);
        return _mm_srai_epi16(_mm_add_epi16(sum, rounding), 7);
    }

    __m128i states[vectors];
};

} // namespace

GrainKernels GrainKernelsSse2()
{
    return KernelsOf<Sse2Lanes>();
}
