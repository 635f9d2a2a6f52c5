// SPDX-License-Identifier: Zlib
#include "world/RaceLogic.h"

#include "world/Cars.h"
#include "world/Zones.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace world
{
namespace
{
constexpr std::int16_t FinishView = 5; // the side camera

// Ground distance from the player's car to its next checkpoint; NaN where either is missing.
double DistanceToGo(const render::Scene& scene, const Map& map, const Player& player)
{
    const render::Obj* car = ObjectAt(scene, player.Obj);
    const Target* next = CheckpointAt(map, player.NextCheckpoint);
    return car != nullptr && next != nullptr ? GroundDistance(*car, *next) : std::numeric_limits<double>::quiet_NaN();
}

// The order in which places are given: who has no distance comes behind those who passed as many checkpoints.
bool ComesBefore(const Standing& a, const Standing& b)
{
    if (a.Passed != b.Passed)
        return a.Passed > b.Passed;
    return !std::isnan(a.ToGo) && (std::isnan(b.ToGo) || a.ToGo < b.ToGo);
}

bool PassesCheckpoint(const Map& map, const Player& player, const render::Obj& car)
{
    const Target* checkpoint = CheckpointAt(map, player.NextCheckpoint);
    if (checkpoint == nullptr)
        return false;
    // Deliberate: by its records, the zeroed one too.
    const std::vector<Target>& elsewhere = map.ACheckpoints.Items;
    const auto index = static_cast<std::size_t>(player.NextCheckpoint);
    return IsInside(car, *checkpoint) || (index < elsewhere.size() && IsInside(car, elsewhere[index]));
}

void CountCheckpoint(Player& player, const Map& map, base::Random& random)
{
    CountUp(player.Passed);
    CountUp(player.NextCheckpoint);
    player.Pace = random.Next() < 0.2 ? Single(0.75 + 0.5 * random.Next()) : 1.0f;
    if (player.NextCheckpoint >= map.Checkpoints.Count())
    {
        CountUp(player.Lap);
        player.NextCheckpoint = 0;
    }
}

std::string FinishMessage(std::int16_t place)
{
    switch (place)
    {
    case 1:
        return "Sei arrivato primo";
    case 2:
        return "Sei arrivato secondo";
    case 3:
        return "Sei arrivato terzo";
    default:
        return "Sei arrivato " + std::to_string(place) + "°";
    }
}

// Shows the trophy in gold, silver or bronze; nothing for any other place.
void AwardTrophy(Simulation& sim, std::int16_t place)
{
    constexpr std::int32_t metals[] = {65535, 210 + 216 * 256 + 219 * 65536, 198 + 82 * 256 + 26 * 65536};
    render::Obj* trophy = ObjectAt(sim.Scene, sim.Assets.CupObj);
    if (trophy == nullptr || place < 1 || place > 3)
        return;
    trophy->Visible = 1;
    const std::int32_t metal = metals[place - 1];
    for (const std::size_t index : {6u, 7u})
        if (index < trophy->Mesh.size())
        {
            render::ObjMesh& mesh = trophy->Mesh[index];
            mesh.Colour = metal;
            mesh.Col = render::SplitRGB(metal);
        }
}

// The user's car has done its laps: the computer drives it on.
void Finish(Simulation& sim, Player& player, FinishSink& finish)
{
    player.Control = 1;
    sim.Race.RaceOver = base::True;
    AwardTrophy(sim, player.Place);
    sim.Camera.View = FinishView;
    finish.Finished(FinishMessage(player.Place));
}
}

void ComputePlaces(Simulation& sim)
{
    Race& race = sim.Race;
    std::vector<Standing>& standings = sim.Scratch.Standings;
    standings.clear();
    for (std::int16_t index = 0; index < race.NumPlayers(); ++index)
    {
        const Player& player = *FindPlayer(race, index);
        standings.push_back({player.Passed, index, DistanceToGo(sim.Scene, race.Map, player)});
    }
    std::sort(standings.begin(), standings.end(), ComesBefore);

    std::size_t group = 0; // the first who passed as many checkpoints
    std::size_t equal = 0; // the first of those as near
    for (std::size_t at = 0; at < standings.size(); ++at)
    {
        const Standing& here = standings[at];
        if (here.Passed != standings[group].Passed)
            group = at;
        if (ComesBefore(standings[equal], here))
            equal = at;
        // Without a distance nobody is ahead by it.
        const std::size_t ahead = std::isnan(here.ToGo) ? group : equal;
        FindPlayer(race, here.Player)->Place = static_cast<std::int16_t>(ahead + 1);
    }
}

void RaceStep(Simulation& sim, FinishSink& finish)
{
    Race& race = sim.Race;
    sim.InBox = false;
    LearnZones(sim);
    for (std::int16_t index = 0; index < race.NumPlayers(); ++index)
    {
        Player& player = *FindPlayer(race, index);
        const render::Obj* car = ObjectAt(sim.Scene, player.Obj);
        if (car != nullptr && PassesCheckpoint(race.Map, player, *car))
            CountCheckpoint(player, race.Map, sim.Random);
        if (index == race.UserPlayer && player.Lap >= race.Laps && race.RaceOver == base::False)
            Finish(sim, player, finish);
        ApplyZones(sim, index);
    }
}
}
