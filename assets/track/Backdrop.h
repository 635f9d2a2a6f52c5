// SPDX-License-Identifier: Zlib
// assets/track/Backdrop.h: what stands around the ground.
#pragma once
#include "assets/track/Models.h"
#include "assets/track/Plan.h"

namespace assets::track
{
// The model "backdrop", to be placed at the middle of the world: a flat ring of country that goes on where the ground
// ends, and the hills around it. It is all picture, without spheres; no car gets there.
void WriteBackdrop(const ModelFolder& folder, const Plan& plan);
}
