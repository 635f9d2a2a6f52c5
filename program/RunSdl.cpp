// SPDX-License-Identifier: Zlib
#include "program/RunSdl.h"

#include "platform/FindData.h"
#include "platform/sdl/SdlPlatform.h"
#include "program/RunDesktop.h"

#include <cstdio>

namespace program
{
int RunSdl(const char* path, const sdl::WebcamSource& webcam)
{
    return RunDesktop([&] { return sdl::SdlPlatform(platform::FindData(platform::ExecutablePath(path)), webcam); },
                      [](const std::string& text) { std::fprintf(stderr, "velkar: %s\n", text.c_str()); });
}
}
