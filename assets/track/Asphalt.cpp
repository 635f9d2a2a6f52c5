// SPDX-License-Identifier: Zlib
// Road, pit lane, kerbs and gravel beds of the ground.
#include "assets/track/Ground.h"

#include "assets/common/Noise.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
// s on the straight may be counted from the start line backward.
double Signed(double s, double length)
{
    return s > length / 2 ? s - length : s;
}

// How much of a texel lies within `edge` units (positive: outside).
double CoverOf(double edge)
{
    return Clamp01(0.5 - edge * TexelsPerUnit);
}

// Distance to the pit lane's edge, negative on it. The lane leaves and rejoins the road in ramps.
double PitEdge(double s, double offset)
{
    if (s < PitFrom - 40 || s > PitTo + 40)
        return FarAway;
    const double in = SmoothStep(PitFrom - 38, PitFrom, s), out = SmoothStep(PitTo + 38, PitTo, s);
    const double middle = Lerp(4, PitLeft, std::min(in, out));
    double edge = std::abs(offset - middle) - PitHalfWidth;
    const double last = BoxFirst + BoxLength * (PitBoxes - 0.5) + 4, first = BoxFirst - BoxLength / 2 - 4;
    const double apron = std::max({offset - (BoxLeft + 4.6), PitLeft - offset, first - s, s - last});
    edge = std::min(edge, apron);
    return edge;
}

// A texel of the road.
struct Spot
{
    int X, Z; // of the texel
    Point P;
    double S, Offset; // along the lap and to the left of its middle
    double Edge;      // beyond the road's edge, negative on it
    double Line, Bend;
    double Cloudy; // broad unevenness, about -1 to 1
};

// Resurfaced lengths, each a little different, one lane of some laid anew, and mended holes.
double Mended(const Spot& spot)
{
    const int stretch = base::Floor((spot.S + 7 * std::sin(spot.Offset / 11)) / 67);
    double tone = 0.955 + 0.09 * HashUnit(stretch, 3, 605);
    const double place = spot.S / 29 + 0.02 * spot.Offset;
    const int lane = base::Floor(place), side = spot.Offset > 0.2 * spot.Cloudy ? 1 : 0;
    if (HashUnit(lane, side, 609) > 0.82)
        tone *= 0.92 * (1 - 0.08 * SmoothStep(0.012, 0.004, std::min(place - lane, lane + 1 - place)));
    const int cellS = base::Floor(spot.S / 9), cellO = base::Floor((spot.Offset + 20) / 3.4);
    if (HashUnit(cellS, cellO, 606) <= 0.94)
        return tone;
    const double u = spot.S / 9 - cellS, v = (spot.Offset + 20) / 3.4 - cellO;
    const double inside = std::min({u - 0.15, 0.85 - u, (v - 0.1) * 0.5, (0.9 - v) * 0.5});
    return inside <= 0 ? tone : tone * Lerp(0.80, 0.90, SmoothStep(0.008, 0.03, inside));
}

// The joint in the middle, and cracks, some of them sealed with tar.
double Cracked(const Spot& spot)
{
    const double joint = 0.12 * SmoothStep(0.2, 0.05, std::abs(spot.Offset + 0.1 * spot.Cloudy));
    const CellDistance crack = Cells(spot.P.X / 5.5 + 0.25 * spot.Cloudy, spot.P.Y / 5.5, 607);
    const double old = SmoothStep(0.08, 0.3, Fbm(spot.P.X / 25, spot.P.Y / 25, 608, 2));
    return 1 - joint - 0.17 * old * SmoothStep(0.05, 0.015, crack.Second - crack.First);
}

// Rubber on the racing line, two wheels wide, and dust toward the edges.
Rgb WornAsphalt(Rgb colour, const Spot& spot)
{
    const double away = std::abs(spot.Offset - spot.Line), wheels = std::abs(away - 0.9);
    const double heavy = 0.6 + 0.4 * SmoothStep(0.004, 0.02, std::abs(spot.Bend));
    const double rubber = (0.25 * SmoothStep(3.8, 0.4, away) + 0.12 * SmoothStep(0.8, 0.1, wheels)) * heavy;
    colour = colour * (1 - rubber * (1 + 0.4 * spot.Cloudy));
    const double dust = SmoothStep(-2.4, -0.1, spot.Edge + 0.8 * spot.Cloudy);
    return Mix(colour, Hex(0xA99C84), 0.32 * dust);
}

Rgb Asphalt(const Spot& spot)
{
    const Point p = spot.P;
    const double fine = HashUnit(spot.X, spot.Z, 601) - 0.5, grain = Noise(p.X / 0.8, p.Y / 0.8, 602);
    const double blotches = Fbm(p.X / 2.6, p.Y / 2.6, 610, 2), broad = Fbm(p.X / 47, p.Y / 47, 604, 3);
    const double tone = 1 + 0.09 * spot.Cloudy + 0.09 * broad + 0.05 * blotches + 0.04 * grain + 0.05 * fine;
    return WornAsphalt(Hex(0x86817B) * (tone * Mended(spot) * Cracked(spot)), spot);
}

Rgb Kerb(int x, int z, double s, double across)
{
    // `across`: 0 at the road, 1 at the outer edge. The teeth are 2.2 units long.
    const double tooth = s / 2.2, red = tooth - 2 * std::floor(tooth / 2) < 1 ? 1 : 0;
    const Point p = TexelPlace(x, z);
    Rgb colour = Mix(Hex(0xEFE9DC), Hex(0xC63A2B), red);
    colour = colour * (0.82 + 0.24 * across + 0.03 * (HashUnit(x, z, 611) - 0.5));
    const double scuffs = SmoothStep(0.05, 0.45, Fbm(p.X / 2.4, p.Y / 2.4, 612, 3)) * (1 - across);
    return Mix(colour, Hex(0x5A5550), 0.45 * scuffs);
}

// 0 to 1: is there a kerb here on the left (side +1) or right (side -1)?
bool HasKerb(const Circuit& road, double s, double side)
{
    const int i = base::RoundEven(s / road.Length * road.Count());
    for (int k = -12; k <= 12; k += 4)
        if (road.At(i + k).Bend * side > 0.0095)
            return true; // inside of the bend
    for (int k = 6; k <= 34; k += 4)
        if (road.At(i - k).Bend * side < -0.012 && std::abs(road.At(i).Bend) < 0.012)
            return true; // outside of its end
    return false;
}

constexpr double KerbWidth = 1.5;
}

Surface RoadSurface(const Plan& plan, const Terrain& terrain, int x, int z)
{
    const double offset = terrain.Offset.At(x, z);
    if (std::abs(offset) > 40)
        return {};
    const double s = terrain.Along.At(x, z), half = terrain.HalfWidth.At(x, z);
    const double edge = std::abs(offset) - half;
    const double side = offset > 0 ? 1 : -1;
    const double straight = Signed(s, plan.Road.Length);
    Surface surface;
    const double pit = PitEdge(straight, offset), bay = LayByEdge(plan, s, offset);
    const double paved = std::min({edge, pit, bay});
    if (paved > 0.3 && !(edge < KerbWidth + 0.3))
        return surface;
    const Point p = TexelPlace(x, z);
    surface.Colour = Asphalt({x, z, p, s, offset, std::min(edge, bay), terrain.Line.At(x, z), terrain.Bend.At(x, z),
                              Fbm(p.X / 9, p.Y / 9, 603, 4)});
    if (pit < edge && pit < 0.3 && edge > -0.5) // newer, darker surface of the pit lane
        surface.Colour = surface.Colour * Rgb{0.86, 0.87, 0.90};
    else if (bay < edge && edge > 0) // no rubber lies there, so that it would be paler than the road
        surface.Colour = surface.Colour * Rgb{0.92, 0.92, 0.93};
    surface.Cover = CoverOf(paved);
    if (edge > -0.25 && edge < KerbWidth + 0.3 && pit > 0.5 && bay > 0.5 && HasKerb(plan.Road, s, side))
    {
        const double kerb = std::min(CoverOf(-edge), CoverOf(edge - KerbWidth));
        surface.Colour = Mix(surface.Colour, Kerb(x, z, s, Clamp01(edge / KerbWidth)), kerb);
        surface.Cover = std::max(surface.Cover, CoverOf(edge - KerbWidth));
    }
    return surface;
}

Surface GravelSurface(const Plan& plan, const Terrain& terrain, int x, int z)
{
    const double offset = terrain.Offset.At(x, z);
    if (std::abs(offset) > 40)
        return {};
    const Point p = TexelPlace(x, z);
    const double s = terrain.Along.At(x, z);
    Surface surface;
    for (const Gravel& bed : plan.Gravels)
    {
        if (s < bed.S0 - 2 || s > bed.S1 + 2)
            continue;
        // The outer edge closes in toward both ends.
        const double t = Clamp01((s - bed.S0) / (bed.S1 - bed.S0));
        const double full = std::sqrt(Clamp01(4 * t * (1 - t) * 1.4));
        const double near = std::min(std::abs(bed.Near), std::abs(bed.Far));
        const double far = Lerp(near, std::max(std::abs(bed.Near), std::abs(bed.Far)), full);
        if ((bed.Near + bed.Far) * offset < 0)
            continue;
        const double ragged = 0.5 * Fbm(p.X / 2.5, p.Y / 2.5, 621, 3);
        const double edge = std::max(near - std::abs(offset), std::abs(offset) - far) + ragged;
        const double cover = SmoothStep(0.25, -0.35, edge);
        if (cover <= surface.Cover)
            continue;
        const CellDistance pebble = Cells(p.X / 0.8, p.Y / 0.8, 622);
        const double tone = (pebble.Id & 255u) / 255.0;
        const double raked = 0.05 * std::sin(std::abs(offset) * 2 * Pi / 1.1 + 1.5 * Noise(s / 9, 0, 623));
        const double drifts = Fbm(p.X / 6, p.Y / 6, 624, 3);
        Rgb colour = Mix(Hex(0xCBBC99), Hex(0xBBAB89), tone) * (1 + raked + 0.1 * drifts);
        colour = colour * (1 + 0.06 * (HashUnit(x, z, 625) - 0.5));
        surface = {colour, cover};
    }
    return surface;
}
}
