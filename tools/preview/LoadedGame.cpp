// SPDX-License-Identifier: Zlib
#include "tools/preview/LoadedGame.h"

#include "tools/preview/Failure.h"
#include "tools/preview/Limits.h"

#include <string>

namespace preview
{
namespace
{
constexpr std::uint32_t SplashTime = 1000;     // milliseconds
constexpr std::uint32_t StepTime = 25;         // milliseconds
constexpr std::int32_t CountdownOver = 10'000; // milliseconds of the race: cars are released, notices gone
constexpr int Placements = 120;                // until the slowest view has glided to where it belongs
}

LoadedGame::LoadedGame(const std::filesystem::path& root) : Machine(base::Files(root)), Application(Machine)
{
    Application.Start();
    Machine.PumpEvents();
    RefuseMessages();
    State().Screen.GroundLimit = NoGroundLimit;
    Machine.Clock += SplashTime;
    Application.RunTimers();
}

void LoadedGame::RefuseMessages()
{
    std::string complaints;
    for (const headless::Box& box : Machine.Boxes)
        complaints += "\n  " + box.Title + ": " + box.Text;
    if (!complaints.empty())
        throw Failure{"the game does not load:" + complaints};
}

void LoadedGame::StartRace(platform::Size resolution)
{
    Form().Race().ApplyResolution(resolution.Width, resolution.Height);
    Form().Click("cSTART");
    State().Timers.GameT.Elapsed = State().Race.GameTime = CountdownOver;
    // On a clock that stands still between the frames their rate would say nothing.
    State().Scene.Labels.At(State().Hud.FrameRate).Visible = 0;
    Step(); // every car has a place then
    RefuseMessages();
}

void LoadedGame::Step()
{
    Machine.Clock += StepTime;
    Form().Race().GameT_Tick();
}

base::ConstSurface LoadedGame::Frame(std::int16_t view)
{
    render::Camera& camera = State().Camera;
    const render::Camera before = camera;
    camera.View = view;
    // The views that turn with the time begin at the car's heading, so that every place is seen alike.
    const world::Player* player = world::FindPlayer(State().Race, camera.ViewPlayer);
    if (player != nullptr && State().Scene.Objects.Has(player->Obj))
        camera.CamYaw = State().Scene.Objects.At(player->Obj).AngleA;
    for (int i = 0; i < Placements; ++i)
        Form().Race().PlaceCamera();
    Form().Race().RenderT_Tick();
    camera = before;
    return render::FrameSurface(State().Screen);
}
}
