// SPDX-License-Identifier: Zlib
#include "tools/race/Batches.h"

#include "tools/race/Run.h"
#include "tools/race/SideBySide.h"

namespace race
{
std::vector<Batch> RunBatches(const Arguments& arguments, const std::string& root, int jobs, Trace* trace)
{
    const auto seeds = static_cast<std::size_t>(arguments.LastSeed - arguments.FirstSeed) + 1;
    std::vector<Batch> batches;
    for (Settings& changes : arguments.Variations())
        batches.push_back({std::move(changes), std::vector<RaceResult>(seeds)});
    SideBySide(batches.size() * seeds, jobs,
               [&](std::size_t number)
               {
                   Batch& batch = batches[number / seeds];
                   const std::size_t seed = number % seeds;
                   const Plan plan{{root, arguments.FirstSeed + seed, arguments.Laps, batch.Changes},
                                   arguments.Human,
                                   arguments.Repairs,
                                   arguments.Grid,
                                   arguments.LimitSeconds()};
                   batch.Races[seed] = Run(plan, number == 0 ? trace : nullptr);
               });
    return batches;
}
}
