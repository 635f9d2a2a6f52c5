// SPDX-License-Identifier: Zlib
// tools/preview/Png.h: PNG files.
#pragma once
#include "base/Pixels.h"

#include <filesystem>

namespace preview
{
// Writes the picture, row 0 at the bottom, under a temporary name beside the file and then in its place: the file is
// there as a whole or as it was. Failure where that cannot be.
void WritePng(const std::filesystem::path& file, const base::ConstSurface& picture);
}
