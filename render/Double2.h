// render/Double2.h: two doubles at a time for the pixel loops, one IEEE operation each, so the results are those of the
// plain loops. SSE2 where the compiler has it, else two scalars.
#pragma once
#include "base/Numbers.h"

#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VELKAR_SSE2 1
#endif

namespace render
{
struct Double2
{
#ifdef VELKAR_SSE2
    __m128d Both;

    static Double2 Of(double both)
    {
        return {_mm_set1_pd(both)};
    }
    static Double2 Of(double low, double high)
    {
        return {_mm_set_pd(high, low)};
    }
    static Double2 Load(const double* from)
    {
        return {_mm_loadu_pd(from)};
    }
    friend Double2 operator+(Double2 a, Double2 b)
    {
        return {_mm_add_pd(a.Both, b.Both)};
    }
    friend Double2 operator-(Double2 a, Double2 b)
    {
        return {_mm_sub_pd(a.Both, b.Both)};
    }
    friend Double2 operator*(Double2 a, Double2 b)
    {
        return {_mm_mul_pd(a.Both, b.Both)};
    }
    friend Double2 operator/(Double2 a, Double2 b)
    {
        return {_mm_div_pd(a.Both, b.Both)};
    }
    void Store(double* to) const
    {
        _mm_storeu_pd(to, Both);
    }
    // Rounded to single precision.
    Double2 Single() const
    {
        return {_mm_cvtps_pd(_mm_cvtpd_ps(Both))};
    }
    void StoreSingle(float* to) const
    {
        _mm_storel_pi(reinterpret_cast<__m64*>(to), _mm_cvtpd_ps(Both));
    }
    // base::RoundEven of both, as doubles again.
    Double2 Rounded() const
    {
        return {_mm_cvtepi32_pd(_mm_cvtpd_epi32(Both))};
    }
    // base::RoundEven of both: the instruction rounds ties to even and gives OutOfRange where that does.
    void StoreRounded(std::int32_t* to) const
    {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(to), _mm_cvtpd_epi32(Both));
    }
#else
    double Low, High;

    static Double2 Of(double both)
    {
        return {both, both};
    }
    static Double2 Of(double low, double high)
    {
        return {low, high};
    }
    static Double2 Load(const double* from)
    {
        return {from[0], from[1]};
    }
    friend Double2 operator+(Double2 a, Double2 b)
    {
        return {a.Low + b.Low, a.High + b.High};
    }
    friend Double2 operator-(Double2 a, Double2 b)
    {
        return {a.Low - b.Low, a.High - b.High};
    }
    friend Double2 operator*(Double2 a, Double2 b)
    {
        return {a.Low * b.Low, a.High * b.High};
    }
    friend Double2 operator/(Double2 a, Double2 b)
    {
        return {a.Low / b.Low, a.High / b.High};
    }
    void Store(double* to) const
    {
        to[0] = Low;
        to[1] = High;
    }
    Double2 Single() const
    {
        return {static_cast<float>(Low), static_cast<float>(High)};
    }
    void StoreSingle(float* to) const
    {
        to[0] = static_cast<float>(Low);
        to[1] = static_cast<float>(High);
    }
    Double2 Rounded() const
    {
        return {static_cast<double>(base::RoundEven(Low)), static_cast<double>(base::RoundEven(High))};
    }
    void StoreRounded(std::int32_t* to) const
    {
        to[0] = base::RoundEven(Low);
        to[1] = base::RoundEven(High);
    }
#endif
};
}
