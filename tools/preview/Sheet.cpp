// SPDX-License-Identifier: Zlib
#include "tools/preview/Sheet.h"

#include "tools/preview/Limits.h"

namespace preview
{
namespace
{
constexpr std::int32_t Gap = 6, CaptionHeight = 18; // pixels
constexpr double CaptionSize = 13;
}

Canvas MakeSheet(std::span<const Tile> tiles, std::int32_t columns)
{
    const std::int32_t width = tiles.front().Picture.Width, height = tiles.front().Picture.Height;
    const auto count = static_cast<std::int32_t>(tiles.size());
    const std::int32_t rows = (count + columns - 1) / columns;
    const double wide = Gap + static_cast<double>(width + Gap) * columns;
    const double high = Gap + static_cast<double>(height + CaptionHeight) * rows;
    RequireSize(wide, high);
    Canvas sheet(Gap + (width + Gap) * columns, Gap + (height + CaptionHeight) * rows, Paper);
    for (std::int32_t i = 0; i < count; ++i)
    {
        const Tile& tile = tiles[static_cast<std::size_t>(i)];
        const std::int32_t left = Gap + i % columns * (width + Gap);
        const std::int32_t top = Gap + i / columns * (height + CaptionHeight);
        sheet.Paste(tile.Picture.View(), left, top);
        sheet.Write({static_cast<double>(left), static_cast<double>(top + height)}, CaptionSize, Lettering,
                    tile.Caption, left + width);
    }
    return sheet;
}
}
