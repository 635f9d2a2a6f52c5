// SPDX-License-Identifier: Zlib
#include "tools/race/Course.h"

#include "base/Math.h"

#include <algorithm>
#include <cmath>

namespace race
{
namespace
{
constexpr double LostDistance = 25, FoundDistance = 12;    // from the line, units
constexpr double SlowSpeed = 1.3;                          // at which a car turns on the road
constexpr double LookAheadLeast = 7, LookAheadASpeed = 4;  // units
constexpr double Horizon = 170;                            // units that bends are seen ahead
constexpr std::size_t SearchBehind = 15, SearchAhead = 40; // points

Spot Centre(const world::Target& target)
{
    return {target.X, target.Z};
}
}

double CornerSpeed(double curvature, double steering, double share)
{
    // A car at speed s turns on a radius of s (s + 1) / 4 w.
    const double radius = 1 / std::max(curvature, 1e-6);
    return (base::Sqrt(1 + 16 * steering * radius * share) - 1) / 2;
}

Course::Course(const Line& line, std::span<const world::Target> checkpoints, const Skill& skill)
    : TheLine(line), Checkpoints(checkpoints), TheSkill(skill)
{
    for (const world::Target& checkpoint : checkpoints)
        Gates.push_back(line.Nearest(Centre(checkpoint)));
}

// Well behind the gate, and the gate still counts.
bool Course::HasMissed(const Seen& own, std::size_t checkpoint) const
{
    const world::Target& gate = Checkpoints[checkpoint];
    const std::size_t behind = TheLine.Ahead(Gates[checkpoint], Index);
    const double distance = Distance(own.Place, Centre(gate));
    return behind > 0 && behind < TheLine.Count() / 4 && static_cast<double>(behind) * TheLine.Spacing() > gate.R + 6 &&
           distance > gate.R;
}

void Course::Locate(const Sight& sight)
{
    const Seen& own = sight.Own;
    const auto next = static_cast<std::size_t>(sight.NextCheckpoint) % Checkpoints.size();
    if (Lost)
    {
        // On the way to the next gate, not where the line passes elsewhere.
        const std::size_t before = Gates[(next + Gates.size() - 1) % Gates.size()];
        const std::size_t leg = TheLine.Ahead(before, Gates[next]);
        Index = TheLine.Nearest(own.Place, before, std::max<std::size_t>(leg, 1));
        Lost = Distance(own.Place, TheLine.At(Index)) > FoundDistance;
        return;
    }
    const std::size_t count = TheLine.Count();
    Index = TheLine.Nearest(own.Place, Index + count - std::min(SearchBehind, count / 4),
                            std::min(SearchBehind + SearchAhead, count / 2));
    Lost = Distance(own.Place, TheLine.At(Index)) > LostDistance || HasMissed(own, next);
}

double Course::MostSpeed(const Sight& sight, double trust) const
{
    const double brake = 4 * sight.Brake * TheSkill.BrakeTrust * std::max(trust, 0.2);
    double most = NoLimit;
    for (std::size_t ahead = 0; static_cast<double>(ahead) * TheLine.Spacing() < Horizon; ++ahead)
    {
        const double bend = CornerSpeed(std::fabs(TheLine.Curvature(Index + ahead)), sight.Steering, TheSkill.Boldness);
        // A tick takes off the brake and moves the car by half of its speed.
        const double way = static_cast<double>(ahead) * TheLine.Spacing();
        most = std::min(most, base::Sqrt(bend * bend + brake * way));
    }
    return most;
}

Aim Course::Next(const Sight& sight, double left, double trust) const
{
    if (Lost)
        return {Centre(Checkpoints[static_cast<std::size_t>(sight.NextCheckpoint) % Checkpoints.size()]), SlowSpeed};
    const double ahead = LookAheadLeast + LookAheadASpeed * std::max(sight.Own.Speed, 0.0);
    const auto points = static_cast<std::size_t>(ahead / TheLine.Spacing());
    return {TheLine.Beside(Index + std::max<std::size_t>(points, 1), left), MostSpeed(sight, trust)};
}
}
