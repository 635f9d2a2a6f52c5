// SPDX-License-Identifier: Zlib
// assets/track/Guards.h: ground spheres without a picture: what cars run into. A car that hits one is turned half way
// toward the guard's own heading, so those along the road look along it, and those at the rim look inward.
#pragma once
#include "assets/track/Plan.h"

namespace assets::track
{
// Rows of hedges and walls inside the rim of the ground picture.
void PutBorder(Plan& plan);
// The ring behind them and in the lake, then what stands near the road. Last, when everything has its place.
void PutGuards(Plan& plan);
}
