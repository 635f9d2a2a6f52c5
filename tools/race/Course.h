// SPDX-License-Identifier: Zlib
// tools/race/Course.h: the way round the lap: where on the line the car is, which point of it to steer at, and how fast
// the bends ahead may be approached. A driver who has missed a checkpoint or left the road turns back to it.
#pragma once
#include "tools/race/Aim.h"
#include "tools/race/Sight.h"
#include "tools/race/Skill.h"

#include <cstddef>
#include <span>
#include <vector>

namespace race
{
class Course
{
public:
    // All outlive this.
    Course(const Line& line, std::span<const world::Target> checkpoints, const Skill& skill);

    // Finds the car on the line.
    void Locate(const Sight& sight);
    // left: units to the left of the line that are aimed at. trust: of the brake, 1 as the skill has it.
    Aim Next(const Sight& sight, double left, double trust) const;

    bool IsLost() const { return Lost; }
    std::size_t Here() const { return Index; } // the point of the line beside the car
    const Line& Way() const { return TheLine; }

private:
    bool HasMissed(const Seen& own, std::size_t checkpoint) const;
    double MostSpeed(const Sight& sight, double trust) const;

    const Line& TheLine;
    std::span<const world::Target> Checkpoints;
    const Skill& TheSkill;
    std::vector<std::size_t> Gates; // by checkpoint: the nearest point of the line
    std::size_t Index = 0;
    bool Lost = true;
};

// The speed of a bend that so much of the tightest curve allows. curvature: radians a unit, not negative.
double CornerSpeed(double curvature, double steering, double share);
}
