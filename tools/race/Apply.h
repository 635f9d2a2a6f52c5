// SPDX-License-Identifier: Zlib
// tools/race/Apply.h: carries settings out on a loaded game.
#pragma once
#include "tools/drive/Session.h"
#include "tools/race/Variation.h"

namespace race
{
// Changes every value that the path means. Beside the driver's paths there is cars[i], the object that players[i]
// drives. A base value of a player (MaxSpeed, Brake …) takes its effective one along, as if the player's file had it.
// Throws drive::Refusal, naming the setting, where the path leads nowhere or the value does not fit.
void Apply(drive::Session& session, const Setting& setting);
}
