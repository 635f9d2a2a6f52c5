#include "program/RunDesktop.h"

#include "base/RuntimeError.h"
#include "platform/FindData.h"
#include "platform/sdl/SdlPlatform.h"
#include "shell/Application.h"

#include <cstdio>

namespace program
{
int RunDesktop(const char* path, const platform::WebcamSource& webcam)
{
    try
    {
        platform::SdlPlatform platform(platform::FindData(platform::ExecutablePath(path)), webcam);
        shell::Application application(platform);
        application.Start();
        platform.Run(application);
        return 0;
    }
    catch (const base::RuntimeError& error)
    {
        std::fprintf(stderr, "velkar: %s\n", error.Description.c_str());
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "velkar: %s\n", error.what());
    }
    return 1;
}
}
