// SPDX-License-Identifier: Zlib
// tools/race/Report.h: the results as a table for the eye, as CSV and as JSON.
#pragma once
#include "tools/race/Summary.h"
#include "tools/race/Variation.h"

#include <span>
#include <string>
#include <vector>

namespace race
{
// The races of one variation, by seed.
struct Batch
{
    Settings Changes;
    std::vector<RaceResult> Races;
};

// A paragraph a variation: a line a car, then the races as a whole.
std::string TableOf(std::span<const Batch> batches);
// A line a car and race; a column of its own for each path that is set or varied.
std::string CsvOf(std::span<const Batch> batches);
// Everything.
std::string JsonOf(std::span<const Batch> batches);
}
