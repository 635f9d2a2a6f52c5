// SPDX-License-Identifier: Zlib
// world/NearGrid.h: which bodies may touch, without asking every pair. The ground is cut into square cells; a body lies
// in the one cell that holds its middle, on the level whose cells are at least as wide as it is: 8, 32, 128 … units.
// Whoever looks walks, level by level, the cells that a body may reach out of, or all bodies of the level where these
// are fewer. Room is taken in proportion to the bodies, whatever their sizes and places.
#pragma once
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace world
{
// What a body covers on the ground at most. Any numbers: what is none touches nothing.
struct Disc
{
    float X = 0, Z = 0, Radius = 0; // world units; two touch only below the sum of their radii, which may be negative
};

// Bodies by number, from First to Last.
struct BodyRange
{
    std::int32_t First = 0, Last = 0;
};

// Bodies that were found. Its room only grows.
class BodyList
{
public:
    void Clear() { Count = 0; }
    void Reserve(std::size_t bodies) { Room.resize(std::max(Room.size(), bodies)); }
    void Add(std::int32_t body) { AddIf(body, true); }
    // Without a branch on what is not known beforehand.
    void AddIf(std::int32_t body, bool wanted)
    {
        if (Count == Room.size())
            Room.resize(2 * Count + 16);
        Room[Count] = body;
        Count += wanted ? 1 : 0;
    }
    // In ascending order, each once.
    void Sort();
    std::span<const std::int32_t> Bodies() const { return {Room.data(), Count}; }

private:
    std::vector<std::int32_t> Room;
    std::size_t Count = 0;
};

class NearGrid
{
public:
    // Takes away all bodies and makes room for those from 0 to bodies - 1. No allocation for a number had before.
    void Reset(std::size_t bodies);
    // The body is there now, and nowhere else.
    void Put(std::size_t body, const Disc& at);
    void Remove(std::size_t body);
    // Where the body was put last; what touches nothing, with a radius that is no number, for one that is not there.
    const Disc& At(std::size_t body) const { return Entries[body].At; }
    // Writes every body of the range whose disc overlaps that one, in no order; now and then one that misses it by a
    // hair, or one twice.
    void Look(const Disc& at, const BodyRange& range, BodyList& found) const;

private:
    static constexpr std::int32_t None = -1;
    static constexpr int LevelCount = 11;

    struct Entry
    {
        Disc At = {0, 0, std::numeric_limits<float>::quiet_NaN()};
        std::int32_t Next = None; // in the chain of its cell
    };
    // The rest of what is known of a body, which nobody asks for who only looks.
    struct Place
    {
        std::int32_t Level = None;  // None: the body is not there
        std::uint32_t Chain = 0;    // of its cell
        std::int32_t Before = None; // in the chain
        std::int32_t NextOnLevel = None, BeforeOnLevel = None;
    };
    struct Level
    {
        std::int32_t First = None; // of its bodies
        std::int32_t Count = 0;
        // All that have been there lie within these.
        BodyRange Range = {std::numeric_limits<std::int32_t>::max(), None};
        double Reach = 0;
    };

    // What Look is asked, prepared once for all levels.
    struct Question
    {
        Disc At;
        double PlaceX, PlaceZ, Reach; // within the grid's numbers
        BodyRange Range;
    };

    std::vector<Entry> Entries;                // by body
    std::vector<Place> Places;                 // by body
    std::vector<std::int32_t> Chains = {None}; // the first body of cells that share a chain; a power of two of them
    std::uint32_t Mask = 0;                    // of their numbers
    std::array<Level, LevelCount> Levels;
    std::uint32_t Inhabited = 0; // a bit for every level that has bodies

    void Join(std::int32_t body);
    void Leave(std::int32_t body);
    void LookOnLevel(const Question& asked, std::int32_t number, BodyList& found) const;
};
}
