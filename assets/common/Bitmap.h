// SPDX-License-Identifier: Zlib
// assets/common/Bitmap.h: how a painted picture becomes one of the game's bitmap files: 24 bits a pixel, uncompressed,
// bottom row first.
#pragma once
#include "assets/common/Canvas.h"

#include <string>

namespace assets
{
// Black (0, 0, 0) is see-through in the game, so painted pixels never become it.
enum class Black
{
    Avoid, // every pixel is painted: the darkest byte triple written is (1, 1, 1)
    Key,   // coverage below one half becomes black, the rest avoids it
    Keep   // bytes exactly as they come
};
// Makes the folders on the way. `dither` spreads the rounding error of smooth gradients. Throws std::runtime_error with
// the path when the file cannot be written.
void WriteBmp(const std::string& path, const Canvas& canvas, Black black = Black::Avoid, bool dither = false);
// Grey bytes 0 to 255 (three equal channels).
void WriteBmp(const std::string& path, const Mask& mask);
}
