// world/Dynamics.h: how cars move, are damaged, repaired and slowed. Speeds change per tick of 25 ms.
#pragma once
#include "base/Random.h"
#include "render/Camera.h"
#include "render/Scene.h"
#include "world/Race.h"

namespace world
{
// Steering against speed: 0 at rest, 1 at speed 1, then 2 / (s + 1); negative in reverse.
double SteerFactor(double speed);
// "R", "N", "1" … "6".
const char* Gear(float speed);
// Engine-sound step of a speed: climbs within each gear.
double EngineNote(float speed);
// Effective values after a change of damage: base / (damage + 1). Steering and friction are not scaled.
void ApplyDamage(Player& player);

// What one tick of the simulation reads and writes.
struct Simulation
{
    render::Scene& Scene;
    world::Race& Race;
    render::Camera& Camera; // CamSway is written, ViewPlayer read
    const HeldKeys& Keys;
    const RaceAssets& Assets;
    base::Random& Random;
    float EffQuality = 1;  // 0 no particles
    bool WebcamOn = false; // whether a hit shakes the webcam picture
    float& Shake;          // its amplitude
    bool& InBox;           // the followed car stands still inside a box
};

// Darkens two texels under the car's sides by strength (0.7 or 0.9).
void TyreMarks(Simulation& sim, const Player& player, double strength);
void ApplyZones(Simulation& sim, std::int16_t player);
// The user's car for one tick; nothing while the computer drives it.
void UserDrive(Simulation& sim);
// Half of Speed along the heading, then rolling friction.
void MoveCar(Simulation& sim, Player& player);
// Collisions of all object pairs for one tick, in the order of their indices; each pair sees what the ones before it
// moved. Only pairs that may touch are looked at.
void Collide(Simulation& sim);
// The same, straight from its definition: every pair. The judge of the fast one.
void CollidePlain(Simulation& sim);
// Smoke and fire of damaged cars, then one step of every particle.
void DamageSmoke(Simulation& sim);
}
