// SPDX-License-Identifier: Zlib
// shell/RaceRun.h: the run of a race: started, suspended, paused and resumed; the simulation's tick and the frame's,
// and the display's part in both. Runs on the window's thread.
#pragma once
#include "base/PhaseClock.h"
#include "platform/Platform.h"
#include "shell/FormView.h"
#include "shell/Game.h"
#include "shell/Sound.h"
#include "shell/WebcamFeed.h"
#include "world/RaceLogic.h"

#include <string>

namespace shell
{
// Whether the race is on the screen: frames are drawn, and keys drive. False in the menu, before and amid a race.
inline bool RaceShows(const Game& game)
{
    return game.Timers.RenderT.Enabled != base::False;
}

class RaceRun final : private world::FinishSink
{
public:
    // All outlive this.
    RaceRun(Game& game, platform::Platform& platform, platform::Window& window, Sound& sound, WebcamFeed& feed,
            FormView& view)
        : TheGame(game), Platform(platform), Window(window), TheSound(sound), Feed(feed), View(view)
    {
    }

    void StartProcess(); // begins, or goes on where it was suspended; nothing where it shows already
    void StopProcess();  // suspends; nothing where it does not show
    void TogglePause();  // the simulation alone stands still

    // The ticks themselves, whether due or not; the timers count them. clock: is given the time of the step's phases
    // and of "camera".
    void GameT_Tick(base::PhaseClock* clock = nullptr);
    void RenderT_Tick();

    // One frame into the frame array, without showing it.
    void Draw(base::PhaseClock* clock = nullptr);
    // Draws a frame and shows it: as it is while nothing covers it, else with the controls over it.
    // clock: is given the time of the frame's phases and of "present".
    void ShowFrame(base::PhaseClock* clock = nullptr);
    // The camera placement of the present view with its arrow step.
    void PlaceCamera();
    // Takes a resolution, moves the display and shows a race that has begun anew. Nothing where it is in force already.
    void ApplyResolution(std::int32_t width, std::int32_t height);

private:
    void Start();
    void Stop();
    void MeasureFrameRate(std::uint32_t now);
    void Finished(const std::string& message) override; // of the user's car
    world::Simulation MakeSimulation();

    Game& TheGame;
    platform::Platform& Platform;
    platform::Window& Window;
    Sound& TheSound;
    WebcamFeed& Feed;
    FormView& View;
};
}
