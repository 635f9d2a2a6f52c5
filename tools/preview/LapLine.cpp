// SPDX-License-Identifier: Zlib
#include "tools/preview/LapLine.h"

#include "render/Camera.h"
#include "tools/preview/Failure.h"

#include <algorithm>

namespace preview
{
LapLine::LapLine(std::span<const world::Target> checkpoints) : Checkpoints(checkpoints), Begins{0}
{
    if (checkpoints.size() < 2)
        throw Failure{"the map has no lap: it needs two checkpoints or more"};
    for (std::size_t i = 0; i < checkpoints.size(); ++i)
    {
        const world::Target &from = Checkpoint(i), &to = Checkpoint(i + 1);
        Begins.push_back(Begins.back() + render::Dist2D(from.X, from.Z, to.X, to.Z));
    }
    if (!(Length() > 0))
        throw Failure{"the map has no lap: its checkpoints stand at one place"};
}

Place LapLine::At(double along) const
{
    const auto above = std::upper_bound(Begins.begin() + 1, Begins.end() - 1, along);
    const auto leg = static_cast<std::size_t>(above - Begins.begin()) - 1;
    const world::Target &from = Checkpoint(leg), &to = Checkpoint(leg + 1);
    const double dx = static_cast<double>(to.X) - from.X, dz = static_cast<double>(to.Z) - from.Z;
    const double length = Begins[leg + 1] - Begins[leg];
    const double share = length > 0 ? (along - Begins[leg]) / length : 0;
    return {from.X + dx * share, from.Z + dz * share, render::AngleOf(-dx, dz), along,
            static_cast<std::int16_t>((leg + 1) % Checkpoints.size())};
}

std::vector<Place> LapLine::Places(int count) const
{
    std::vector<Place> places;
    for (int i = 0; i < count; ++i)
        places.push_back(At(Length() * i / count));
    return places;
}

double LapLine::Progress(int passed, double x, double z) const
{
    const auto next = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(passed, 0, std::ssize(Checkpoints)));
    if (passed > std::ssize(Checkpoints))
        return Length();
    const world::Target& target = Checkpoint(next);
    const double ahead = render::Dist2D(x, z, target.X, target.Z);
    return next == 0 ? -ahead : std::max(Begins[next] - ahead, Begins[next - 1]);
}
}
