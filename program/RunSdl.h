// SPDX-License-Identifier: Zlib
// program/RunSdl.h: one run of the game on the SDL back end.
#pragma once
#include "platform/sdl/FfmpegWebcam.h"

namespace program
{
// path: what the program was started as. The exit status; what keeps it from starting goes to standard error.
int RunSdl(const char* path, const sdl::WebcamSource& webcam);
}
