// world/Race.h: the records of the race: cars, zones, the race itself. Units: world units, radians, game ticks of 25
// ms.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "render/PicArray.h"

#include <cstdint>
#include <iterator>
#include <vector>

namespace world
{
// A point with a zone around it on the ground.
struct Target
{
    float X = 0, Y = 0, Z = 0, R = 0;
};

struct Player
{
    std::int16_t Obj = 0; // its scene object: position and heading
    std::int16_t NextCheckpoint = 0, Lap = 0, Passed = 0, Place = 0;
    float MaxSpeed = 0, Brake = 0, MaxSpeedR = 0, WRS = 0, Acceleration = 0, Deceleration = 0; // base values
    float Speed = 0; // along the heading; a tick moves the car by half of it
    float CurMaxSpeed = 0, CurMaxSpeedR = 0, CurWRS = 0, CurAcceleration = 0, CurBrake = 0, CurDeceleration = 0;
    float Pace = 1; // daring on the present leg: larger brakes later
    float Damage = 0;
    std::uint8_t Control = 0;   // 0 the user's controls, otherwise the computer
    std::int32_t NextSmoke = 0; // game time, milliseconds, before which no damage smoke rises
};

struct Map
{
    std::vector<Target> Checkpoints, ACheckpoints, Boxes, Grass, Water;
    std::int16_t NumCheckpoints = 0, NumBoxes = 0, NumGrass = 0, NumWater = 0;
};

struct Race
{
    std::int16_t Laps = 5;
    base::Flag RaceOver = base::False;
    std::int32_t GameTime = 0; // milliseconds
    std::int16_t NumPlayers = 0;
    std::int16_t UserPlayer = 0;
    std::vector<Player> Players;
    world::Map Map;
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
    std::int16_t GlassTexture = -1, BrokenGlassTexture = -1;
    std::int16_t ArrowObj = -1, CupObj = -1;
    render::PicReference Smoke, Water, FireRed, FireYellow;
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
    static constexpr auto Table =
        std::make_tuple(Field{"Laps", &R::Laps}, Field{"RaceOver", &R::RaceOver}, Field{"GameTime", &R::GameTime},
                        Fixed{"NumPlayers", &R::NumPlayers}, Field{"UserPlayer", &R::UserPlayer});
};

template <> struct base::FieldsOf<world::HeldKeys>
{
    using K = world::HeldKeys;
    static constexpr auto Table =
        std::make_tuple(Field{"KeyAccel", &K::KeyAccel}, Field{"KeyBrake", &K::KeyBrake}, Field{"KeyLeft", &K::KeyLeft},
                        Field{"KeyRight", &K::KeyRight}, Field{"KeyHandbrake", &K::KeyHandbrake},
                        Field{"KeyLookBack", &K::KeyLookBack});
};
