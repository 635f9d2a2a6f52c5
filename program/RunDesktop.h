// SPDX-License-Identifier: Zlib
// program/RunDesktop.h: one run of the game on the desktop, whichever back end it has.
#pragma once
#include "base/RuntimeError.h"
#include "shell/Application.h"

#include <exception>
#include <string>

namespace program
{
// make(): the back end. report(text): shows what keeps the program from starting or going on. Gives the exit status.
template <class Make, class Report> int RunDesktop(Make&& make, Report&& report)
{
    try
    {
        auto platform = make();
        shell::Application application(platform);
        application.Start();
        platform.Run(application);
        return 0;
    }
    catch (const base::RuntimeError& error)
    {
        report(error.Description);
    }
    catch (const std::exception& error)
    {
        report(std::string(error.what()));
    }
    return 1;
}
}
