// SPDX-License-Identifier: Zlib
#include "world/ComputerDrive.h"

#include "base/Math.h"
#include "world/Cars.h"
#include "world/Driving.h"

#include <cmath>

namespace world
{
namespace
{
struct Course
{
    double Distance = 0.0;    // to the target
    double Turn = 0.0;        // needed to face it
    double FollowingTurn = 0; // needed to face along the leg behind it
};

// The turn from a heading to the direction (x, z) of that length; from angle 0 where there is no direction.
double TurnTo(double x, double z, double length, double heading)
{
    return render::WrapAngle((length > 0.0 ? -render::AngleOf(x / length, z / length) : 0.0) - heading);
}

// False on the target itself and where there is no way to it.
bool PlotCourse(const Map& map, const Player& player, const render::Obj& car, Course& course)
{
    const Target* target = CheckpointAt(map, player.NextCheckpoint);
    const Target* next =
        target != nullptr ? CheckpointAt(map, (player.NextCheckpoint + 1) % map.Checkpoints.Count()) : nullptr;
    if (next == nullptr)
        return false;
    course.Distance = GroundDistance(car, *target);
    if (!(course.Distance > 0.0) || !std::isfinite(course.Distance))
        return false;
    course.Turn = TurnTo(static_cast<double>(target->X) - car.X, static_cast<double>(target->Z) - car.Z,
                         course.Distance, car.AngleA);
    course.FollowingTurn = TurnTo(static_cast<double>(next->X) - target->X, static_cast<double>(next->Z) - target->Z,
                                  render::Dist2D(target->X, target->Z, next->X, next->Z), car.AngleA);
    return true;
}

void SpeedUp(Player& player)
{
    if (player.Speed < player.CurMaxSpeed)
        player.Speed += player.CurAcceleration;
}

void Throttle(Simulation& sim, Player& player, const Course& course)
{
    const double s = player.Speed;
    if (s < 0.6)
    {
        SpeedUp(player);
        if (player.Speed < 0.4 && player.CurAcceleration >= 0.01)
            TyreMarks(sim, player, 0.7);
        return;
    }
    const double limit = course.Distance * player.Pace;
    if (s * s * s * 3.0 * std::fabs(course.FollowingTurn) <= limit && std::fabs(course.Turn) * 70.0 * s <= limit)
        SpeedUp(player);
    else
    {
        player.Speed -= player.CurBrake;
        if (player.Speed > 2.2)
            TyreMarks(sim, player, 0.9);
    }
}

void Steer(Player& player, render::Obj& car, double wanted)
{
    if (wanted == 0.0)
        return;
    if (!(std::fabs(player.Speed) >= player.CurDeceleration))
    {
        player.Speed = 0.0f;
        return;
    }
    const double turn = base::Sign(wanted) * SteerFactor(player.Speed) * player.CurWRS;
    car.AngleA = Single(car.AngleA + (std::fabs(wanted) <= std::fabs(turn) ? wanted : turn));
    player.Speed = Single(player.Speed - base::Sign(player.Speed) * static_cast<double>(player.CurDeceleration));
}
}

void ComputerDrive(Simulation& sim)
{
    for (Player& player : sim.Race.Players)
    {
        render::Obj* car = ObjectAt(sim.Scene, player.Obj);
        if (player.Control == 0 || car == nullptr)
            continue;
        Course course;
        if (PlotCourse(sim.Race.Map, player, *car, course))
        {
            Throttle(sim, player, course);
            Steer(player, *car, course.Turn);
        }
        MoveCar(sim, player);
    }
}
}
