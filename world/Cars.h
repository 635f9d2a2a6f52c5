// world/Cars.h: small helpers of the simulation's procedures: records by index, rounding to a field, distances.
#pragma once
#include "base/Numbers.h"
#include "render/Scene.h"
#include "world/Race.h"

#include <limits>

namespace modDinamica
{
// The one rounding of an assignment to a field.
inline float Single(double value)
{
    return static_cast<float>(value);
}

// Null where there is none: indices come from scripts and the console.
inline world::Player* PlayerAt(world::Race& race, std::int32_t index)
{
    return index >= 0 && index < race.NumPlayers ? &race.Players[static_cast<std::size_t>(index)] : nullptr;
}

inline Mod3D::Obj* ObjectAt(Mod3D::Scene& scene, std::int32_t index)
{
    return scene.Objects.Has(index) ? &scene.Objects.Items[static_cast<std::size_t>(index)] : nullptr;
}
inline const Mod3D::Obj* ObjectAt(const Mod3D::Scene& scene, std::int32_t index)
{
    return scene.Objects.Has(index) ? &scene.Objects.Items[static_cast<std::size_t>(index)] : nullptr;
}

inline const world::Target* CheckpointAt(const world::Map& map, std::int32_t index)
{
    const bool exists = index >= 0 && index < map.NumCheckpoints && index < std::ssize(map.Checkpoints);
    return exists ? &map.Checkpoints[static_cast<std::size_t>(index)] : nullptr;
}

inline double GroundDistance(const Mod3D::Obj& object, const world::Target& target)
{
    return Mod3D::Dist2D(object.X, object.Z, target.X, target.Z);
}

// Whether the object stands in the zone around the target.
inline bool IsInside(const Mod3D::Obj& object, const world::Target& target)
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
