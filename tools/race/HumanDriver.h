// SPDX-License-Identifier: Zlib
// tools/race/HumanDriver.h: drives the user's car as a player might, by the same held keys. The driver sees everything
// late, knows what the hands have done since, follows the line with wandering errors, and makes way for others. It
// draws from a generator of its own, so that a seed always gives the same driver.
#pragma once
#include "tools/race/Hands.h"
#include "tools/race/Recovery.h"
#include "tools/race/Traffic.h"
#include "tools/race/Trip.h"

#include <cstdint>
#include <deque>

namespace race
{
class HumanDriver
{
public:
    // line and map outlive this. repairs: goes to a box when badly damaged.
    HumanDriver(const Line& line, const world::Map& map, const Skill& skill, bool repairs, std::uint64_t seed);

    // The keys of the next tick. now: what a driver without reaction time would see. Asked once a tick.
    world::HeldKeys Drive(const Sight& now);

private:
    struct Moment
    {
        Sight Seen;
        int Steer = 0, Pedal = 0; // what was pressed then
    };

    Sight Believed() const;
    Aim Choose(const Sight& now);
    int SteerTo(const Seen& own, const Aim& aim, double aside);
    static int PedalFor(const Seen& own, double most);
    world::HeldKeys Press(int steer, int pedal, bool handbrake);

    const Skill& TheSkill;
    bool Repairs;
    base::Random Random;
    Course TheCourse;
    Traffic TheTraffic;
    Trip TheTrip;
    Recovery TheRecovery{2};
    Fingers Wheel, Pedals;
    Wandering LineError, BrakeError;
    std::deque<Moment> Memory; // the oldest one is what is seen now
    int Turning = 0;           // the side to which the driver corrects
};
}
