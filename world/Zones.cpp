// SPDX-License-Identifier: Zlib
#include "world/Zones.h"

#include "base/Math.h"
#include "world/Cars.h"
#include "world/Driving.h"
#include "world/Particles.h"

#include <algorithm>
#include <cmath>

namespace world
{
namespace
{
// One puff beside the car.
void Splash(Simulation& sim, const Player& player, const render::Obj& car)
{
    const double angle = car.AngleA;
    Spawn(sim, Emission{.Picture = sim.Assets.Water,
                        .Kind = render::Puff,
                        .Life = 3.0 * std::fabs(player.Speed) + 5.0,
                        .X = car.X + base::Cos(angle),
                        .Y = car.Y + 0.2,
                        .Z = car.Z + base::Sin(angle),
                        .Scale = 0.03,
                        .Alpha = 0.6});
}
}

void LearnZones(Simulation& sim)
{
    const Map& map = sim.Race.Map;
    sim.Scratch.Boxes.Learn(map.Boxes.Targets());
    sim.Scratch.Grass.Learn(map.Grass.Targets());
    sim.Scratch.Water.Learn(map.Water.Targets());
}

void ApplyZones(Simulation& sim, std::int16_t index)
{
    Player* player = FindPlayer(sim.Race, index);
    const render::Obj* car = player != nullptr ? ObjectAt(sim.Scene, player->Obj) : nullptr;
    if (car == nullptr)
        return;
    TickScratch& known = sim.Scratch;

    const bool repairs = player->Speed == 0.0f && known.Boxes.Holds(*car);
    if (index == sim.Camera.ViewPlayer)
        sim.InBox = repairs;
    if (repairs)
    {
        player->Damage = std::max(Single(player->Damage - 0.05), 0.0f);
        ApplyDamage(*player);
    }

    // Deliberate: a car in reverse is slowed by neither grass nor water.
    if (player->Speed > 1.0f && known.Grass.Holds(*car))
        player->Speed = Single(player->Speed * 0.98);

    if (known.Water.Holds(*car))
    {
        if (player->Speed > 0.2)
            player->Speed = Single(player->Speed * 0.94);
        player->Damage = Single(player->Damage + 0.018);
        ApplyDamage(*player);
        if (sim.EffQuality > 0.0f && player->Speed > 0.1)
            Splash(sim, *player, *car);
    }
}
}
