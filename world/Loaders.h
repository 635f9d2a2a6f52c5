// world/Loaders.h: 3DM models, the map script, player and point-list files (formats: docs/). Each reports its own
// errors in a message box and keeps what it built.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "render/Scene.h"
#include "world/Race.h"

#include <string>
#include <vector>

namespace world
{
// Runs a model file. Returns the last object or polyline it created, -1 for none, also after an error.
std::int16_t LoadObject(render::Scene& scene, base::MessageSink& messages, const base::Files& files,
                        const std::string& path);
// Runs a map script. blurredGround: whether the texture filters will want the blurred copy.
void LoadMap(render::Scene& scene, Race& race, base::MessageSink& messages, const base::Files& files,
             const std::string& path, bool blurredGround);
// Replaces the list by the records of the file; returns their number (one zeroed record stands in an empty list).
std::int16_t LoadTargets(base::MessageSink& messages, const base::Files& files, const std::string& path,
                         std::vector<Target>& list);
// Appends a player bound to the object. Returns its index; -1, and no player, after an error.
std::int16_t MakePlayer(base::MessageSink& messages, const base::Files& files, const std::string& path,
                        std::int16_t object, Race& race);
}
