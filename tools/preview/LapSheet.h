// SPDX-License-Identifier: Zlib
// tools/preview/LapSheet.h: the game along a lap, in all its views.
#pragma once
#include "tools/preview/Arguments.h"
#include "tools/preview/Canvas.h"
#include "tools/preview/LoadedGame.h"

namespace preview
{
// A row a place and a column a view; the places of a single view one after the other. The user's car stands on the
// checkpoints' line, or is driven there by the computer. The race is begun for it.
Canvas DrawLap(LoadedGame& game, const Arguments& arguments);
}
