// SPDX-License-Identifier: Zlib
#include "shell/Views.h"

#include "base/Math.h"

#include <algorithm>
#include <cmath>

namespace shell
{
namespace
{
using render::Camera;

float Glide(float value, double target, double factor)
{
    return static_cast<float>(value + (target - value) / factor);
}

// A target and the factor with which its value glides there; larger is slower.
struct Aim
{
    double Target, Factor;
};

void AimAt(Camera& camera, Aim zoom, Aim yaw, Aim pitch)
{
    camera.Zoom = Glide(camera.Zoom, zoom.Target, zoom.Factor);
    TurnYaw(camera, yaw.Target, yaw.Factor);
    camera.CamPitch = Glide(camera.CamPitch, pitch.Target, pitch.Factor);
    render::UpdateCameraTrig(camera);
}

void MoveTo(Camera& camera, Aim x, Aim y, Aim z)
{
    camera.CamX = Glide(camera.CamX, x.Target, x.Factor);
    camera.CamY = Glide(camera.CamY, y.Target, y.Factor);
    camera.CamZ = Glide(camera.CamZ, z.Target, z.Factor);
}

// What a placement reads of the followed car.
struct Followed
{
    double X, Y, Z, AngleA, AngleB, Speed, Sin, Cos;

    Followed(const render::Obj& car, float speed)
        : X(car.X), Y(car.Y), Z(car.Z), AngleA(car.AngleA), AngleB(car.AngleB), Speed(speed),
          Sin(base::Sin(car.AngleA)), Cos(base::Cos(car.AngleA))
    {
    }
};

// Behind the car as the camera's own smoothed yaw sees it; the distance grows with the speed.
void MoveBehind(Camera& camera, const Followed& car, double factor)
{
    const double distance = camera.Radius + car.Speed;
    MoveTo(camera, {distance * camera.CamSinYaw + car.X, factor}, {car.Y + 7, 5},
           {car.Z - distance * camera.CamCosYaw, factor});
}

void Chase(Camera& camera, const Followed& car)
{
    AimAt(camera, {2.0 * camera.MinZoom, 4}, {car.AngleA, 5}, {-0.1, 4});
    MoveBehind(camera, car, 3);
}

void ReverseChase(Camera& camera, const Followed& car)
{
    AimAt(camera, {2.0 * camera.MinZoom, 4}, {car.AngleA + render::Pi, 5}, {-0.1, 4});
    MoveBehind(camera, car, 2);
}

void Driver(Camera& camera, const Followed& car)
{
    AimAt(camera, {1.55 * camera.MinZoom, 4}, {car.AngleA - 0.05 + camera.CamSway, 2}, {car.AngleB - 0.1, 3});
    MoveTo(camera, {car.X - 0.3 * car.Cos + 0.05 * car.Sin, 1}, {car.Y + 1.1, 1},
           {car.Z - 0.3 * car.Sin - 0.05 * car.Cos, 1});
}

void Mirror(Camera& camera, const Followed& car)
{
    AimAt(camera, {1.55 * camera.MinZoom, 4}, {car.AngleA - 2.7017691421508787, 2}, {car.AngleB - 0.12, 3});
    MoveTo(camera, {car.X - 0.2 * car.Cos, 1}, {car.Y + 1.1, 1}, {car.Z - 0.2 * car.Sin, 1});
}

void Overhead(Camera& camera, const Followed& car)
{
    AimAt(camera, {4.0 * camera.MinZoom, 4}, {car.AngleA, 5}, {-render::HalfPi, 4});
    MoveTo(camera, {car.X - car.Speed * car.Sin * 4, 3}, {std::abs(car.Speed) * 14 + car.Y + 40, 5},
           {car.Z + car.Cos * car.Speed * 4, 3});
}

void Orbit(Camera& camera, const Followed& car)
{
    AimAt(camera, {2.0 * camera.MinZoom, 2}, {camera.CamYaw + 0.03, 2}, {-0.1, 2});
    MoveBehind(camera, car, 2);
}

void Side(Camera& camera, const Followed& car)
{
    AimAt(camera, {2.0 * camera.MinZoom, 4}, {car.AngleA, 1}, {car.AngleB - 0.1, 2});
    MoveTo(camera, {car.X - 1.3 * car.Cos, 1}, {car.Y + 0.3, 1}, {car.Z - 1.3 * car.Sin, 1});
}

void Overview(Camera& camera)
{
    AimAt(camera, {2.0 * camera.MinZoom, 12}, {2.4, 12}, {-0.6, 12});
    MoveTo(camera, {270, 8}, {90, 8}, {321, 8});
}

// The Mirror looks back when asked, when rolling backward, and when the brake key is about to reverse the car.
bool LooksAhead(const Followed& car, const world::HeldKeys& keys)
{
    return keys.KeyLookBack == base::False && (car.Speed > 0 || keys.KeyBrake == base::False) && car.Speed >= -0.2;
}

void Place(Camera& camera, const Followed& car, const world::HeldKeys& keys)
{
    const bool back = keys.KeyLookBack != base::False;
    switch (camera.View)
    {
    case render::View::Chase:
        return back ? ReverseChase(camera, car) : Chase(camera, car);
    case render::View::Driver:
        return LooksAhead(car, keys) ? Driver(camera, car) : Mirror(camera, car);
    case render::View::Overhead:
        return Overhead(camera, car);
    case render::View::ReverseChase:
        return back ? Chase(camera, car) : ReverseChase(camera, car);
    case render::View::Orbit:
        return Orbit(camera, car);
    case render::View::Side:
        return Side(camera, car);
    case render::View::Overview:
        return Overview(camera);
    default:
        return;
    }
}

// The arrow stands over the car, or before the windscreen, and points at the car's next checkpoint.
void PlaceArrow(render::Obj& arrow, const Followed& car, const world::Map& map, std::int16_t next, bool fromInside)
{
    if (next >= 0 && static_cast<std::size_t>(next) < map.Checkpoints.Items.size())
    {
        const world::Target& target = map.Checkpoints.Items[static_cast<std::size_t>(next)];
        const double distance = render::Dist2D(target.X, target.Z, car.X, car.Z);
        if (distance > 0)
            arrow.AngleA =
                static_cast<float>(-render::AngleOf((target.X - car.X) / distance, (target.Z - car.Z) / distance));
    }
    arrow.X = static_cast<float>(fromInside ? car.X - 12 * car.Sin : car.X);
    arrow.Y = static_cast<float>(fromInside ? car.Y + 4 : car.Y + 10);
    arrow.Z = static_cast<float>(fromInside ? car.Z + 12 * car.Cos : car.Z);
}
}

void TurnYaw(Camera& camera, double target, double factor)
{
    double yaw = render::WrapAngle(camera.CamYaw);
    target = render::WrapAngle(target);
    if (std::abs(target - yaw) > render::Pi)
        (yaw < target ? yaw : target) += render::TwoPi;
    camera.CamYaw = static_cast<float>(yaw + (target - yaw) / factor);
}

void PlaceView(Camera& camera, render::Scene& scene, const world::Race& race, const world::HeldKeys& keys,
               std::int16_t arrowObj)
{
    if (camera.View < render::View::Chase || camera.View > render::View::Still)
        return;
    const world::Player* player = world::FindPlayer(race, camera.ViewPlayer);
    if (player == nullptr || !scene.Objects.Has(player->Obj))
        return;
    const Followed car(scene.Objects.At(player->Obj), player->Speed);
    Place(camera, car, keys);
    if (scene.Objects.Has(arrowObj))
        PlaceArrow(scene.Objects.At(arrowObj), car, race.Map, player->NextCheckpoint,
                   camera.View == render::View::Driver);
}
}
