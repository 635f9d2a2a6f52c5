// SPDX-License-Identifier: Zlib
// assets/common/Noise.h: gradient noise that can tile. Coordinates are in lattice cells.
#pragma once
#include <cstdint>

namespace assets
{
// Smooth noise, about -1 .. 1. With periods above 0 (in cells) the pattern repeats without a seam.
double Noise(double x, double y, std::uint32_t seed, int periodX = 0, int periodY = 0);

// `octaves` layers of Noise, each twice as fine and `gain` times as strong; about -1 .. 1.
double Fbm(double x, double y, std::uint32_t seed, int octaves, int periodX = 0, int periodY = 0, double gain = 0.5);

// Distance to the nearest and the second nearest of one random point a cell, in cells.
struct CellDistance
{
    double First, Second;
    std::uint32_t Id; // of the nearest point's cell
};
CellDistance Cells(double x, double y, std::uint32_t seed, int periodX = 0, int periodY = 0);
}
