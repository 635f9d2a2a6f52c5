// SPDX-License-Identifier: Zlib
// shell/forms/Float4.h: four singles at a time for the loops over pixels, one IEEE operation each, so that the results
// are those of plain loops. SSE2 where the compiler has it, else four scalars.
#pragma once
#include "base/Numbers.h"

#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VELKAR_FLOAT4_SSE2 1
#endif

namespace forms
{
struct Float4
{
#ifdef VELKAR_FLOAT4_SSE2
    __m128 All;

    static Float4 Of(float all)
    {
        return {_mm_set1_ps(all)};
    }
    static Float4 Of(float a, float b, float c, float d)
    {
        return {_mm_setr_ps(a, b, c, d)};
    }
    static Float4 Load(const float* from)
    {
        return {_mm_loadu_ps(from)};
    }
    friend Float4 operator+(Float4 a, Float4 b)
    {
        return {_mm_add_ps(a.All, b.All)};
    }
    friend Float4 operator*(Float4 a, Float4 b)
    {
        return {_mm_mul_ps(a.All, b.All)};
    }
    friend Float4 operator/(Float4 a, Float4 b)
    {
        return {_mm_div_ps(a.All, b.All)};
    }
    void Store(float* to) const
    {
        _mm_storeu_ps(to, All);
    }
    // base::RoundByte of each: the conversion rounds ties to even. Not for NaN.
    void StoreBytes(std::uint8_t* to) const
    {
        const __m128 limited = _mm_min_ps(_mm_max_ps(All, _mm_setzero_ps()), _mm_set1_ps(255.0f));
        const __m128i words = _mm_packs_epi32(_mm_cvtps_epi32(limited), _mm_setzero_si128());
        const std::int32_t bytes = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
        std::memcpy(to, &bytes, sizeof bytes);
    }
#else
    float A, B, C, D;

    static Float4 Of(float all)
    {
        return {all, all, all, all};
    }
    static Float4 Of(float a, float b, float c, float d)
    {
        return {a, b, c, d};
    }
    static Float4 Load(const float* from)
    {
        return {from[0], from[1], from[2], from[3]};
    }
    friend Float4 operator+(Float4 a, Float4 b)
    {
        return {a.A + b.A, a.B + b.B, a.C + b.C, a.D + b.D};
    }
    friend Float4 operator*(Float4 a, Float4 b)
    {
        return {a.A * b.A, a.B * b.B, a.C * b.C, a.D * b.D};
    }
    friend Float4 operator/(Float4 a, Float4 b)
    {
        return {a.A / b.A, a.B / b.B, a.C / b.C, a.D / b.D};
    }
    void Store(float* to) const
    {
        to[0] = A;
        to[1] = B;
        to[2] = C;
        to[3] = D;
    }
    void StoreBytes(std::uint8_t* to) const
    {
        to[0] = base::RoundByte(A);
        to[1] = base::RoundByte(B);
        to[2] = base::RoundByte(C);
        to[3] = base::RoundByte(D);
    }
#endif
};
}
