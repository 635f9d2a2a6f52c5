// SPDX-License-Identifier: Zlib
#include "world/Particles.h"

#include "base/Math.h"
#include "world/Cars.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace world
{
namespace
{
constexpr std::int16_t MostSprites = 16384; // far below the 16-bit index, far above what can be seen

// When the car may send up the next smoke: later the slower it is and the less quality is asked for.
std::int32_t NextSmoke(std::int32_t now, double wait)
{
    constexpr double latest = std::numeric_limits<std::int32_t>::max();
    if (!(now + wait < latest))
        return std::numeric_limits<std::int32_t>::max();
    return now + base::RoundEven(wait);
}

void SmokeOrBurn(Simulation& sim, Player& player, const render::Obj& car)
{
    const double x = car.X - base::Sin(car.AngleA);
    const double z = car.Z + base::Cos(car.AngleA);
    const double s = std::fabs(player.Speed) + 1.0;
    double delay = 70.0;
    if (player.Damage < 7.0f)
    {
        const double size = std::min(player.Damage * 4.0, 20.0);
        Spawn(sim, Emission{sim.Assets.Smoke, render::Smoke, size, x, car.Y + 1.0, z, 0.03, size / 80.0 / s + 0.5});
    }
    else
    {
        Spawn(sim, Emission{sim.Assets.FireRed, render::Fire, 25.0, x, car.Y + 0.8, z, 0.04, 0.7 / s});
        Spawn(sim, Emission{sim.Assets.FireYellow, render::Fire, 25.0, x, car.Y + 0.8, z, 0.03, 0.7 / s});
        delay = 140.0;
    }
    player.NextSmoke = NextSmoke(sim.Race.GameTime, delay / s / sim.EffQuality);
}
}

void Spawn(Simulation& sim, const Emission& emission)
{
    if (emission.Picture == nullptr || sim.Scene.Sprites.Count >= MostSprites)
        return;
    constexpr double longest = std::numeric_limits<std::int16_t>::max();
    const auto life = static_cast<std::int16_t>(base::RoundEven(std::min(emission.Life, longest)));
    render::AddParticle(sim.Scene, life, emission.Kind,
                        {.X = Single(emission.X),
                         .Y = Single(emission.Y),
                         .Z = Single(emission.Z),
                         .Scale = Single(emission.Scale),
                         .Alpha = Single(emission.Alpha),
                         .Pixels = emission.Picture});
}

void DamageSmoke(Simulation& sim)
{
    if (sim.EffQuality > 0.0f)
        for (Player& player : sim.Race.Players)
        {
            const render::Obj* car = ObjectAt(sim.Scene, player.Obj);
            if (car != nullptr && player.Damage > 1.0f && sim.Race.GameTime > player.NextSmoke)
                SmokeOrBurn(sim, player, *car);
        }
    render::AdvanceParticles(sim.Scene, sim.Random);
}
}
