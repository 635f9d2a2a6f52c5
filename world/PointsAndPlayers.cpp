// SPDX-License-Identifier: Zlib
#include "world/PointsAndPlayers.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "world/FieldReader.h"

#include <limits>

namespace world
{
namespace
{
constexpr std::size_t MostRecords = std::numeric_limits<std::int16_t>::max(); // what a 16-bit count can tell

void ReadTargets(FieldReader in, std::vector<Target>& list)
{
    while (!in.AtEnd())
    {
        if (list.size() == MostRecords)
            throw base::RuntimeError(base::ErrorOverflow);
        list.push_back(Target{in.Single(), in.Single(), in.Single(), in.Single()});
    }
}

Player ReadPlayer(FieldReader in)
{
    Player player;
    player.WRS = player.CurWRS = in.Single();
    player.MaxSpeed = player.CurMaxSpeed = in.Single();
    player.MaxSpeedR = player.CurMaxSpeedR = in.Single();
    player.Acceleration = player.CurAcceleration = in.Single();
    player.Brake = player.CurBrake = in.Single();
    player.Deceleration = player.CurDeceleration = in.Single();
    player.Control = in.Byte();
    return player;
}
}

std::int16_t LoadTargets(base::MessageSink& messages, const base::Files& files, const std::string& path,
                         TargetList& list)
{
    list.Items.clear();
    base::Trapped(messages, "LoadTargets", [&] { ReadTargets(FieldReader(files, path), list.Items); });
    list.IsStandIn = list.Items.empty();
    if (list.IsStandIn)
        list.Items.emplace_back();
    return list.Count();
}

std::int16_t MakePlayer(base::MessageSink& messages, const base::Files& files, const std::string& path,
                        std::int16_t object, Race& race)
{
    std::int16_t made = -1;
    const auto make = [&]
    {
        if (race.Players.size() == MostRecords)
            throw base::RuntimeError(base::ErrorOverflow);
        Player player = ReadPlayer(FieldReader(files, path));
        player.Obj = object;
        race.Players.push_back(player);
        made = static_cast<std::int16_t>(race.NumPlayers() - 1);
    };
    base::Trapped(messages, "MakePlayer", make);
    return made;
}
}
