// The simulation step, 40 times a second.
#include "shell/Form1.h"
#include "world/Tick.h"

namespace shell
{
namespace
{
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
            game.Scratch,
            game.Settings.EffQuality,
            game.Settings.WebcamOn != base::False,
            game.Run.Shake,
            game.Run.InBox};
}

void Form1::GameT_Tick()
{
    AdvanceTimers();
    TheGame.Timers.GameT.Tick();
    TheGame.Race.GameTime = TheGame.Timers.GameT.Elapsed;
    SetEngineSound(); // of the speed that the car has between two steps
    world::Simulation simulation = MakeSimulation();
    world::GameTick(simulation, *this);
    ShowRepair(TheGame.Scene, TheGame.Hud.Repair, TheGame.Run.InBox);
    PlaceCamera();
}
}
