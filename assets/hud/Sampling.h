// SPDX-License-Identifier: Zlib
// assets/hud/Sampling.h: how the display shrinks its letters: by taking every so-manieth row and column, nothing
// between them. A stroke three pixels wide comes out one or two wide, or off its middle, depending on where it stands.
#pragma once

namespace assets::hud
{
// The centre of a three pixel stroke near `centre`, at or above `least`, where the scales of the display agree best:
// one pixel wide in the small ones and taken at its middle. Pixels, along either axis.
double BestCentre(double centre, double least);
}
