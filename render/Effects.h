// SPDX-License-Identifier: Zlib
// render/Effects.h: particles: smoke, rising puffs and fire, each a world sprite with a life of its own.
#pragma once
#include "base/Random.h"
#include "render/Scene.h"

namespace render
{
// Makes the sprite, visible, and the particle that moves it for `life` ticks. Index of the particle: the first with a
// negative life, else a new one. RuntimeError 6 beyond the 16-bit index of either list.
std::int16_t AddParticle(Scene& scene, std::int16_t life, ParticleKind kind, Sprite3D sprite);
// Frees the particle and its sprite; a free one stays as it is. RuntimeError 9 where there is no such particle.
void RemoveParticle(Scene& scene, std::int32_t particle);
// One tick for every particle: ages, drifts, grows or shrinks, and vanishes. Smoke and fire draw twice each.
void AdvanceParticles(Scene& scene, base::Random& random);
}
