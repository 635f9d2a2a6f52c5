// world/Simulation.h: what one step of the simulation reads and writes: the records of the game, lent for the step, and
// the scratch that keeps a step from allocating.
#pragma once
#include "base/PhaseClock.h"
#include "base/Random.h"
#include "render/Camera.h"
#include "render/Scene.h"
#include "world/NearStrips.h"
#include "world/Race.h"
#include "world/Settled.h"

#include <cstdint>
#include <vector>

namespace world
{
// A player in the running order.
struct Standing
{
    std::int16_t Passed = 0; // checkpoints passed since the start
    std::int16_t Player = 0; // index
    double ToGo = 0;         // ground distance to the next checkpoint, NaN where there is none
};

// The rotation of two angles, computed anew only when they have changed.
struct KnownRotation
{
    float AngleA = 0, AngleB = 0; // radians
    render::Rotation Rotation;    // of the angles above
};

// What the procedures of a step derive, kept so that no step allocates. Each of them fills what it reads, or compares
// it with the scene before it trusts it (Rest, and with it Footprints and Strips): nothing here is a part of the game's
// state, needs to be reset or saved. Owned beside the Race.
struct TickScratch
{
    std::vector<Standing> Standings;      // ComputePlaces: all players, the first first
    std::vector<std::int16_t> CarOf;      // by object: the player that drives it, -1 for none
    std::vector<KnownRotation> Rotations; // by object
    std::vector<std::int16_t> Bodies;     // the objects that can touch, by index
    std::vector<Footprint> Footprints;    // by body, as it stands
    NearStrips Strips;
    Settled Rest;                        // the same bodies: what is known of those that have not moved
    std::vector<std::uint8_t> Rows;      // by body: whether a pair that begins with it may touch
    std::vector<render::Point3> Centres; // of the spheres of the second of a pair
};

// Borrowed for the length of a step; the caller owns every record.
struct Simulation
{
    render::Scene& Scene;
    world::Race& Race;
    render::Camera& Camera; // CamSway and, at the finish, View are written; ViewPlayer is read
    const HeldKeys& Keys;
    const RaceAssets& Assets;
    base::Random& Random; // every draw of the step, in its order
    TickScratch& Scratch;
    float EffQuality = 1;              // 0 (no particles) to 1: how densely cars smoke
    bool WebcamOn = false;             // whether a hit shakes the webcam picture
    float& Shake;                      // its amplitude, 0 to 4
    bool& InBox;                       // the followed car stands still inside a repair box
    base::PhaseClock* Clock = nullptr; // is given the time of the step's phases; null: nobody measures
};
}
