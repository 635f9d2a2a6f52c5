// SPDX-License-Identifier: Zlib
// tools/preview/Sheet.h: many pictures in one: tiles in rows and columns, each with a line below it that says what it
// is.
#pragma once
#include "tools/preview/Canvas.h"

#include <cstdint>
#include <span>
#include <string>

namespace preview
{
struct Tile
{
    base::Bitmap Picture; // of all tiles the same size
    std::string Caption;
};

// Row by row from the top. At least one tile and one column. Failure where the sheet would be larger than any picture.
Canvas MakeSheet(std::span<const Tile> tiles, std::int32_t columns);
}
