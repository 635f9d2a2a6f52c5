// SPDX-License-Identifier: Zlib
// tools/preview/Stage.h: where a model is shown: a plain ground with lines, a plain sky.
#pragma once
#include "render/Scene.h"

namespace preview
{
// The middle of the ground, world units on both axes, for lines every `step` units.
double StageMiddle(double step);
// Gives the scene ground and sky. step: world units.
void BuildStage(render::Scene& scene, double step);
}
