// SPDX-License-Identifier: Zlib
// tools/race/Summary.h: the races of one variation taken together. Shares are from 0 to 1; a mean is nothing where
// there was nothing to measure.
#pragma once
#include "tools/race/Measure.h"

#include <optional>
#include <span>
#include <vector>

namespace race
{
class Mean
{
public:
    void Add(double value)
    {
        Sum += value;
        ++Count;
    }
    void Add(const std::optional<double>& value)
    {
        if (value)
            Add(*value);
    }
    std::optional<double> Value() const { return Count > 0 ? std::optional(Sum / Count) : std::nullopt; }

private:
    double Sum = 0;
    int Count = 0;
};

struct CarSummary
{
    bool IsHuman = false;
    Mean Won, Finished;            // shares of the races
    Mean Place, Grid, Finish, Gap; // Finish and Gap in seconds
    Mean FlyingLap;                // of the medians
    Mean Damage, PeakDamage;
    Mean Ruined, EverRuined; // shares
    Mean Stops, Stopped, PassesMade, PassesSuffered;
};

struct Summary
{
    std::size_t Races = 0;
    Mean CutOff, NoneRuined, NoneEverRuined; // shares of the races
    Mean Winning, Spread;                    // seconds: of the winner, from the first home to the last
    Mean Passes, FirstLapPasses;
    Mean CleanLap;                // of the human alone
    Mean CleanRatio;              // the human's race over as many of its clean laps
    std::vector<CarSummary> Cars; // by player
};

Summary Summarise(std::span<const RaceResult> races);
}
