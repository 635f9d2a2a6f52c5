// SPDX-License-Identifier: Zlib
// render/wide/Portable.h: the types of render/wide/Wide.h and render/wide/Channels8.h in plain numbers, for every
// processor and compiler.
#pragma once
#include "base/Numbers.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace render::VELKAR_WIDE
{
// Lanes of one type; what all of the types share.
template <class Number, int Count> struct LaneArray
{
    Number Lane[Count];

    // What use(i) gives as lane i.
    template <class Result, class Use> static Result Each(Use&& use)
    {
        Result result;
        for (int i = 0; i < Count; ++i)
            result.Lane[i] = use(i);
        return result;
    }
};

struct Int4 : LaneArray<std::int32_t, 4>
{
    static Int4 Of(std::int32_t all) { return Of(all, all, all, all); }
    static Int4 Of(std::int32_t a, std::int32_t b, std::int32_t c, std::int32_t d) { return {{{a, b, c, d}}}; }
    static Int4 Load(const void* from)
    {
        Int4 lanes;
        std::memcpy(lanes.Lane, from, sizeof lanes.Lane);
        return lanes;
    }
    void Store(void* to) const { std::memcpy(to, Lane, sizeof Lane); }
    friend Int4 operator+(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return Signed(Bare(a.Lane[i]) + Bare(b.Lane[i])); });
    }
    friend Int4 operator*(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return Signed(Bare(a.Lane[i]) * Bare(b.Lane[i])); });
    }
    friend Int4 operator&(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return a.Lane[i] & b.Lane[i]; });
    }
    friend Int4 operator|(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return a.Lane[i] | b.Lane[i]; });
    }
    friend Int4 operator<(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return Mask(a.Lane[i] < b.Lane[i]); });
    }
    friend Int4 operator==(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return Mask(a.Lane[i] == b.Lane[i]); });
    }
    friend Int4 Without(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return a.Lane[i] & ~b.Lane[i]; });
    }
    friend Int4 Min(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return std::min(a.Lane[i], b.Lane[i]); });
    }
    friend Int4 Max(Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return std::max(a.Lane[i], b.Lane[i]); });
    }
    std::int32_t First() const { return Lane[0]; }
    Int4 AllFirst() const { return Of(Lane[0]); }
    Int4 HalvesSwapped() const { return Of(Lane[2], Lane[3], Lane[0], Lane[1]); }
    friend Int4 Choose(Int4 mask, Int4 a, Int4 b)
    {
        return Each<Int4>([&](int i) { return mask.Lane[i] != 0 ? a.Lane[i] : b.Lane[i]; });
    }
    unsigned Bits() const
    {
        unsigned bits = 0;
        for (int i = 0; i < 4; ++i)
            bits |= (Lane[i] < 0 ? 1u : 0u) << i;
        return bits;
    }
    static std::int32_t Mask(bool holds) { return holds ? -1 : 0; }

private:
    static std::uint32_t Bare(std::int32_t value) { return static_cast<std::uint32_t>(value); }
    static std::int32_t Signed(std::uint32_t value) { return static_cast<std::int32_t>(value); }
};

struct Float4 : LaneArray<float, 4>
{
    static Float4 Of(float all) { return Of(all, all, all, all); }
    static Float4 Of(float a, float b, float c, float d) { return {{{a, b, c, d}}}; }
    static Float4 Load(const float* from) { return Of(from[0], from[1], from[2], from[3]); }
    void Store(float* to) const { std::copy_n(Lane, 4, to); }
    friend Int4 operator<(Float4 a, Float4 b)
    {
        return Int4::Each<Int4>([&](int i) { return Int4::Mask(a.Lane[i] < b.Lane[i]); });
    }
    friend Int4 operator<=(Float4 a, Float4 b)
    {
        return Int4::Each<Int4>([&](int i) { return Int4::Mask(a.Lane[i] <= b.Lane[i]); });
    }
    friend Float4 Choose(Int4 mask, Float4 a, Float4 b)
    {
        return Each<Float4>([&](int i) { return mask.Lane[i] != 0 ? a.Lane[i] : b.Lane[i]; });
    }
};

struct Double4 : LaneArray<double, 4>
{
    static Double4 Of(double all) { return Of(all, all, all, all); }
    static Double4 Of(double a, double b, double c, double d) { return {{{a, b, c, d}}}; }
    static Double4 Of(Float4 singles)
    {
        return Each<Double4>([&](int i) { return singles.Lane[i]; });
    }
    static Double4 Of(Int4 whole)
    {
        return Each<Double4>([&](int i) { return whole.Lane[i]; });
    }
    static Double4 Load(const double* from) { return Of(from[0], from[1], from[2], from[3]); }
    void Store(double* to) const { std::copy_n(Lane, 4, to); }
    friend Double4 operator+(Double4 a, Double4 b)
    {
        return Each<Double4>([&](int i) { return a.Lane[i] + b.Lane[i]; });
    }
    friend Double4 operator-(Double4 a, Double4 b)
    {
        return Each<Double4>([&](int i) { return a.Lane[i] - b.Lane[i]; });
    }
    friend Double4 operator*(Double4 a, Double4 b)
    {
        return Each<Double4>([&](int i) { return a.Lane[i] * b.Lane[i]; });
    }
    friend Double4 operator/(Double4 a, Double4 b)
    {
        return Each<Double4>([&](int i) { return a.Lane[i] / b.Lane[i]; });
    }
    friend Int4 operator==(Double4 a, Double4 b)
    {
        return Int4::Each<Int4>([&](int i) { return Int4::Mask(a.Lane[i] == b.Lane[i]); });
    }
    Float4 Single() const
    {
        return Float4::Each<Float4>([&](int i) { return static_cast<float>(Lane[i]); });
    }
    Int4 Rounded() const
    {
        return Int4::Each<Int4>([&](int i) { return base::RoundEven(Lane[i]); });
    }
    Double4 HalvesSwapped(Int4 mask) const
    {
        return mask.Lane[0] != 0 ? Of(Lane[2], Lane[3], Lane[0], Lane[1]) : *this;
    }
    friend Double4 FirstHalves(Double4 a, Double4 b) { return Of(a.Lane[0], a.Lane[1], b.Lane[0], b.Lane[1]); }
    friend Double4 LastHalves(Double4 a, Double4 b) { return Of(a.Lane[2], a.Lane[3], b.Lane[2], b.Lane[3]); }
};

struct Channels8 : LaneArray<std::uint16_t, 8>
{
    static Channels8 Of(std::uint16_t all)
    {
        return Each<Channels8>([&](int) { return all; });
    }
    static Channels8 Load(const std::uint16_t* from)
    {
        return Each<Channels8>([&](int i) { return from[i]; });
    }
    static Channels8 Two(std::int32_t first, std::int32_t second)
    {
        return Each<Channels8>([&](int i) { return Low((i < 4 ? first : second) >> 8 * (i % 4) & 0xFF); });
    }
    friend Channels8 operator+(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i) { return Low(a.Lane[i] + b.Lane[i]); });
    }
    friend Channels8 operator-(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i) { return Low(a.Lane[i] - b.Lane[i]); });
    }
    friend Channels8 operator*(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i) { return Low(Signed(a.Lane[i]) * Signed(b.Lane[i])); });
    }
    friend Channels8 operator&(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i) { return Low(a.Lane[i] & b.Lane[i]); });
    }
    friend Channels8 HighSigned(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i) { return Low(Signed(a.Lane[i]) * Signed(b.Lane[i]) >> 16); });
    }
    friend Channels8 HighUnsigned(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i)
                               { return static_cast<std::uint16_t>(std::uint32_t{a.Lane[i]} * b.Lane[i] >> 16); });
    }
    friend Channels8 IsAtLeast(Channels8 a, Channels8 b)
    {
        return Each<Channels8>([&](int i) { return Low(a.Lane[i] >= b.Lane[i] ? -1 : 0); });
    }
    Channels8 Signs() const
    {
        return Each<Channels8>([&](int i) { return Low(Signed(Lane[i]) < 0 ? -1 : 0); });
    }
    Channels8 ShiftedRight(int bits) const
    {
        return Each<Channels8>([&](int i) { return Low(Lane[i] >> bits); });
    }
    Channels8 Folded() const
    {
        return Each<Channels8>([&](int i) { return Low(Lane[i] + (i < 4 ? Lane[i + 4] : 0)); });
    }
    std::int32_t Pixel() const { return Lane[0] | Lane[1] << 8 | Lane[2] << 16; }

private:
    static std::uint16_t Low(std::int32_t value) { return static_cast<std::uint16_t>(value); }
    static std::int32_t Signed(std::uint16_t value) { return static_cast<std::int16_t>(value); }
};
}
