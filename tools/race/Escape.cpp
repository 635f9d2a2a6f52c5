// SPDX-License-Identifier: Zlib
#include "tools/race/Escape.h"

#include "tools/race/HumanDriver.h"
#include "tools/race/Recovery.h"
#include "tools/race/Scout.h"
#include "tools/race/SideBySide.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace race
{
namespace
{
constexpr int LongestLap = 180;    // seconds for the line
constexpr double StartSpeed = 2.5; // of attempts from the lap
constexpr double Room = 4;         // units that a start needs around the car
constexpr double Slack = 0.05;     // radians
constexpr int LongestReturn = 600; // seconds: damage of the lake makes a car slow
constexpr double BackOnLine = 5;   // units from it

struct Ground
{
    double Width = 0, Height = 0; // units

    double MarginOf(const Spot& spot) const { return std::min({spot.X, spot.Z, Width - spot.X, Height - spot.Z}); }
    // Straight out.
    Spot NearestBorder(const Spot& spot) const
    {
        const double margin = MarginOf(spot);
        constexpr double beyond = 50; // so that a car at the border still heads out
        if (margin == spot.X)
            return {-beyond, spot.Z};
        if (margin == spot.Z)
            return {spot.X, -beyond};
        return margin == Width - spot.X ? Spot{Width + beyond, spot.Z} : Spot{spot.X, Height + beyond};
    }
};

Ground GroundOf(Stage& stage)
{
    const render::Ground& ground = stage.Game().Scene.Ground;
    drive::Require(ground.Width > 0 && ground.GroundScale > 0, "the map has no picture of the ground");
    return {ground.Width / static_cast<double>(ground.GroundScale),
            ground.Height / static_cast<double>(ground.GroundScale)};
}

bool IsFree(Stage& stage, const Spot& spot)
{
    const std::vector<render::Obj>& objects = stage.Game().Scene.Objects.Items;
    const std::vector<world::Target>& water = stage.Race().Map.Water.Items;
    return std::none_of(objects.begin(), objects.end(),
                        [&](const render::Obj& object) {
                            return object.Free == 0 && !object.Sfere.empty() &&
                                   Distance(spot, {object.X, object.Z}) < object.Radius + Room;
                        }) &&
           std::none_of(water.begin(), water.end(),
                        [&](const world::Target& zone) {
                            return Distance(spot, {zone.X, zone.Z}) < zone.R;
                        });
}

// The index turned over behind the point: 1/2, 1/4, 3/4 … for base 2. Fills a range evenly, however many are taken.
double TurnedOver(int index, int base)
{
    double value = 0, digit = 1;
    for (; index > 0; index /= base)
        value += (digit /= base) * (index % base);
    return value;
}

// stage: a game in which the line was driven.
std::vector<Attempt> PlanAttempts(Stage& stage, const Line& line, int places)
{
    const Ground ground = GroundOf(stage);
    std::vector<Attempt> attempts;
    for (int i = 0; i < places; ++i)
    {
        const std::size_t at = line.Count() * static_cast<std::size_t>(i) / static_cast<std::size_t>(places);
        attempts.push_back({.IsFromLap = true, .From = line.At(at), .Heading = line.Heading(at)});
    }
    // Most of a map is free: where no place can be found it is not asked for ever.
    for (int index = 1, found = 0; found < places && index < 100 * places; ++index)
    {
        const Spot spot = {ground.Width * TurnedOver(index, 2), ground.Height * TurnedOver(index, 3)};
        if (!IsFree(stage, spot))
            continue;
        ++found;
        attempts.push_back({.From = spot, .Heading = Bearing(spot, ground.NearestBorder(spot))});
    }
    return attempts;
}

void PlaceUser(Stage& stage, const Attempt& attempt)
{
    TakeOthersOff(stage);
    stage.SkipCountdown();
    stage.Race().Laps = std::numeric_limits<std::int16_t>::max();
    stage.User()->Control = 0;
    stage.User()->Speed = attempt.IsFromLap ? static_cast<float>(StartSpeed) : 0.0f;
    if (render::Obj* car = stage.Car(0))
    {
        car->X = static_cast<float>(attempt.From.X);
        car->Z = static_cast<float>(attempt.From.Z);
        car->AngleA = static_cast<float>(attempt.Heading);
    }
}

// At the border with full throttle.
world::HeldKeys DriveOut(const Sight& sight, const Spot& border, Recovery& trouble)
{
    const Manoeuvre way = trouble.Next(sight.Own, sight.Acceleration, true);
    const double wanted = Bearing(sight.Own.Place, border) + way.Aside;
    const double off = Wrapped(wanted - sight.Own.Heading) * (way.Backs ? -1 : 1);
    return {.KeyAccel = base::ToFlag(!way.Backs),
            .KeyBrake = base::ToFlag(way.Backs),
            .KeyLeft = base::ToFlag(off > Slack),
            .KeyRight = base::ToFlag(off < -Slack),
            .KeyHandbrake = 0,
            .KeyLookBack = 0};
}

// Seconds until the car is on the line again; nothing where the driver gives up.
std::optional<double> DriveBack(Stage& stage, const Line& line, Trace* trace)
{
    HumanDriver driver(line, stage.Race().Map, *FindSkill("average"), true, 1);
    for (int tick = 0; tick < LongestReturn * TicksASecond; ++tick)
    {
        const Sight sight = LookAround(stage);
        const Spot& place = sight.Own.Place;
        if (Distance(place, line.At(line.Nearest(place))) < BackOnLine)
            return static_cast<double>(tick) / TicksASecond;
        stage.Game().Keys = driver.Drive(sight);
        stage.Step();
        if (trace != nullptr)
            trace->Take(StatesOf(stage));
    }
    return std::nullopt;
}

void Try(Stage& stage, const Line& line, Attempt& attempt, int seconds, Trace* trace)
{
    PlaceUser(stage, attempt);
    const Ground ground = GroundOf(stage);
    Recovery trouble(0);
    attempt.Margin = ground.MarginOf(attempt.From);
    attempt.Nearest = attempt.From;
    for (int tick = 1; tick <= seconds * TicksASecond; ++tick)
    {
        const Sight sight = LookAround(stage);
        stage.Game().Keys = DriveOut(sight, ground.NearestBorder(sight.Own.Place), trouble);
        stage.Step();
        const std::vector<CarState> cars = StatesOf(stage);
        if (trace != nullptr)
            trace->Take(cars);
        const Spot now = {cars[0].X, cars[0].Z};
        if (const double margin = ground.MarginOf(now); margin < attempt.Margin)
        {
            attempt.Margin = margin;
            attempt.Nearest = now;
        }
        if (attempt.Margin < 0 && !attempt.Left)
            attempt.Left = static_cast<double>(tick) / TicksASecond;
    }
    if (!attempt.Left)
        attempt.Back = DriveBack(stage, line, trace);
}
}

std::vector<Attempt> TryToEscape(const Setup& setup, int places, int seconds, int jobs, Trace* trace)
{
    Stage scouting(setup);
    const Line line = ScoutLine(scouting, LongestLap).Way;
    std::vector<Attempt> attempts = PlanAttempts(scouting, line, places);
    SideBySide(attempts.size(), jobs,
               [&](std::size_t number)
               {
                   Stage stage(setup);
                   Try(stage, line, attempts[number], seconds, number == 0 ? trace : nullptr);
               });
    return attempts;
}
}
