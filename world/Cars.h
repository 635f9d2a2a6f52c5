// SPDX-License-Identifier: Zlib
// world/Cars.h: small helpers of the simulation's procedures: records by index, rounding to a field, distances.
#pragma once
#include "base/Numbers.h"
#include "render/Camera.h"
#include "render/Scene.h"
#include "world/Race.h"

#include <limits>

namespace world
{
// The one rounding of an assignment to a field.
inline float Single(double value)
{
    return static_cast<float>(value);
}

// Null where there is none.
inline render::Obj* ObjectAt(render::Scene& scene, std::int32_t index)
{
    return scene.Objects.Has(index) ? &scene.Objects.Items[static_cast<std::size_t>(index)] : nullptr;
}
inline const render::Obj* ObjectAt(const render::Scene& scene, std::int32_t index)
{
    return scene.Objects.Has(index) ? &scene.Objects.Items[static_cast<std::size_t>(index)] : nullptr;
}

inline const Target* CheckpointAt(const Map& map, std::int32_t index)
{
    const std::span<const Target> checkpoints = map.Checkpoints.Targets();
    return index >= 0 && index < std::ssize(checkpoints) ? &checkpoints[static_cast<std::size_t>(index)] : nullptr;
}

inline double GroundDistance(const render::Obj& object, const Target& target)
{
    return render::Dist2D(object.X, object.Z, target.X, target.Z);
}

// Whether the object stands in the zone around the target.
inline bool IsInside(const render::Obj& object, const Target& target)
{
    return GroundDistance(object, target) < target.R;
}

// Counters stop at 32767.
inline void CountUp(std::int16_t& counter)
{
    if (counter < std::numeric_limits<std::int16_t>::max())
        ++counter;
}
}
