// SPDX-License-Identifier: Zlib
// shell/forms/Scale.h: the scaling of pictures for a form.
#pragma once
#include "render/PicArray.h"
#include "shell/forms/Paint.h"

#include <cstdint>

namespace forms
{
// The picture in that many pixels: area average where it shrinks, linear where it grows. seeThrough: exactly black
// pixels are holes, and have no part in the colours around them. Empty where either size is below 1 or the picture has
// no pixels. Costs the pixels of both pictures together: once for each size of the window, never for each painting.
Image Scale(const render::Picture& picture, std::int32_t width, std::int32_t height, bool seeThrough);
}
