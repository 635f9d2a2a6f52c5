// Point-list files and player files.
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "world/FieldReader.h"
#include "world/Loaders.h"

#include <limits>

namespace world
{
namespace
{
constexpr std::size_t MostRecords = std::numeric_limits<std::int16_t>::max(); // what a 16-bit count can tell
}

std::int16_t LoadTargets(base::MessageSink& messages, const base::Files& files, const std::string& path,
                         std::vector<Target>& list)
{
    list.clear();
    base::Trapped(messages, "LoadTargets",
                  [&]
                  {
                      FieldReader in(files, path);
                      while (!in.AtEnd())
                      {
                          if (list.size() == MostRecords)
                              throw base::RuntimeError(base::ErrorOverflow);
                          list.push_back(Target{in.Single(), in.Single(), in.Single(), in.Single()});
                      }
                  });
    const auto count = static_cast<std::int16_t>(list.size());
    if (list.empty())
        list.emplace_back();
    return count;
}

std::int16_t MakePlayer(base::MessageSink& messages, const base::Files& files, const std::string& path,
                        std::int16_t object, Race& race)
{
    std::int16_t made = -1;
    base::Trapped(messages, "MakePlayer",
                  [&]
                  {
                      if (race.NumPlayers == std::numeric_limits<std::int16_t>::max())
                          throw base::RuntimeError(base::ErrorOverflow);
                      FieldReader in(files, path);
                      Player player;
                      player.WRS = player.CurWRS = in.Single();
                      player.MaxSpeed = player.CurMaxSpeed = in.Single();
                      player.MaxSpeedR = player.CurMaxSpeedR = in.Single();
                      player.Acceleration = player.CurAcceleration = in.Single();
                      player.Brake = player.CurBrake = in.Single();
                      player.Deceleration = player.CurDeceleration = in.Single();
                      player.Control = in.Byte();
                      player.Obj = object;
                      race.Players.push_back(player);
                      made = race.NumPlayers++;
                  });
    return made;
}
}
