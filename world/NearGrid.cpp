// SPDX-License-Identifier: Zlib
#include "world/NearGrid.h"

#include "base/Numbers.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace world
{
namespace
{
// Places beyond it count as there: that brings no two bodies farther apart.
constexpr double Farthest = 1 << 20;
constexpr double MostReach = 2 * Farthest; // reaches everywhere from anywhere
constexpr double Slack = 1e-3;             // more than the rounding of such places
constexpr float Hair = 1 + 1e-6f;          // more than the rounding of a distance and of a sum of radii
constexpr float Speck = 1e-30f;            // more than the rounding of squares that are almost nothing

// Width of a level's cells and its inverse: powers of two, so that places are scaled without rounding.
struct Measure
{
    double Width = 0, Scale = 0;
};
constexpr auto Measures = []
{
    std::array<Measure, 11> measures;
    double width = 8;
    for (Measure& measure : measures)
    {
        measure = {width, 1 / width};
        width *= 4;
    }
    return measures;
}();
static_assert(Measures.back().Width >= 2 * MostReach); // all that may touch lies on some level

double PlaceOf(float coordinate)
{
    return std::clamp<double>(coordinate, -Farthest, Farthest);
}

double ReachOf(const Disc& disc)
{
    return std::clamp<double>(disc.Radius, 0.0, MostReach);
}

bool CanTouch(const Disc& disc)
{
    return std::isfinite(disc.X) && std::isfinite(disc.Z) && !std::isnan(disc.Radius);
}

// The narrowest level whose cells are as wide as the disc.
std::int32_t LevelOf(const Disc& at)
{
    const double width = 2 * ReachOf(at);
    std::int32_t level = 0;
    while (width > Measures[static_cast<std::size_t>(level)].Width)
        ++level;
    return level;
}

std::uint32_t BitsOf(std::int32_t number)
{
    return static_cast<std::uint32_t>(number);
}

// In single precision: squares that are too large for it are the same for both.
bool Overlap(const Disc& a, const Disc& b)
{
    const float reach = a.Radius + b.Radius, x = a.X - b.X, z = a.Z - b.Z;
    const bool isNear = x * x + z * z <= reach * reach * Hair + Speck;
    return isNear & (reach > 0.0f);
}

// Of a row of cells, which lie side by side from here on.
std::uint32_t HashOf(std::int32_t level, std::int32_t row)
{
    const std::uint32_t hash = BitsOf(row) * 0x9E3779B1u + BitsOf(level) * 0x85EBCA77u;
    return hash ^ hash >> 15;
}
}

void BodyList::Sort()
{
    const auto first = Room.begin(), last = first + static_cast<std::ptrdiff_t>(Count);
    std::sort(first, last);
    Count = static_cast<std::size_t>(std::unique(first, last) - first);
}

void NearGrid::Reset(std::size_t bodies)
{
    Entries.assign(bodies, {});
    Places.assign(bodies, {});
    static_assert(Measures.size() == LevelCount);
    Chains.assign(std::bit_ceil(bodies + 1), None);
    Mask = static_cast<std::uint32_t>(Chains.size() - 1);
    Levels.fill({});
    Inhabited = 0;
}

void NearGrid::Join(std::int32_t body)
{
    const auto index = static_cast<std::size_t>(body);
    Place& place = Places[index];
    std::int32_t& first = Chains[place.Chain];
    Entries[index].Next = first;
    place.Before = None;
    if (first != None)
        Places[static_cast<std::size_t>(first)].Before = body;
    first = body;

    Level& level = Levels[static_cast<std::size_t>(place.Level)];
    place.NextOnLevel = level.First;
    place.BeforeOnLevel = None;
    if (level.First != None)
        Places[static_cast<std::size_t>(level.First)].BeforeOnLevel = body;
    level.First = body;
    ++level.Count;
    Inhabited |= 1u << place.Level;
    level.Range = {std::min(level.Range.First, body), std::max(level.Range.Last, body)};
}

void NearGrid::Leave(std::int32_t body)
{
    const auto index = static_cast<std::size_t>(body);
    const Place& place = Places[index];
    const std::int32_t next = Entries[index].Next;
    if (place.Before == None)
        Chains[place.Chain] = next;
    else
        Entries[static_cast<std::size_t>(place.Before)].Next = next;
    if (next != None)
        Places[static_cast<std::size_t>(next)].Before = place.Before;

    Level& level = Levels[static_cast<std::size_t>(place.Level)];
    if (place.BeforeOnLevel == None)
        level.First = place.NextOnLevel;
    else
        Places[static_cast<std::size_t>(place.BeforeOnLevel)].NextOnLevel = place.NextOnLevel;
    if (place.NextOnLevel != None)
        Places[static_cast<std::size_t>(place.NextOnLevel)].BeforeOnLevel = place.BeforeOnLevel;
    if (--level.Count == 0)
        Inhabited &= ~(1u << place.Level);
}

void NearGrid::Put(std::size_t body, const Disc& at)
{
    if (!CanTouch(at))
    {
        Remove(body);
        return;
    }
    Entries[body].At = at;
    const std::int32_t level = LevelOf(at);
    const double scale = Measures[static_cast<std::size_t>(level)].Scale;
    const std::int32_t column = base::Floor(PlaceOf(at.X) * scale), row = base::Floor(PlaceOf(at.Z) * scale);
    const std::uint32_t chain = (HashOf(level, row) + BitsOf(column)) & Mask;
    double& most = Levels[static_cast<std::size_t>(level)].Reach;
    most = std::max(most, ReachOf(at));
    Place& place = Places[body];
    if (place.Level == level && place.Chain == chain)
        return;
    if (place.Level != None)
        Leave(static_cast<std::int32_t>(body));
    place.Level = level;
    place.Chain = chain;
    Join(static_cast<std::int32_t>(body));
}

void NearGrid::Remove(std::size_t body)
{
    if (Places[body].Level == None)
        return;
    Leave(static_cast<std::int32_t>(body));
    Places[body].Level = None;
    Entries[body].At = Entry{}.At;
}

void NearGrid::LookOnLevel(const Question& asked, std::int32_t number, BodyList& found) const
{
    const Level& level = Levels[static_cast<std::size_t>(number)];
    const double scale = Measures[static_cast<std::size_t>(number)].Scale;
    const double reach = asked.Reach + level.Reach;
    const std::int32_t firstColumn = base::Floor((asked.PlaceX - reach) * scale);
    const std::int32_t lastColumn = base::Floor((asked.PlaceX + reach) * scale);
    const std::int32_t firstRow = base::Floor((asked.PlaceZ - reach) * scale);
    const std::int32_t lastRow = base::Floor((asked.PlaceZ + reach) * scale);
    const Entry* const entries = Entries.data();
    const auto take = [&, at = asked.At, range = asked.Range](std::int32_t body)
    {
        const bool isOfRange = (body >= range.First) & (body <= range.Last);
        found.AddIf(body, isOfRange & Overlap(at, entries[body].At));
    };

    if ((std::int64_t{lastColumn} - firstColumn + 1) * (std::int64_t{lastRow} - firstRow + 1) > level.Count)
    {
        for (std::int32_t body = level.First; body != None; body = Places[static_cast<std::size_t>(body)].NextOnLevel)
            take(body);
        return;
    }
    const std::int32_t* const chains = Chains.data();
    const std::uint32_t mask = Mask;
    for (std::int32_t row = firstRow; row <= lastRow; ++row)
    {
        const std::uint32_t hash = HashOf(number, row);
        for (std::int32_t column = firstColumn; column <= lastColumn; ++column)
            for (std::int32_t body = chains[(hash + BitsOf(column)) & mask]; body != None; body = entries[body].Next)
                take(body);
    }
}

void NearGrid::Look(const Disc& at, const BodyRange& range, BodyList& found) const
{
    found.Clear();
    if (!CanTouch(at))
        return;
    const Question asked = {at, PlaceOf(at.X), PlaceOf(at.Z), ReachOf(at) + Slack, range};
    for (std::uint32_t levels = Inhabited; levels != 0; levels &= levels - 1)
    {
        const std::int32_t number = std::countr_zero(levels);
        const Level& level = Levels[static_cast<std::size_t>(number)];
        if (level.Range.First <= range.Last && level.Range.Last >= range.First)
            LookOnLevel(asked, number, found);
    }
}
}
