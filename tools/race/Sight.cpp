// SPDX-License-Identifier: Zlib
#include "tools/race/Sight.h"

#include "base/Math.h"
#include "world/Driving.h"

#include <algorithm>

namespace race
{
namespace
{
Seen SeenCar(const render::Obj& car, const world::Player& player)
{
    return {{car.X, car.Z}, car.AngleA, player.Speed};
}
}

Sight LookAround(Stage& stage)
{
    Sight sight;
    const std::vector<world::Player>& players = stage.Race().Players;
    for (std::size_t i = 0; i < players.size(); ++i)
        if (const render::Obj* car = stage.Car(i))
        {
            if (static_cast<std::int16_t>(i) == stage.Race().UserPlayer)
                sight.Own = SeenCar(*car, players[i]);
            else
                sight.Others.push_back(SeenCar(*car, players[i]));
        }
    const world::Player& user = *stage.User();
    sight.NextCheckpoint = user.NextCheckpoint;
    sight.Damage = user.Damage;
    sight.Steering = user.CurWRS;
    sight.Acceleration = user.CurAcceleration;
    sight.Brake = user.CurBrake;
    sight.TopSpeed = user.CurMaxSpeed;
    sight.Released = stage.IsReleased();
    return sight;
}

Seen AfterTick(const Seen& car, const Sight& can, int steer, int pedal)
{
    Seen next = car;
    if (pedal > 0 && car.Speed < can.TopSpeed)
        next.Speed += car.Speed < 0 ? can.Brake : can.Acceleration;
    else if (pedal < 0)
        next.Speed = car.Speed > 0 ? std::max(car.Speed - can.Brake, 0.0) : car.Speed - can.Acceleration;
    next.Heading += steer * world::SteerFactor(next.Speed) * can.Steering;
    if (steer != 0)
        next.Speed *= 0.99; // the drag of cornering
    next.Place.X -= next.Speed * base::Sin(next.Heading) / 2;
    next.Place.Z += next.Speed * base::Cos(next.Heading) / 2;
    return next;
}
}
