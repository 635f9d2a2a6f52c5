// SPDX-License-Identifier: Zlib
// render/Bands.h: the bands of the ground pass. A frame's columns are split between them, so that several threads draw
// at once and none writes what another reads or writes.
#pragma once
#include <cstdint>
#include <vector>

namespace render
{
struct Band
{
    std::int32_t First = 0, Last = 0; // columns, or rows; both included; empty where Last < First
};

// `count` bands, at least one, that hold every column of a frame of that width once. With b = width / count in single
// precision, band i runs from round(b i) to round(b (i + 1) - 1). Where both are rounded from a half (even counts only)
// the last column is the one before the next band, so none is left out or twice.
std::vector<Band> MakeBands(std::int32_t width, std::int16_t count);

// Every band in two, the first half the wider one; of a band of one column, or of none, the second is empty.
std::vector<Band> Halved(const std::vector<Band>& bands);
}
