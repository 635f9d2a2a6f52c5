// SPDX-License-Identifier: Zlib
#include "shell/panels/Panels.h"

namespace panels
{
Panels::Panels(Board& board, shell::Game& game, Verbs verbs)
    : Menu(board, game.Race, game.Run.Blink,
           {verbs.StartProcess, [this] { Options.Show(); }, [this] { Credits.Show(); }, verbs.Unload}),
      Options(board, {[this] { GameOptions.Show(); }, [this] { VideoOptions.Open(); }, [this] { AudioOptions.Open(); },
                      [this] { Keys.Open(); }}),
      GameOptions(board, game.Race),
      VideoOptions(board, game.Settings, game.Screen, game.Timers.RenderT,
                   {verbs.ApplyResolution, verbs.ApplyFullScreen, [this] { Webcam.Open(); }}),
      AudioOptions(board, game.Audio, verbs.SetMusic),
      Webcam(board, game.Webcam, game.Timers.CaptureT, game.Pictures.Inside, verbs.Webcam), Credits(board),
      Keys(board, game.Bindings)
{
}

void Panels::Cover(platform::Size client)
{
    for (Panel* panel :
         std::initializer_list<Panel*>{&Options, &GameOptions, &VideoOptions, &AudioOptions, &Webcam, &Credits, &Keys})
        panel->Cover(client);
}

void Panels::Place(platform::Size client)
{
    Cover(client);
    for (Panel* panel : std::initializer_list<Panel*>{&Menu, &Options, &GameOptions, &VideoOptions, &AudioOptions,
                                                      &Webcam, &Credits, &Keys})
        panel->Place(client);
}

void Panels::TakeDefaults()
{
    GameOptions.cGameOptOK_Click();
    VideoOptions.cVidOptOK_Click();
    AudioOptions.cAudOptOK_Click();
    Keys.ReadKeyBindings();
}
}
