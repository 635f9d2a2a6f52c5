// SPDX-License-Identifier: Zlib
// tools/race/Scout.h: the track by itself: its line, and how quick a human-like driver is alone on it.
#pragma once
#include "tools/race/Line.h"
#include "tools/race/Skill.h"
#include "tools/race/Stage.h"

#include <optional>
#include <vector>

namespace race
{
inline constexpr int CleanLaps = 5; // flying laps that are measured

struct Scouted
{
    Line Way;
    bool IsDriven = false;     // the line is a computer driver's; otherwise straight from checkpoint to checkpoint
    std::vector<double> Clean; // seconds of the clean laps; fewer where the driver takes too long

    std::optional<double> MeanLap() const; // nothing unless all were driven
};

// The computer drives the user's car round alone; then the human-like driver does.
// lapSeconds: of game time that a lap may take.
Scouted Scout(const Setup& setup, const Skill& skill, int lapSeconds);
// The line alone; leaves the user's car to the keys.
Scouted ScoutLine(Stage& stage, int lapSeconds);
}
