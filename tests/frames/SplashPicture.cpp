// SPDX-License-Identifier: Zlib
// splash-picture --root DIR FILE: what the window shows while the program starts, as a bitmap file.
#include "base/BitmapFile.h"
#include "platform/headless/Machine.h"
#include "shell/Application.h"

#include <fstream>
#include <iostream>
#include <string_view>

int main(int count, char** words)
{
    if (count != 4 || std::string_view(words[1]) != "--root")
    {
        std::cerr << "usage: splash-picture --root DIR FILE\n";
        return 2;
    }
    headless::Machine machine{base::Files(words[2])};
    shell::Application application(machine);
    application.Start();
    machine.PumpEvents();
    const std::vector<headless::Window*>& windows = machine.OpenWindows(); // the splash, then the game behind it
    if (windows.empty() || !windows.front()->Visible)
        return 1;
    const base::Bitmap image = windows.front()->Screenshot();
    const std::string file = base::BitmapFile(image.Width, image.Height, image.Bytes);
    std::ofstream(words[3], std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    return 0;
}
