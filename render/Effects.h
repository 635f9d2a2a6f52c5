// render/Effects.h: particles: smoke, rising puffs and fire, each a world sprite with a life of its own.
#pragma once
#include "base/Random.h"
#include "render/Scene.h"

namespace render
{
enum Kind : std::int32_t
{
    Inert = 0,
    Smoke = 1,
    Puff = 2,
    Fire = 3
};

// Index of the particle: the first with a negative life, else a new one. life: ticks.
std::int16_t AddParticle(Scene& scene, std::int16_t life, std::int32_t kind, const PicReference& picture, float x,
                         float y, float z, float scale, float alpha);
void RemoveParticle(Scene& scene, std::int32_t particle);
// One tick for every particle: ages, drifts, grows or shrinks, and vanishes.
void AdvanceParticles(Scene& scene, base::Random& random);
}
