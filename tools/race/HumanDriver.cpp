// SPDX-License-Identifier: Zlib
#include "tools/race/HumanDriver.h"

#include <algorithm>
#include <cmath>

namespace race
{
namespace
{
// Apart from the draws of the game of that seed.
constexpr std::uint64_t OwnDraws = 0x5DEECE66D1CE4E5Bu;
constexpr int PedalHold = 3; // ticks
constexpr double LineSeconds = 2.5, BrakeSeconds = 4;
constexpr double SharpTurn = 0.75, HandbrakeSpeed = 1.3; // beyond which the handbrake helps
constexpr double StandStill = 0.05;

base::Flag Held(bool held)
{
    return base::ToFlag(held);
}
}

HumanDriver::HumanDriver(const Line& line, const world::Map& map, const Skill& skill, bool repairs, std::uint64_t seed)
    : TheSkill(skill), Repairs(repairs), TheCourse(line, map.Checkpoints.Targets(), skill), TheTraffic(line),
      TheTrip(map.Boxes.Targets()), Wheel(skill.KeyHold), Pedals(PedalHold), LineError(skill.LineError, LineSeconds),
      BrakeError(skill.BrakeError, BrakeSeconds)
{
    Random.Seed(seed ^ OwnDraws);
}

// What was seen, and what must have become of it since: the hands are known, the others are thought to go on.
Sight HumanDriver::Believed() const
{
    Sight now = Memory.front().Seen;
    if (!now.Released)
        return now;
    for (std::size_t i = 0; i + 1 < Memory.size(); ++i)
    {
        now.Own = AfterTick(now.Own, now, Memory[i].Steer, Memory[i].Pedal);
        for (Seen& other : now.Others)
            other = AfterTick(other, now, 0, 0);
    }
    return now;
}

Aim HumanDriver::Choose(const Sight& now)
{
    TheCourse.Locate(now);
    const double wanders = LineError.Next(Random);
    const double trust = 1 + BrakeError.Next(Random);
    const double aside = TheTraffic.Left(now, TheCourse.Here());
    Aim aim = TheCourse.Next(now, aside + wanders, trust);
    if (Repairs)
        if (const std::optional<Aim> box = TheTrip.Next(now, TheCourse))
            aim = {box->To, std::min(box->Most, aim.Most)};
    aim.Most = std::min(aim.Most, aim.Most > 0 ? TheTraffic.MostSpeed(now) : 0);
    return aim;
}

int HumanDriver::SteerTo(const Seen& own, const Aim& aim, double aside)
{
    const double off = Wrapped(Bearing(own.Place, aim.To) + aside - own.Heading);
    if (std::fabs(off) > TheSkill.Slack)
        Turning = off > 0 ? 1 : -1;
    else if (off * Turning < TheSkill.Slack * 0.25)
        Turning = 0; // straight again, or beyond
    return Turning;
}

int HumanDriver::PedalFor(const Seen& own, double most)
{
    if (most <= 0)
        return own.Speed > StandStill ? -1 : own.Speed < -StandStill ? 1 : 0;
    if (own.Speed > most * 1.03 + 0.05)
        return -1;
    return own.Speed < most ? 1 : 0;
}

world::HeldKeys HumanDriver::Press(int steer, int pedal, bool handbrake)
{
    Memory.back().Steer = steer;
    Memory.back().Pedal = pedal;
    return {.KeyAccel = Held(pedal > 0),
            .KeyBrake = Held(pedal < 0),
            .KeyLeft = Held(steer > 0),
            .KeyRight = Held(steer < 0),
            .KeyHandbrake = Held(handbrake),
            .KeyLookBack = 0};
}

world::HeldKeys HumanDriver::Drive(const Sight& now)
{
    Memory.push_back({now});
    while (Memory.size() > static_cast<std::size_t>(TheSkill.Reaction) + 1)
        Memory.pop_front();
    const Sight believed = Believed();
    const Seen& own = believed.Own;
    const Aim aim = Choose(believed);
    const Sight& seen = Memory.front().Seen;
    const Manoeuvre way = TheRecovery.Next(seen.Own, seen.Acceleration, believed.Released && aim.Most > 0);
    const int steer = SteerTo(own, aim, way.Aside);
    if (way.Backs)
        // Backwards the wheel turns the nose to the other side.
        return Press(Wheel.Press(own.Speed < 0 ? -steer : 0), Pedals.Press(-1), false);
    const double off = std::fabs(Wrapped(Bearing(own.Place, aim.To) - own.Heading));
    const int turn = Wheel.Press(steer);
    const bool handbrake = turn != 0 && off > SharpTurn && own.Speed > HandbrakeSpeed;
    return Press(turn, Pedals.Press(PedalFor(own, aim.Most)), handbrake);
}
}
