// SPDX-License-Identifier: Zlib
#include "render/Effects.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "render/Primitives.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace render
{
namespace
{
constexpr std::int16_t MostParticles = std::numeric_limits<std::int16_t>::max();

float Grown(float value, double factor)
{
    return static_cast<float>(value * factor);
}

// Left, right or not at all, by a fresh draw.
float Drifted(float value, base::Random& random, double distance)
{
    return static_cast<float>(value + base::Sign(random.Next() - 0.5) * distance);
}

float Risen(float value, double distance)
{
    return static_cast<float>(value + distance);
}

void Advance(Sprite3D& sprite, ParticleKind kind, base::Random& random)
{
    if (kind == Smoke)
    {
        sprite.X = Drifted(sprite.X, random, 0.06);
        sprite.Y = Risen(sprite.Y, 0.06);
        sprite.Z = Drifted(sprite.Z, random, 0.06);
        sprite.Scale = Grown(sprite.Scale, 1.06);
        sprite.Alpha = Grown(sprite.Alpha, 0.95);
    }
    else if (kind == Puff)
    {
        sprite.Y = Risen(sprite.Y, 0.06);
        sprite.Scale = Grown(sprite.Scale, 1.08);
        sprite.Alpha = Grown(sprite.Alpha, 0.95);
    }
    else if (kind == Fire)
    {
        sprite.X = Drifted(sprite.X, random, 0.03);
        sprite.Y = Risen(sprite.Y, 0.04);
        sprite.Z = Drifted(sprite.Z, random, 0.03);
        sprite.Scale = Grown(sprite.Scale, 0.92);
    }
}
}

std::int16_t AddParticle(Scene& scene, std::int16_t life, ParticleKind kind, Sprite3D sprite)
{
    std::vector<Particle>& list = scene.Particles;
    const auto free = std::find_if(list.begin(), list.end(), [](const Particle& p) { return p.Life < 0; });
    const auto index = static_cast<std::size_t>(free - list.begin());
    if (index > static_cast<std::size_t>(MostParticles))
        throw base::RuntimeError(base::ErrorOverflow);
    sprite.Visible = 1;
    const std::int16_t slot = scene.Sprites.Add(std::move(sprite));
    if (free == list.end())
        list.emplace_back();
    list[index] = {life, slot, kind};
    scene.ParticleCount = static_cast<std::int16_t>(std::min(scene.ParticleCount + 1, int{MostParticles}));
    return static_cast<std::int16_t>(index);
}

void RemoveParticle(Scene& scene, std::int32_t particle)
{
    if (particle < 0 || static_cast<std::size_t>(particle) >= scene.Particles.size())
        throw base::RuntimeError(base::ErrorIndex);
    Particle& removed = scene.Particles[static_cast<std::size_t>(particle)];
    if (removed.Life < 0)
        return;
    removed.Life = -1;
    --scene.ParticleCount;
    if (scene.Sprites.Has(removed.Sprite))
        KillSprite3D(scene, removed.Sprite);
}

void AdvanceParticles(Scene& scene, base::Random& random)
{
    for (std::size_t i = 0; i < scene.Particles.size(); ++i)
    {
        Particle& particle = scene.Particles[i];
        if (particle.Kind == Inert || particle.Life <= 0)
            continue;
        if (--particle.Life == 0)
            RemoveParticle(scene, static_cast<std::int32_t>(i));
        else if (scene.Sprites.Has(particle.Sprite))
            Advance(scene.Sprites.At(particle.Sprite), particle.Kind, random);
    }
}
}
