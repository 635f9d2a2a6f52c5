// The desktop program.
#include "base/RuntimeError.h"
#include "platform/FindData.h"
#include "platform/sdl/SdlPlatform.h"
#include "shell/Application.h"

#include <cstdio>

int main(int, char** words)
{
    try
    {
        platform::SdlPlatform platform(platform::FindData(platform::ExecutablePath(words[0])));
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
