// world/Particles.h: what the simulation sends up: smoke, fire, water.
#pragma once
#include "render/Effects.h"
#include "world/Dynamics.h"

namespace world
{
struct Emission
{
    const render::PicReference& Picture;
    render::Kind Kind;
    double Life; // ticks, rounded, at most 32767
    double X, Y, Z;
    double Scale, Alpha;
};

// No particle without a picture, nor where the scene already holds a great many sprites.
void Spawn(Simulation& sim, const Emission& emission);
}
