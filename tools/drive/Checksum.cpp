// SPDX-License-Identifier: Zlib
#include "tools/drive/Checksum.h"

#include "render/SceneFields.h"

#include <array>
#include <bit>
#include <cmath>
#include <concepts>
#include <cstring>
#include <tuple>
#include <type_traits>
#include <vector>

namespace drive
{
namespace
{
constexpr std::uint64_t Odd1 = 0x9FB21C651E98DF25u, Odd2 = 0xD6E8FEB86659FD93u;

// The value is scattered over all bits before it meets the sum, so that no single change of one value looks like a
// single change of the next. Each step can be undone: a run that differs in one place never comes back to the same sum
// by itself.
std::uint64_t Fold(std::uint64_t sum, std::uint64_t value)
{
    return std::rotl(sum ^ (std::rotl(value * Odd1, 31) * Odd2), 27) * 5 + 0x52DCE729u;
}

std::uint64_t Load(const std::uint8_t* bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

// A record without padding whose table names every field: lists of it are summed as plain memory, which is what makes
// a sum a tick affordable.
template <class Record> constexpr bool IsDense()
{
    constexpr auto bytes = [](const auto&... field) { return (sizeof(field.Of(std::declval<Record&>())) + ... + 0u); };
    return std::is_trivially_copyable_v<Record> && std::apply(bytes, base::FieldsOf<Record>::Table) == sizeof(Record);
}

template <class Element> std::span<const std::uint8_t> Memory(const std::vector<Element>& list)
{
    return {reinterpret_cast<const std::uint8_t*>(list.data()), list.size() * sizeof(Element)};
}

void Add(Digest& digest, const render::PointGrid& grid)
{
    static_assert(IsDense<render::MeshPt>());
    digest.Bytes(Memory(grid.Points));
}

template <std::integral T> void Add(Digest& digest, T value)
{
    digest.Word(static_cast<std::uint64_t>(value));
}

template <class T>
requires std::is_enum_v<T>
void Add(Digest& digest, T value)
{
    Add(digest, static_cast<std::underlying_type_t<T>>(value));
}

void Add(Digest& digest, float value)
{
    constexpr std::uint64_t oneNan = 0x7FC00000u; // the sign of a NaN is the compiler's
    digest.Word(std::isnan(value) ? oneNan : std::bit_cast<std::uint32_t>(value));
}

void Add(Digest& digest, double value)
{
    digest.Word(std::bit_cast<std::uint64_t>(value));
}

template <base::Described Record> void Add(Digest& digest, const Record& record);

template <class T> void Add(Digest& digest, const std::vector<T>& list)
{
    digest.Word(list.size());
    for (const T& element : list)
        Add(digest, element);
}

template <class T> void Add(Digest& digest, const render::SlotList<T>& list)
{
    Add(digest, list.Items);
}

template <base::Described Record> void Add(Digest& digest, const Record& record)
{
    base::ForEachField(record, [&](const auto&, const auto& member) { Add(digest, member); });
}

void AddTexels(Digest& digest, const render::Ground& ground)
{
    const render::PicArray2D& pixels = ground.Sharp.Pixels;
    const std::size_t row = static_cast<std::size_t>(ground.Width) * 3; // without the padding
    if (ground.Width < 1 || pixels.RowBytes < ground.Width * 3)
        return;
    for (std::int32_t y = 0; y < pixels.Rows; ++y)
        digest.Bytes({pixels.Row(y), row});
}
}

void Digest::Word(std::uint64_t value)
{
    Sum = Fold(Sum, value);
}

void Digest::Bytes(std::span<const std::uint8_t> bytes)
{
    // Four sums side by side: one alone would wait for each multiplication.
    std::array<std::uint64_t, 4> lanes = {Sum, Sum + Odd1, Sum + Odd2, Sum ^ bytes.size()};
    const std::uint8_t* at = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= 32; left -= 32, at += 32)
        for (std::size_t i = 0; i < 4; ++i)
            lanes[i] = Fold(lanes[i], Load(at + 8 * i));
    for (const std::uint64_t lane : lanes)
        Word(lane);
    for (; left > 0; --left, ++at)
        Word(*at);
}

std::uint64_t Digest::Value() const
{
    std::uint64_t value = Sum;
    value = (value ^ (value >> 32)) * Odd2;
    return value ^ (value >> 29);
}

namespace
{
void AddState(Digest& digest, const shell::Game& game)
{
    Add(digest, game.Race);
    Add(digest, game.Race.Players);
    for (const auto* zones : {&game.Race.Map.Checkpoints, &game.Race.Map.ACheckpoints, &game.Race.Map.Boxes,
                              &game.Race.Map.Grass, &game.Race.Map.Water})
        Add(digest, zones->Items);
    Add(digest, game.Scene.Objects);
    Add(digest, game.Scene.Particles);
    Add(digest, game.Scene.Sprites);
    Add(digest, game.Scene.Ground);
    Add(digest, game.Camera);
    Add(digest, game.Keys);
    Add(digest, game.Settings.EffQuality);
    Add(digest, game.Settings.WebcamOn);
    Add(digest, game.Run.Shake);
    Add(digest, game.Run.InBox);
    Add(digest, game.Random.State);
    Add(digest, game.Random.Script);
    Add(digest, game.Random.ScriptNext);
}
}

std::uint64_t Checksum(const shell::Game& game)
{
    Digest digest;
    AddState(digest, game);
    AddTexels(digest, game.Scene.Ground);
    return digest.Value();
}

std::uint64_t TickChecksum(const shell::Game& game)
{
    Digest digest;
    AddState(digest, game);
    return digest.Value();
}
}
