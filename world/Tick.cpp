// SPDX-License-Identifier: Zlib
#include "world/Tick.h"

#include "base/Math.h"
#include "world/Cars.h"
#include "world/Collision.h"
#include "world/ComputerDrive.h"
#include "world/Driving.h"
#include "world/Particles.h"

#include <cmath>

namespace world
{
namespace
{
// The trophy turns before the camera.
void FloatTrophy(Simulation& sim)
{
    render::Obj* trophy = ObjectAt(sim.Scene, sim.Assets.CupObj);
    if (trophy == nullptr)
        return;
    const render::Camera& camera = sim.Camera;
    trophy->AngleA = Single(trophy->AngleA + 0.05);
    trophy->AngleB = Single(camera.CamPitch / 2.0);
    trophy->X = Single(camera.CamX - 5 * base::Sin(camera.CamYaw + 0.4));
    trophy->Y = Single(camera.CamY + 5 * base::Sin(camera.CamPitch + 0.3));
    trophy->Z = Single(camera.CamZ + 5 * base::Cos(camera.CamYaw + 0.4));
}

// The jitter of the webcam picture fades, but a fast car keeps shaking.
void DecayShake(float& shake, const Player* user)
{
    shake = Single(shake * 0.96);
    if (shake < 0.6 && user != nullptr && std::abs(user->Speed) >= 1)
        shake = 0.6f;
}

void Step(Simulation& sim, FinishSink& finish, void (*collide)(Simulation&))
{
    base::EnterPhase(sim.Clock, "places");
    ComputePlaces(sim);
    if (sim.Race.RaceOver != base::False)
        FloatTrophy(sim);
    base::EnterPhase(sim.Clock, "race");
    RaceStep(sim, finish);
    base::EnterPhase(sim.Clock, "collisions");
    collide(sim);
    base::EnterPhase(sim.Clock, "particles");
    DamageSmoke(sim);
    base::EnterPhase(sim.Clock, "drivers");
    if (sim.Race.GameTime >= ReleaseTime)
    {
        ComputerDrive(sim);
        UserDrive(sim);
    }
    if (sim.WebcamOn)
        DecayShake(sim.Shake, FindPlayer(sim.Race, sim.Race.UserPlayer));
    base::LeavePhase(sim.Clock);
}
}

void GameTick(Simulation& sim, FinishSink& finish)
{
    Step(sim, finish, Collide);
}

void GameTickPlain(Simulation& sim, FinishSink& finish)
{
    Step(sim, finish, CollidePlain);
}
}
