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
constexpr double Hair = 1 + 1e-9;          // more than the rounding of a distance and of a sum of radii

// Width of a level's cells and its inverse: powers of two, so that places are scaled without rounding.
struct Measure
{
    double Width = 0, Scale = 0;
};
constexpr auto Measures = []
{
    std::array<Measure, 21> measures;
    double width = 4;
    for (Measure& measure : measures)
    {
        measure = {width, 1 / width};
        width *= 2;
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

// Another number for every cell. Lines lie within 24 bits: the farthest place and the farthest reach.
std::uint64_t KeyOf(std::int32_t level, std::int32_t column, std::int32_t row)
{
    constexpr std::uint32_t line = 0xFFFFFF;
    return std::uint64_t{BitsOf(level)} << 48 | std::uint64_t{BitsOf(row) & line} << 24 | (BitsOf(column) & line);
}

// Of a row of cells, which lie side by side from here on.
std::uint32_t HashOf(std::int32_t level, std::int32_t row)
{
    const std::uint32_t hash = BitsOf(row) * 0x9E3779B1u + BitsOf(level) * 0x85EBCA77u;
    return hash ^ hash >> 15;
}
}

void NearGrid::Reset(std::size_t bodies)
{
    Entries.assign(bodies, {});
    static_assert(Measures.size() == LevelCount);
    Chains.assign(std::bit_ceil(bodies + 1), None);
    Mask = static_cast<std::uint32_t>(Chains.size() - 1);
    Levels.fill({});
}

void NearGrid::Join(std::int32_t& first, Link Entry::*link, std::int32_t body)
{
    Entries[static_cast<std::size_t>(body)].*link = {first, None};
    if (first != None)
        (Entries[static_cast<std::size_t>(first)].*link).Before = body;
    first = body;
}

void NearGrid::Leave(std::int32_t& first, Link Entry::*link, std::int32_t body)
{
    const Link left = Entries[static_cast<std::size_t>(body)].*link;
    if (left.Before == None)
        first = left.Next;
    else
        (Entries[static_cast<std::size_t>(left.Before)].*link).Next = left.Next;
    if (left.Next != None)
        (Entries[static_cast<std::size_t>(left.Next)].*link).Before = left.Before;
}

void NearGrid::Put(std::size_t body, const Disc& at)
{
    Entry& entry = Entries[body];
    entry.X = at.X;
    entry.Z = at.Z;
    entry.Radius = at.Radius;
    if (!CanTouch(at))
    {
        Remove(body);
        return;
    }
    const std::int32_t number = LevelOf(at);
    const double scale = Measures[static_cast<std::size_t>(number)].Scale;
    const std::int32_t column = base::Floor(PlaceOf(at.X) * scale);
    const std::int32_t row = base::Floor(PlaceOf(at.Z) * scale);
    const std::uint64_t key = KeyOf(number, column, row);
    if (entry.Level == number && entry.Key == key)
        return;
    Remove(body);
    entry.Key = key;
    entry.Level = number;
    entry.Chain = (HashOf(number, row) + BitsOf(column)) & Mask;
    Level& level = Levels[static_cast<std::size_t>(number)];
    const auto index = static_cast<std::int32_t>(body);
    Join(Chains[entry.Chain], &Entry::InCell, index);
    Join(level.First, &Entry::OnLevel, index);
    ++level.Count;
    level.Range = {std::min(level.Range.First, index), std::max(level.Range.Last, index)};
}

void NearGrid::Remove(std::size_t body)
{
    Entry& entry = Entries[body];
    if (entry.Level == None)
        return;
    Level& level = Levels[static_cast<std::size_t>(entry.Level)];
    Leave(Chains[entry.Chain], &Entry::InCell, static_cast<std::int32_t>(body));
    Leave(level.First, &Entry::OnLevel, static_cast<std::int32_t>(body));
    --level.Count;
    entry.Level = None;
}

void NearGrid::LookOnLevel(const Question& asked, std::int32_t number, std::vector<std::int32_t>& found) const
{
    const Level& level = Levels[static_cast<std::size_t>(number)];
    const Measure& measure = Measures[static_cast<std::size_t>(number)];
    const double reach = asked.Reach + measure.Width / 2;
    const std::int32_t firstColumn = base::Floor((asked.PlaceX - reach) * measure.Scale);
    const std::int32_t lastColumn = base::Floor((asked.PlaceX + reach) * measure.Scale);
    const std::int32_t firstRow = base::Floor((asked.PlaceZ - reach) * measure.Scale);
    const std::int32_t lastRow = base::Floor((asked.PlaceZ + reach) * measure.Scale);
    const Entry* const entries = Entries.data();
    const auto take = [&, x = asked.X, z = asked.Z, radius = asked.Radius](std::int32_t body)
    {
        const Entry& entry = entries[body];
        const double sum = radius + entry.Radius, dx = x - entry.X, dz = z - entry.Z;
        if (dx * dx + dz * dz <= sum * sum * Hair && sum > 0.0 && body >= asked.Range.First && body <= asked.Range.Last)
            found.push_back(body);
    };

    if ((std::int64_t{lastColumn} - firstColumn + 1) * (std::int64_t{lastRow} - firstRow + 1) > level.Count)
    {
        for (std::int32_t body = level.First; body != None; body = entries[body].OnLevel.Next)
            take(body);
        return;
    }
    const std::int32_t* const chains = Chains.data();
    const std::uint32_t mask = Mask;
    for (std::int32_t row = firstRow; row <= lastRow; ++row)
    {
        const std::uint32_t hash = HashOf(number, row);
        for (std::int32_t column = firstColumn; column <= lastColumn; ++column)
            for (std::int32_t body = chains[(hash + BitsOf(column)) & mask]; body != None;
                 body = entries[body].InCell.Next)
                if (entries[body].Key == KeyOf(number, column, row))
                    take(body);
    }
}

void NearGrid::Look(const Disc& at, const BodyRange& range, std::vector<std::int32_t>& found) const
{
    found.clear();
    if (!CanTouch(at))
        return;
    const Question asked = {at.X, at.Z, at.Radius, PlaceOf(at.X), PlaceOf(at.Z), ReachOf(at) + Slack, range};
    for (std::int32_t number = 0; number < LevelCount; ++number)
    {
        const Level& level = Levels[static_cast<std::size_t>(number)];
        if (level.Count != 0 && level.Range.First <= range.Last && level.Range.Last >= range.First)
            LookOnLevel(asked, number, found);
    }
}
}
