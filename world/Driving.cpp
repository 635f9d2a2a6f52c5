// SPDX-License-Identifier: Zlib
#include "world/Driving.h"

#include "base/Math.h"
#include "world/Cars.h"

#include <array>
#include <cmath>

namespace world
{
namespace
{
// Upper speeds of the first five gears.
constexpr std::array<double, 5> GearTops = {0.55, 1.11, 1.94, 3.06, 4.44};
constexpr std::array<const char*, 6> GearNames = {"1", "2", "3", "4", "5", "6"};

constexpr double SpinStrength = 0.7;   // tyre marks of wheel spin, hard braking and handbrake
constexpr double CornerStrength = 0.9; // of fast cornering
constexpr double MostSway = 0.35;

// One gear for every top that the speed has reached; speeds are singles and compare with singles.
std::size_t GearIndex(float speed)
{
    std::size_t gear = 0;
    while (gear < GearTops.size() && speed >= static_cast<float>(GearTops[gear]))
        ++gear;
    return gear;
}

void Darken(render::Ground& ground, std::int32_t column, std::int32_t row, double strength)
{
    render::PicArray2D& pixels = ground.Sharp.Pixels;
    if (column < 0 || column >= ground.Width || row < 0 || row >= ground.Height || pixels.Empty())
        return;
    std::uint8_t* texel = pixels.Row(row) + static_cast<std::ptrdiff_t>(column) * 3;
    for (int channel = 0; channel < 3; ++channel)
        texel[channel] = base::RoundByte(texel[channel] * strength);
}

void Accelerate(Simulation& sim, Player& player)
{
    if (player.Speed >= 0.0f)
    {
        if (!(player.Speed < player.CurMaxSpeed))
            return;
        player.Speed += player.CurAcceleration;
        if (player.Speed < 0.4 && player.CurAcceleration >= 0.01)
            TyreMarks(sim, player, SpinStrength);
    }
    else if (player.Speed < 0.0f) // rolling backwards
    {
        player.Speed = player.Speed < -player.CurBrake ? player.Speed + player.CurBrake : 0.0f;
        if (player.Speed < -0.4 && player.CurBrake >= 0.01)
            TyreMarks(sim, player, SpinStrength);
    }
}

void BrakeOrReverse(Simulation& sim, Player& player)
{
    if (player.Speed <= 0.0f)
    {
        if (player.Speed > -player.CurMaxSpeedR)
            player.Speed -= player.CurAcceleration;
    }
    else if (player.Speed > 0.0f)
    {
        player.Speed = player.Speed > player.CurBrake ? player.Speed - player.CurBrake : 0.0f;
        if (player.Speed > 2.5 && player.CurBrake >= 0.01)
            TyreMarks(sim, player, SpinStrength);
    }
}

void PullHandbrake(Simulation& sim, Player& player)
{
    const double grip = player.CurBrake / 4.0;
    if (std::fabs(player.Speed) > grip)
    {
        player.Speed = Single(player.Speed - base::Sign(player.Speed) * grip);
        TyreMarks(sim, player, SpinStrength);
    }
    else
        player.Speed = 0.0f;
}

void Turn(const Player& player, render::Obj& car, int side)
{
    car.AngleA = Single(car.AngleA + side * (SteerFactor(player.Speed) * player.CurWRS));
}

// side: +1 left, -1 right.
void Corner(Simulation& sim, Player& player, render::Obj& car, int side)
{
    float& sway = sim.Camera.CamSway;
    if (player.Speed >= 0.0f && side * static_cast<double>(sway) < MostSway)
        sway = Single(sway + side * 0.01);
    Turn(player, car, side);
    if (sim.Keys.KeyHandbrake != 0)
    {
        Turn(player, car, side);
        PullHandbrake(sim, player);
    }
    else if (player.Speed > 2.7)
        TyreMarks(sim, player, CornerStrength);
    player.Speed = Single(player.Speed * 0.99); // cornering drag
}

void GoStraight(Simulation& sim, Player& player, render::Obj& car)
{
    sim.Camera.CamSway = Single(sim.Camera.CamSway * 0.8);
    if (sim.Keys.KeyHandbrake == 0)
        return;
    Turn(player, car, base::Sign(sim.Random.Next() - 0.5)); // the tail breaks out to either side
    PullHandbrake(sim, player);
}
}

double SteerFactor(double speed)
{
    if (speed >= 0.0)
        return 1.0 - std::fabs(speed - 1.0) / (speed + 1.0);
    return std::fabs(-speed - 1.0) / (1.0 - speed) - 1.0;
}

const char* Gear(float speed)
{
    if (speed < 0.0f)
        return "R";
    return speed == 0.0f ? "N" : GearNames[GearIndex(speed)];
}

double EngineNote(float speed)
{
    if (speed < 0.0f)
        return 0.2 - 0.3 * speed;
    const std::size_t gear = GearIndex(speed);
    if (gear == 0)
        return 0.3 * speed + 0.2;
    return (static_cast<double>(speed) - GearTops[gear - 1]) * 0.2 + 0.3;
}

void ApplyDamage(Player& player)
{
    const double weakness = player.Damage + 1.0;
    player.CurMaxSpeed = Single(player.MaxSpeed / weakness);
    player.CurMaxSpeedR = Single(player.MaxSpeedR / weakness);
    player.CurAcceleration = Single(player.Acceleration / weakness);
    player.CurBrake = Single(player.Brake / weakness);
}

void TyreMarks(Simulation& sim, const Player& player, double strength)
{
    const render::Obj* car = ObjectAt(sim.Scene, player.Obj);
    if (car == nullptr)
        return;
    render::Ground& ground = sim.Scene.Ground;
    const double cosA = base::Cos(car->AngleA);
    const double sinA = base::Sin(car->AngleA);
    for (const int side : {1, -1})
        Darken(ground, base::RoundEven((car->X + side * cosA) * ground.GroundScale),
               base::RoundEven((car->Z + side * sinA) * ground.GroundScale), strength);
}

void UserDrive(Simulation& sim)
{
    Player* player = FindPlayer(sim.Race, sim.Race.UserPlayer);
    if (player == nullptr || player->Control != 0)
        return;
    render::Obj* car = ObjectAt(sim.Scene, player->Obj);
    if (car == nullptr)
        return;

    if (sim.Keys.KeyAccel != 0)
        Accelerate(sim, *player);
    else if (sim.Keys.KeyBrake != 0)
        BrakeOrReverse(sim, *player);

    if (sim.Keys.KeyLeft != 0)
        Corner(sim, *player, *car, +1);
    else if (sim.Keys.KeyRight != 0)
        Corner(sim, *player, *car, -1);
    else
        GoStraight(sim, *player, *car);

    MoveCar(sim, *player);
}

void MoveCar(Simulation& sim, Player& player)
{
    render::Obj* car = ObjectAt(sim.Scene, player.Obj);
    if (car == nullptr)
        return;
    const double speed = player.Speed;
    car->X = Single(car->X - speed * base::Sin(car->AngleA) / 2.0);
    car->Z = Single(car->Z + speed * base::Cos(car->AngleA) / 2.0);
    if (std::fabs(player.Speed) >= player.CurDeceleration)
        player.Speed = Single(speed - base::Sign(speed) * static_cast<double>(player.CurDeceleration));
    else
        player.Speed = 0.0f;
}
}
