// SPDX-License-Identifier: Zlib
// tools/preview/Turntable.h: a model from all sides.
#pragma once
#include "tools/preview/Arguments.h"
#include "tools/preview/Canvas.h"

namespace preview
{
// Everything that the model file makes, where it makes it, on a neutral ground with a line every unit (5 or 25 units
// under large models): a row of tiles from low and one from high up for every four sides, the front first. The model is
// looked for in the working folder and below the root; the paths in it are read as the game reads them. Failure where
// it cannot be read or shows nothing.
Canvas DrawTurntable(const Arguments& arguments);
}
