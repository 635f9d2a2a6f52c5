// SPDX-License-Identifier: Zlib
// shell/panels/Panels.h: the menu and all panels of the window, made in the order in which they are painted, and what
// opens what.
#pragma once
#include "shell/Game.h"
#include "shell/panels/AudioOptions.h"
#include "shell/panels/Credits.h"
#include "shell/panels/GameOptions.h"
#include "shell/panels/Keys.h"
#include "shell/panels/Menu.h"
#include "shell/panels/Options.h"
#include "shell/panels/VideoOptions.h"
#include "shell/panels/Webcam.h"

namespace panels
{
// What the panels ask of the program around them.
struct Verbs
{
    std::function<void()> StartProcess; // the race begins or goes on
    std::function<void()> Unload;       // the program ends
    std::function<void(bool on)> SetMusic;
    std::function<void(std::int32_t width, std::int32_t height)> ApplyResolution;
    std::function<void(bool on)> ApplyFullScreen;
    panels::Webcam::Verbs Webcam;
};

struct Panels
{
    panels::Menu Menu;
    panels::Options Options;
    panels::GameOptions GameOptions;
    panels::VideoOptions VideoOptions;
    panels::AudioOptions AudioOptions;
    panels::Webcam Webcam;
    panels::Credits Credits;
    panels::Keys Keys;

    // board and game outlive the panels.
    Panels(Board& board, shell::Game& game, Verbs verbs);

    // Every frame over the whole client area of that size.
    void Cover(platform::Size client);
    // Everything in its place for a client area of that size.
    void Place(platform::Size client);
    // What the panels hold as designed takes effect, as their OK would have it.
    void TakeDefaults();
};
}
