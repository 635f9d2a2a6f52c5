// SPDX-License-Identifier: Zlib
// tools/race/Batches.h: the races of a command line, side by side.
#pragma once
#include "tools/race/Arguments.h"
#include "tools/race/Report.h"
#include "tools/race/Trace.h"

#include <string>
#include <vector>

namespace race
{
// One batch a variation, in their order; the same whatever the number of jobs. trace: of the first race; may be null.
// root: holds data/. Throws drive::Refusal where a race cannot start.
std::vector<Batch> RunBatches(const Arguments& arguments, const std::string& root, int jobs, Trace* trace);
}
