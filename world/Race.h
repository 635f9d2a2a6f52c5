// SPDX-License-Identifier: Zlib
// world/Race.h: the records of the race: cars, zones, the race itself. Positions are world units, angles radians, times
// milliseconds of the race clock. A tick is 25 ms; a speed of 1 moves a car by half a unit in a tick, 20 in a second,
// and is shown as 36. What a list's length tells is stored nowhere else.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "render/PicArray.h"

#include <cstdint>
#include <iterator>
#include <span>
#include <vector>

namespace world
{
// A point with a zone around it on the ground: a checkpoint, a repair box, a stretch of grass or water.
struct Target
{
    float X = 0, Y = 0, Z = 0; // Y counts for nothing
    float R = 0;               // of the zone; a car is inside while its distance is below it
};

// A list of targets as its file gave it. Deliberate: an empty file, or one that cannot be read, leaves one zeroed
// record. Tools see and set it and the arrow points at it, but it is no target of the race.
struct TargetList
{
    std::vector<Target> Items;
    bool IsStandIn = false; // the only record is the zeroed one

    // What the race goes by.
    std::span<const Target> Targets() const { return {Items.data(), IsStandIn ? 0 : Items.size()}; }
    std::int16_t Count() const { return base::CountOf(Targets()); } // at most 32767
};

struct Map
{
    TargetList Checkpoints;  // to be passed in this order, lap after lap
    TargetList ACheckpoints; // by the same number: another place where the checkpoint counts as passed
    TargetList Boxes, Grass, Water;
};

// A car and its driver. The values of the base are the player file's; the effective ones, Cur…, follow the damage.
struct Player
{
    std::int16_t Obj = 0;            // its scene object: position and heading; scripts may name one that is not there
    std::int16_t NextCheckpoint = 0; // by its number in the map
    std::int16_t Lap = 0;            // laps completed
    std::int16_t Passed = 0;         // checkpoints passed since the start
    std::int16_t Place = 0;          // 1 for the first; 0 before the first tick
    float MaxSpeed = 0;              // base: forward
    float Brake = 0;                 // base: speed lost a tick of braking
    float MaxSpeedR = 0;             // base: in reverse, positive
    float WRS = 0;                   // base: radians turned a tick of full steering
    float Acceleration = 0;          // base: speed gained a tick
    float Deceleration = 0;          // base: speed lost a tick of rolling
    float Speed = 0;                 // along the heading, negative in reverse
    float CurMaxSpeed = 0, CurMaxSpeedR = 0;
    float CurWRS = 0;
    float CurAcceleration = 0, CurBrake = 0;
    float CurDeceleration = 0;
    float Pace = 1;             // daring on the present leg, 0.75 to 1.25: larger brakes later
    float Damage = 0;           // 0 whole; smokes above 1, burns from 7
    std::uint8_t Control = 0;   // 0 the user's controls, otherwise the computer
    std::int32_t NextSmoke = 0; // race time before which no damage smoke rises
};

struct Race
{
    std::int16_t Laps = 5;             // to the finish
    base::Flag RaceOver = base::False; // -1 once the user's car has finished
    std::int32_t GameTime = 0;         // the race clock
    std::int16_t UserPlayer = 0;       // index; scripts may set one that is not there
    std::vector<Player> Players;       // at most 32767
    world::Map Map;

    std::int16_t NumPlayers() const { return base::CountOf(Players); }
};

// Null where there is none: indices come from scripts, the console and the players' keys.
inline Player* FindPlayer(Race& race, std::int32_t index)
{
    return index >= 0 && index < std::ssize(race.Players) ? &race.Players[static_cast<std::size_t>(index)] : nullptr;
}
inline const Player* FindPlayer(const Race& race, std::int32_t index)
{
    return FindPlayer(const_cast<Race&>(race), index);
}

// The keys held down; -1 while held.
struct HeldKeys
{
    base::Flag KeyAccel = 0, KeyBrake = 0, KeyLeft = 0, KeyRight = 0, KeyHandbrake = 0, KeyLookBack = 0;
};

// What start-up loaded for the simulation: slots and pictures, -1 or null where loading failed.
struct RaceAssets
{
    std::int16_t GlassTexture = -1, BrokenGlassTexture = -1; // slots of Scene::Textures
    std::int16_t ArrowObj = -1, CupObj = -1;                 // slots of Scene::Objects
    render::PicReference Smoke, Water, FireRed, FireYellow;  // shared by every particle of the kind
};
}

template <> struct base::FieldsOf<world::Target>
{
    using R = world::Target;
    static constexpr auto Table =
        std::make_tuple(Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z}, Field{"R", &R::R});
};

template <> struct base::FieldsOf<world::Player>
{
    using P = world::Player;
    static constexpr auto Table = std::make_tuple(
        Field{"Obj", &P::Obj}, Field{"NextCheckpoint", &P::NextCheckpoint}, Field{"Lap", &P::Lap},
        Field{"Passed", &P::Passed}, Field{"Place", &P::Place}, Field{"MaxSpeed", &P::MaxSpeed},
        Field{"Brake", &P::Brake}, Field{"MaxSpeedR", &P::MaxSpeedR}, Field{"WRS", &P::WRS},
        Field{"Acceleration", &P::Acceleration}, Field{"Deceleration", &P::Deceleration}, Field{"Speed", &P::Speed},
        Field{"CurMaxSpeed", &P::CurMaxSpeed}, Field{"CurMaxSpeedR", &P::CurMaxSpeedR}, Field{"CurWRS", &P::CurWRS},
        Field{"CurAcceleration", &P::CurAcceleration}, Field{"CurBrake", &P::CurBrake},
        Field{"CurDeceleration", &P::CurDeceleration}, Field{"Pace", &P::Pace}, Field{"Damage", &P::Damage},
        Field{"Control", &P::Control}, Field{"NextSmoke", &P::NextSmoke});
};

template <> struct base::FieldsOf<world::Race>
{
    using R = world::Race;
    static constexpr auto Table = std::make_tuple(
        Field{"Laps", &R::Laps}, Field{"RaceOver", &R::RaceOver}, Field{"GameTime", &R::GameTime},
        Derived{"NumPlayers", [](const R& race) { return race.NumPlayers(); }}, Field{"UserPlayer", &R::UserPlayer});
};

template <> struct base::FieldsOf<world::HeldKeys>
{
    using K = world::HeldKeys;
    static constexpr auto Table =
        std::make_tuple(Field{"KeyAccel", &K::KeyAccel}, Field{"KeyBrake", &K::KeyBrake}, Field{"KeyLeft", &K::KeyLeft},
                        Field{"KeyRight", &K::KeyRight}, Field{"KeyHandbrake", &K::KeyHandbrake},
                        Field{"KeyLookBack", &K::KeyLookBack});
};
