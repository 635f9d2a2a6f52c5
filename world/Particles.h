// SPDX-License-Identifier: Zlib
// world/Particles.h: what the simulation sends up: smoke, fire, water.
#pragma once
#include "render/Effects.h"
#include "world/Simulation.h"

namespace world
{
struct Emission
{
    const render::PicReference& Picture;
    render::ParticleKind Kind;
    double Life;         // ticks, rounded, at most 32767
    double X, Y, Z;      // world units
    double Scale, Alpha; // as in Sprite3D
};

// No particle without a picture, nor where the scene already holds a great many sprites.
void Spawn(Simulation& sim, const Emission& emission);
// Smoke and fire of damaged cars, unless EffQuality is 0, then one step of every particle.
void DamageSmoke(Simulation& sim);
}
