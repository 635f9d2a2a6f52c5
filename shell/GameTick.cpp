// The simulation step, 40 times a second.
#include "base/Math.h"
#include "shell/Form1.h"

#include <cmath>

namespace shell
{
namespace
{
const world::Player* FindPlayer(const world::Race& race, std::int32_t index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= race.Players.size())
        return nullptr;
    return &race.Players[static_cast<std::size_t>(index)];
}

// The trophy turns before the camera.
void FloatTrophy(render::Scene& scene, const render::Camera& camera, std::int16_t cup)
{
    if (!scene.Objects.Has(cup))
        return;
    render::Obj& trophy = scene.Objects.At(cup);
    trophy.AngleA = static_cast<float>(trophy.AngleA + 0.05);
    trophy.AngleB = static_cast<float>(camera.CamPitch / 2.0);
    trophy.X = static_cast<float>(camera.CamX - 5 * base::Sin(camera.CamYaw + 0.4));
    trophy.Y = static_cast<float>(camera.CamY + 5 * base::Sin(camera.CamPitch + 0.3));
    trophy.Z = static_cast<float>(camera.CamZ + 5 * base::Cos(camera.CamYaw + 0.4));
}

// The jitter of the webcam picture fades, but a fast car keeps shaking.
void DecayShake(float& shake, const world::Player* user)
{
    shake = static_cast<float>(shake * 0.96);
    if (shake < 0.6 && user != nullptr && std::abs(user->Speed) >= 1)
        shake = 0.6f;
}

void ShowRepair(render::Scene& scene, std::int16_t indicator, bool shown)
{
    if (scene.Pics.Has(indicator))
        scene.Pics.At(indicator).Visible = shown ? 1 : 0;
}
}

world::Simulation Form1::MakeSimulation()
{
    Game& game = TheGame;
    return {game.Scene,
            game.Race,
            game.Camera,
            game.Keys,
            game.Assets,
            game.Random,
            game.Settings.EffQuality,
            game.Settings.WebcamOn != base::False,
            game.Run.Shake,
            game.Run.InBox};
}

void Form1::GameT_Tick()
{
    constexpr std::int32_t Released = 3000; // milliseconds: before that no car moves
    AdvanceTimers();
    TheGame.Timers.GameT.Tick();

    world::Simulation simulation = MakeSimulation();
    world::Race& race = TheGame.Race;
    race.GameTime = TheGame.Timers.GameT.Elapsed;
    world::ComputePlaces(TheGame.Scene, race);
    SetEngineSound();
    if (race.RaceOver != base::False)
        FloatTrophy(TheGame.Scene, TheGame.Camera, TheGame.Assets.CupObj);
    world::RaceStep(simulation, *this);
    ShowRepair(TheGame.Scene, TheGame.Hud.Repair, TheGame.Run.InBox);
    world::Collide(simulation);
    world::DamageSmoke(simulation);
    if (race.GameTime >= Released)
    {
        world::ComputerDrive(simulation);
        world::UserDrive(simulation);
    }
    if (TheGame.Settings.WebcamOn != base::False)
        DecayShake(TheGame.Run.Shake, FindPlayer(race, race.UserPlayer));
    PlaceCamera();
}
}
