// SPDX-License-Identifier: Zlib
// tools/race/Run.h: one race from the start to the last car's finish.
#pragma once
#include "tools/race/Measure.h"
#include "tools/race/Skill.h"
#include "tools/race/Trace.h"

namespace race
{
struct Plan
{
    Setup Start;
    const Skill* Human = nullptr; // null: the computer drives the user's car
    bool Repairs = false;
    int Grid = 0;  // of the user's car; 0: where the map has it
    int Limit = 0; // seconds of game time
};

// trace: is given every tick; null: nobody wants it. Throws drive::Refusal where the race cannot start.
RaceResult Run(const Plan& plan, Trace* trace);
}
