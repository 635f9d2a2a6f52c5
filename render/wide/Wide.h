// SPDX-License-Identifier: Zlib
// render/wide/Wide.h: four numbers at a time for the pixel loops: doubles (two vectors of 128 bits), singles, 32-bit
// whole numbers. Every lane is one IEEE operation, so the results are those of the plain loops. A mask is an Int4 of
// lanes that are all ones or all zeros. Vectors of 256 bits were tried: what they save, the processor takes back, as it
// lowers its clock for them.
#pragma once
#include "base/Numbers.h"

#include <cstdint>

#if (defined(__SSE2__) || defined(_M_X64)) && !defined(VELKAR_NO_VECTORS)
#define VELKAR_SSE2 1
#include <immintrin.h>

namespace render::VELKAR_WIDE
{
struct Int4
{
    __m128i All;

    static Int4 Of(std::int32_t all) { return {_mm_set1_epi32(all)}; }
    static Int4 Of(std::int32_t a, std::int32_t b, std::int32_t c, std::int32_t d)
    {
        return {_mm_setr_epi32(a, b, c, d)};
    }
    static Int4 Load(const void* from) { return {_mm_loadu_si128(static_cast<const __m128i*>(from))}; }
    void Store(void* to) const { _mm_storeu_si128(static_cast<__m128i*>(to), All); }
    friend Int4 operator+(Int4 a, Int4 b) { return {_mm_add_epi32(a.All, b.All)}; }
    friend Int4 operator&(Int4 a, Int4 b) { return {_mm_and_si128(a.All, b.All)}; }
    friend Int4 operator|(Int4 a, Int4 b) { return {_mm_or_si128(a.All, b.All)}; }
    friend Int4 operator<(Int4 a, Int4 b) { return {_mm_cmplt_epi32(a.All, b.All)}; }
    friend Int4 operator==(Int4 a, Int4 b) { return {_mm_cmpeq_epi32(a.All, b.All)}; }
    // a without the bits of b.
    friend Int4 Without(Int4 a, Int4 b) { return {_mm_andnot_si128(b.All, a.All)}; }
    // The low 32 bits of the products.
    friend Int4 operator*(Int4 a, Int4 b)
    {
#ifdef __AVX__
        return {_mm_mullo_epi32(a.All, b.All)};
#else
        const __m128i even = _mm_mul_epu32(a.All, b.All);
        const __m128i odd = _mm_mul_epu32(_mm_srli_si128(a.All, 4), _mm_srli_si128(b.All, 4));
        return {_mm_unpacklo_epi32(_mm_shuffle_epi32(even, 0x08), _mm_shuffle_epi32(odd, 0x08))};
#endif
    }
    friend Int4 Min(Int4 a, Int4 b)
    {
#ifdef __AVX__
        return {_mm_min_epi32(a.All, b.All)};
#else
        const Int4 isLess = a < b;
        return (a & isLess) | Without(b, isLess);
#endif
    }
    friend Int4 Max(Int4 a, Int4 b)
    {
#ifdef __AVX__
        return {_mm_max_epi32(a.All, b.All)};
#else
        const Int4 isMore = b < a;
        return (a & isMore) | Without(b, isMore);
#endif
    }
    std::int32_t First() const
    {
        return _mm_cvtsi128_si32(All);
    }
    // Every lane the first one.
    Int4 AllFirst() const
    {
        return {_mm_shuffle_epi32(All, _MM_SHUFFLE(0, 0, 0, 0))};
    }
    // Lanes 2, 3, 0, 1.
    Int4 HalvesSwapped() const
    {
        return {_mm_shuffle_epi32(All, _MM_SHUFFLE(1, 0, 3, 2))};
    }
    // A mask's lanes of a, the others of b.
    friend Int4 Choose(Int4 mask, Int4 a, Int4 b)
    {
#ifdef __AVX__
        return {_mm_blendv_epi8(b.All, a.All, mask.All)};
#else
        return (a & mask) | Without(b, mask);
#endif
    }
    // One bit a lane of a mask, the first lane's lowest.
    unsigned Bits() const
    {
        return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(All)));
    }
};

struct Float4
{
    __m128 All;

    static Float4 Of(float all) { return {_mm_set1_ps(all)}; }
    static Float4 Of(float a, float b, float c, float d) { return {_mm_setr_ps(a, b, c, d)}; }
    static Float4 Load(const float* from) { return {_mm_loadu_ps(from)}; }
    void Store(float* to) const { _mm_storeu_ps(to, All); }
    friend Int4 operator<(Float4 a, Float4 b) { return {_mm_castps_si128(_mm_cmplt_ps(a.All, b.All))}; }
    friend Int4 operator<=(Float4 a, Float4 b) { return {_mm_castps_si128(_mm_cmple_ps(a.All, b.All))}; }
    // A mask's lanes of a, the others of b.
    friend Float4 Choose(Int4 mask, Float4 a, Float4 b)
    {
        const __m128 chosen = _mm_castsi128_ps(mask.All);
#ifdef __AVX__
        return {_mm_blendv_ps(b.All, a.All, chosen)};
#else
        return {_mm_or_ps(_mm_and_ps(chosen, a.All), _mm_andnot_ps(chosen, b.All))};
#endif
    }
};

struct Double4
{
    __m128d Low, High;

    static Double4 Of(double all) { return {_mm_set1_pd(all), _mm_set1_pd(all)}; }
    static Double4 Of(double a, double b, double c, double d) { return {_mm_setr_pd(a, b), _mm_setr_pd(c, d)}; }
    static Double4 Of(Float4 singles)
    {
        return {_mm_cvtps_pd(singles.All), _mm_cvtps_pd(_mm_movehl_ps(singles.All, singles.All))};
    }
    static Double4 Of(Int4 whole)
    {
        return {_mm_cvtepi32_pd(whole.All), _mm_cvtepi32_pd(_mm_unpackhi_epi64(whole.All, whole.All))};
    }
    static Double4 Load(const double* from) { return {_mm_loadu_pd(from), _mm_loadu_pd(from + 2)}; }
    void Store(double* to) const
    {
        _mm_storeu_pd(to, Low);
        _mm_storeu_pd(to + 2, High);
    }
    friend Double4 operator+(Double4 a, Double4 b) { return {_mm_add_pd(a.Low, b.Low), _mm_add_pd(a.High, b.High)}; }
    friend Double4 operator-(Double4 a, Double4 b) { return {_mm_sub_pd(a.Low, b.Low), _mm_sub_pd(a.High, b.High)}; }
    friend Double4 operator*(Double4 a, Double4 b) { return {_mm_mul_pd(a.Low, b.Low), _mm_mul_pd(a.High, b.High)}; }
    friend Double4 operator/(Double4 a, Double4 b) { return {_mm_div_pd(a.Low, b.Low), _mm_div_pd(a.High, b.High)}; }
    Float4 Single() const { return {_mm_movelh_ps(_mm_cvtpd_ps(Low), _mm_cvtpd_ps(High))}; }
    Int4 Rounded() const { return {_mm_unpacklo_epi64(_mm_cvtpd_epi32(Low), _mm_cvtpd_epi32(High))}; }
    friend Double4 FirstHalves(Double4 a, Double4 b) { return {a.Low, b.Low}; }
    friend Double4 LastHalves(Double4 a, Double4 b) { return {a.High, b.High}; }
    // Lanes 2, 3, 0, 1 where all lanes of the mask are set, as they are where none is.
    Double4 HalvesSwapped(Int4 mask) const
    {
        const auto choose = [&](__m128d a, __m128d b)
        {
            const Int4 chosen = Choose(mask, Int4{_mm_castpd_si128(a)}, Int4{_mm_castpd_si128(b)});
            return _mm_castsi128_pd(chosen.All);
        };
        return {choose(High, Low), choose(Low, High)};
    }
    friend Int4 operator==(Double4 a, Double4 b)
    {
        const __m128 low = _mm_castpd_ps(_mm_cmpeq_pd(a.Low, b.Low));
        const __m128 high = _mm_castpd_ps(_mm_cmpeq_pd(a.High, b.High));
        return {_mm_castps_si128(_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)))};
    }
};
}
#else
#include "render/wide/Portable.h"
#endif
