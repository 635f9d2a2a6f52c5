// SPDX-License-Identifier: Zlib
// tools/race/Skill.h: how well the human-like driver drives.
#pragma once
#include <array>
#include <optional>
#include <string_view>

namespace race
{
struct Skill
{
    std::string_view Name;
    int Reaction = 6;         // ticks of 25 ms between what is seen and what the hands do about it
    int KeyHold = 2;          // ticks that a key stays down or up at least
    double LineError = 1;     // world units that the aim wanders beside the line, typically
    double BrakeError = 0.1;  // share by which the trusted brake wanders
    double BrakeTrust = 0.75; // share of the brake that is counted on before a bend
    double Boldness = 0.85;   // share of the car's tightest curve that a bend is taken with
    double Slack = 0.05;      // radians off course that are let be
};

inline constexpr std::array Skills = {
    Skill{"weak", 10, 3, 1.6, 0.2, 0.6, 0.62, 0.07},
    Skill{"average", 6, 2, 1.0, 0.12, 0.75, 0.76, 0.05},
    Skill{"strong", 4, 2, 0.5, 0.06, 0.88, 0.9, 0.035},
};

// Null where no skill has that name.
inline const Skill* FindSkill(std::string_view name)
{
    for (const Skill& skill : Skills)
        if (skill.Name == name)
            return &skill;
    return nullptr;
}
}
