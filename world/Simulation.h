// SPDX-License-Identifier: Zlib
// world/Simulation.h: what one step of the simulation reads and writes: the records of the game, lent for the step, and
// the scratch that keeps a step from allocating.
#pragma once
#include "base/PhaseClock.h"
#include "base/Random.h"
#include "render/Camera.h"
#include "render/Scene.h"
#include "world/NearGrid.h"
#include "world/Race.h"
#include "world/RowMarks.h"
#include "world/Settled.h"
#include "world/Shape.h"
#include "world/ZoneGrid.h"

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

// What the procedures of a step derive, kept so that no step allocates. Each of them fills what it reads, or compares
// it with the scene before it trusts it (the zones; Rest, and with it Grid and Shapes): nothing here is a part of the
// game's state, needs to be reset or saved. Owned beside the Race.
struct TickScratch
{
    std::vector<Standing> Standings; // ComputePlaces: all players, the first first
    std::vector<std::int16_t> CarOf; // by object: the player that drives it, -1 for none
    std::vector<std::int32_t> Cars;  // the objects of which CarOf knows a player
    ZoneGrid Boxes, Grass, Water;    // of the map
    Settled Rest;                    // what is known of the bodies that have not moved
    NearGrid Grid;                   // of the bodies, about where they stand
    std::vector<Shape> Shapes;       // by object
    RowMarks Marks;                  // by object: which rows of pairs are walked
    BodyList Row;                    // whom the body of the present row may touch
    BodyList Found;                  // around another body
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
