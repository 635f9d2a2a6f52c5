// SPDX-License-Identifier: Zlib
#include "tests/support/ShippedRace.h"

namespace support
{
ShippedRace::ShippedRace(std::uint64_t seed) : Application(Machine)
{
    Application.Start();
    Machine.Clock += 1000;
    Application.RunTimers();
    Game().Random.Seed(seed);
    Form().Race().StartProcess();
    for (world::Player& player : Game().Race.Players)
        player.Control = 1;
}

void ShippedRace::Step(base::PhaseClock* clock)
{
    Machine.Clock += 25;
    Form().Race().GameT_Tick(clock);
}

std::vector<render::Camera> ShippedRace::RecordPath(int ticks)
{
    constexpr int TicksAPicture = 40, PicturesAView = 8;
    std::vector<render::Camera> path;
    for (int tick = 0; tick < ticks; ++tick)
    {
        Step();
        if (tick % TicksAPicture != 0)
            continue;
        path.push_back(Game().Camera);
        Game().Camera.View = static_cast<std::int16_t>(static_cast<int>(path.size()) / PicturesAView % 3);
    }
    return path;
}
}
