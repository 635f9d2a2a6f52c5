// SPDX-License-Identifier: Zlib
// tools/preview/LoadedGame.h: the game of a folder, loaded without a window and looked at.
#pragma once
#include "platform/headless/Machine.h"
#include "platform/Platform.h"
#include "shell/Application.h"

#include <filesystem>

namespace preview
{
class LoadedGame
{
public:
    // Failure with everything that the game complained of.
    explicit LoadedGame(const std::filesystem::path& root);

    shell::Form1& Form() { return *Application.Main(); }
    shell::Game& State() { return Form().State(); }

    // Begins the race at that resolution, the countdown over.
    void StartRace(platform::Size resolution);
    // One step of the simulation, 25 ms.
    void Step();
    // The frame as the player would see it now in that view, once the camera has come to rest. The steps that follow
    // find the camera where it was.
    base::ConstSurface Frame(std::int16_t view);

private:
    void RefuseMessages();

    headless::Machine Machine; // outlives the windows of the application
    shell::Application Application;
};
}
