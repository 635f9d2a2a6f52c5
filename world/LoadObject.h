// SPDX-License-Identifier: Zlib
// world/LoadObject.h: 3DM model files (format: docs/formats.md).
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "render/Scene.h"

#include <cstdint>
#include <string>

namespace world
{
// How the run of a model file ended.
struct LoadedModel
{
    std::int16_t Current = -1; // slot of the last object or polyline that it created, -1 for none
    bool Failed = false;       // an error was reported
};

// Runs a model file: its objects, polylines and textures are added to the scene. Reports its own errors in a message
// box; what was built until then stays.
LoadedModel LoadObject(render::Scene& scene, base::MessageSink& messages, const base::Files& files,
                       const std::string& path);
}
