// SPDX-License-Identifier: Zlib
// assets/track/Scatter.h: the trees, bushes and bales of the plan, the same in every run.
#pragma once
#include "assets/track/Plan.h"

namespace assets::track
{
// Adds what grows where there is room: never on the road, in the water, on a path or in a building.
void ScatterTrees(Plan& plan);
// Gives trees that no car comes near their simpler model, and clears the bushes that nobody sees.
void ThinFarTrees(Plan& plan);
}
