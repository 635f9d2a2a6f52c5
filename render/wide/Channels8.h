// SPDX-License-Identifier: Zlib
// render/wide/Channels8.h: eight 16-bit numbers: the channels of two pixels, blue, green, red and a fourth, with room
// for sums and products. All arithmetic keeps the low 16 bits.
#pragma once
#include "render/wide/Wide.h"

#ifdef VELKAR_SSE2
namespace render::VELKAR_WIDE
{
struct Channels8
{
    __m128i All;

    static Channels8 Of(std::uint16_t all) { return {_mm_set1_epi16(static_cast<short>(all))}; }
    static Channels8 Load(const std::uint16_t* from)
    {
        return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(from))};
    }
    static Channels8 Two(std::int32_t first, std::int32_t second)
    {
        const __m128i both = _mm_unpacklo_epi32(_mm_cvtsi32_si128(first), _mm_cvtsi32_si128(second));
        return {_mm_unpacklo_epi8(both, _mm_setzero_si128())};
    }
    friend Channels8 operator+(Channels8 a, Channels8 b) { return {_mm_add_epi16(a.All, b.All)}; }
    friend Channels8 operator-(Channels8 a, Channels8 b) { return {_mm_sub_epi16(a.All, b.All)}; }
    friend Channels8 operator*(Channels8 a, Channels8 b) { return {_mm_mullo_epi16(a.All, b.All)}; }
    friend Channels8 operator&(Channels8 a, Channels8 b) { return {_mm_and_si128(a.All, b.All)}; }
    // The high 16 bits of the 32-bit products; both factors have signs, or neither.
    friend Channels8 HighSigned(Channels8 a, Channels8 b) { return {_mm_mulhi_epi16(a.All, b.All)}; }
    friend Channels8 HighUnsigned(Channels8 a, Channels8 b) { return {_mm_mulhi_epu16(a.All, b.All)}; }
    // -1 where a, without a sign, is at least b; else 0.
    friend Channels8 IsAtLeast(Channels8 a, Channels8 b)
    {
        return {_mm_cmpeq_epi16(_mm_subs_epu16(b.All, a.All), _mm_setzero_si128())};
    }
    // -1 where negative, else 0.
    Channels8 Signs() const { return {_mm_srai_epi16(All, 15)}; }
    Channels8 ShiftedRight(int bits) const { return {_mm_srl_epi16(All, _mm_cvtsi32_si128(bits))}; }
    // The second pixel added to the first.
    Channels8 Folded() const { return {_mm_add_epi16(All, _mm_srli_si128(All, 8))}; }
    // The first pixel; its channels are 0 to 255.
    std::int32_t Pixel() const { return _mm_cvtsi128_si32(_mm_packus_epi16(All, All)); }
};
}
#endif
