// SPDX-License-Identifier: Zlib
// render/wide/Pixels4.h: four neighbouring pixels of 24 bits, each a lane whose low three bytes are blue, green and red
// and whose fourth is 0.
#pragma once
#include "base/Pixels.h"
#include "render/wide/Wide.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace render::VELKAR_WIDE
{
// One pixel, three bytes.
inline std::int32_t LoadPixel(const std::uint8_t* from)
{
    return from[0] | from[1] << 8 | from[2] << 16;
}
inline void StorePixel(std::uint8_t* to, std::int32_t pixel)
{
    to[0] = static_cast<std::uint8_t>(pixel);
    to[1] = static_cast<std::uint8_t>(pixel >> 8);
    to[2] = static_cast<std::uint8_t>(pixel >> 16);
}
// The same where a fourth byte may be read or written as well. Read, it is anything.
inline std::int32_t LoadPixelOf4(const std::uint8_t* from)
{
    if constexpr (std::endian::native != std::endian::little)
        return LoadPixel(from);
    std::int32_t bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}
inline void StorePixelOf4(std::uint8_t* to, std::int32_t pixel)
{
    if constexpr (std::endian::native != std::endian::little)
        return StorePixel(to, pixel);
    std::memcpy(to, &pixel, sizeof pixel);
}

// Calls use(lane) for the lanes of a mask.
template <class Use> void ForEachLane(Int4 mask, Use&& use)
{
    for (unsigned bits = mask.Bits(); bits != 0; bits &= bits - 1)
        use(std::countr_zero(bits));
}

// Pixels at byte offsets, those of the mask's lanes; the others are anything, and not read.
inline Int4 Gather(const std::uint8_t* from, Int4 offsets, Int4 mask)
{
    std::int32_t at[4], pixels[4] = {};
    offsets.Store(at);
    ForEachLane(mask, [&](int lane) { pixels[lane] = LoadPixel(from + at[lane]); });
    return Int4::Load(pixels);
}
// All four, where a fourth byte may be read as well. One by one: processors that guard their gathering instructions
// against spying take three times as long with them.
inline Int4 GatherOf4(const std::uint8_t* from, Int4 offsets)
{
    std::int32_t at[4];
    offsets.Store(at);
    return Int4::Of(LoadPixelOf4(from + at[0]), LoadPixelOf4(from + at[1]), LoadPixelOf4(from + at[2]),
                    LoadPixelOf4(from + at[3])) &
           Int4::Of(0xFFFFFF);
}

#ifdef __AVX__
// Twelve bytes, and the way back.
inline __m128i LoadTwelve(const std::uint8_t* from)
{
    std::int32_t last;
    std::memcpy(&last, from + 8, sizeof last);
    return _mm_insert_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(from)), last, 2);
}
inline void StoreTwelve(std::uint8_t* to, __m128i bytes)
{
    const std::int32_t last = _mm_extract_epi32(bytes, 2);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(to), bytes);
    std::memcpy(to + 8, &last, sizeof last);
}
// The low three bytes of every lane, one behind the other.
inline __m128i ThreeOfFour(Int4 pixels)
{
    return _mm_shuffle_epi8(pixels.All, _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
}
#endif

// Writes four pixels, twelve bytes.
inline void StorePixels(std::uint8_t* to, Int4 pixels)
{
#ifdef __AVX__
    StoreTwelve(to, ThreeOfFour(pixels));
#else
    std::int32_t each[4];
    pixels.Store(each);
    for (int lane = 0; lane < 3; ++lane)
        StorePixelOf4(to + lane * base::PixelBytes, each[lane]);
    StorePixel(to + 3 * base::PixelBytes, each[3]);
#endif
}
// Writes the mask's pixels of four. The twelve bytes must be there; those of the other pixels keep what they are.
inline void StorePixels(std::uint8_t* to, Int4 pixels, Int4 mask)
{
#ifdef __AVX__
    StoreTwelve(to, _mm_blendv_epi8(LoadTwelve(to), ThreeOfFour(pixels), ThreeOfFour(mask)));
#else
    std::int32_t each[4];
    pixels.Store(each);
    ForEachLane(mask, [&](int lane) { StorePixel(to + lane * base::PixelBytes, each[lane]); });
#endif
}
}
