// SPDX-License-Identifier: Zlib
// render/Blend.h: two pixels mixed, channel by channel, in double precision.
#pragma once
#include "base/Numbers.h"

#include <cstdint>
#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VELKAR_SSE2 1
#endif

namespace render
{
// Blue, green and red of a pixel as the low three bytes, blue lowest.
inline std::uint32_t Load3(const std::uint8_t* from)
{
    return static_cast<std::uint32_t>(from[0] | from[1] << 8 | from[2] << 16);
}

// The way back; three bytes are written.
inline void Store3(std::uint8_t* to, std::uint32_t bytes)
{
    for (int c = 0; c < 3; ++c)
        to[c] = static_cast<std::uint8_t>(bytes >> 8 * c);
}

// Each channel a x weightA + b x weightB, for weights of 0 and above whose sum is 1 (as far as doubles go), rounded
// to the nearest whole number, ties to even. Three bytes are read and written; pixel may be a or b.
inline void Blend(const std::uint8_t* a, double weightA, const std::uint8_t* b, double weightB, std::uint8_t* pixel)
{
#ifdef VELKAR_SSE2
    const __m128i zero = _mm_setzero_si128();
    const auto spread = [zero](const std::uint8_t* from)
    {
        const __m128i bytes = _mm_cvtsi32_si128(static_cast<int>(Load3(from)));
        return _mm_unpacklo_epi16(_mm_unpacklo_epi8(bytes, zero), zero);
    };
    const __m128d wa = _mm_set1_pd(weightA), wb = _mm_set1_pd(weightB);
    const __m128i channelsA = spread(a), channelsB = spread(b);
    const auto mixed = [wa, wb](__m128i two, __m128i other)
    {
        const __m128d sum = _mm_add_pd(_mm_mul_pd(_mm_cvtepi32_pd(two), wa), _mm_mul_pd(_mm_cvtepi32_pd(other), wb));
        return _mm_cvtpd_epi32(sum);
    };
    const __m128i low = mixed(channelsA, channelsB);
    const __m128i high = mixed(_mm_unpackhi_epi64(channelsA, channelsA), _mm_unpackhi_epi64(channelsB, channelsB));
    const __m128i words = _mm_packs_epi32(_mm_unpacklo_epi64(low, high), zero);
    Store3(pixel, static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(words, zero))));
#else
    for (int c = 0; c < 3; ++c)
        pixel[c] = static_cast<std::uint8_t>(base::RoundEven(a[c] * weightA + b[c] * weightB));
#endif
}
}
