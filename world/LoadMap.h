// SPDX-License-Identifier: Zlib
// world/LoadMap.h: map scripts (format: docs/formats.md).
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "render/Scene.h"
#include "world/Race.h"

#include <string>

namespace world
{
// Runs a map script: ground, objects and players are added, each of its lists replaces the former one. blurredGround:
// whether the texture filters will want the blurred copy. Reports its own errors in a message box, as do the files that
// the script names; what was built until then stays.
void LoadMap(render::Scene& scene, Race& race, base::MessageSink& messages, const base::Files& files,
             const std::string& path, bool blurredGround);
}
