// SPDX-License-Identifier: Zlib
#include "render/Effects.h"

#include "render/Primitives.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

using namespace render;
using render::Scene;
using render::Sprite3D;

namespace
{
struct Effects : testing::Test
{
    render::Scene Scene;
    base::Random Random;
    render::PicReference Picture = std::make_shared<const render::Picture>(support::Blank(2, 2));

    std::int16_t Add(int life, render::ParticleKind kind, float alpha = 1.0f)
    {
        return AddParticle(Scene, static_cast<std::int16_t>(life), kind,
                           {.X = 1, .Y = 2, .Z = 3, .Scale = 0.5f, .Alpha = alpha, .Pixels = Picture});
    }
    void Advance(int ticks)
    {
        for (int i = 0; i < ticks; ++i)
            AdvanceParticles(Scene, Random);
    }
    const Sprite3D& SpriteOf(int particle)
    {
        return Scene.Sprites.At(Scene.Particles[static_cast<std::size_t>(particle)].Sprite);
    }
};
}

TEST_F(Effects, AParticleIsAVisibleSprite)
{
    EXPECT_EQ(Add(20, Smoke, 0.25f), 0);
    EXPECT_EQ(Scene.ParticleCount, 1);
    EXPECT_EQ(Scene.Particles[0].Life, 20);
    EXPECT_EQ(Scene.Particles[0].Kind, 1);
    EXPECT_EQ(SpriteOf(0).Visible, 1);
    EXPECT_EQ(SpriteOf(0).X, 1.0f);
    EXPECT_EQ(SpriteOf(0).Scale, 0.5f);
    EXPECT_EQ(SpriteOf(0).Alpha, 0.25f);
    EXPECT_EQ(SpriteOf(0).Pixels, Picture);
}

TEST_F(Effects, TheFirstDeadParticleIsUsedAgain)
{
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Add(9, Smoke), i);
    RemoveParticle(Scene, 2);
    RemoveParticle(Scene, 1);
    EXPECT_EQ(Scene.ParticleCount, 2);
    EXPECT_EQ(Scene.Particles[1].Life, -1);
    EXPECT_EQ(Scene.Sprites.Count, 2);
    RemoveParticle(Scene, 1); // already gone
    EXPECT_EQ(Scene.ParticleCount, 2);
    EXPECT_EQ(Add(9, Smoke), 1);
    EXPECT_EQ(Add(9, Smoke), 2);
    EXPECT_EQ(Add(9, Smoke), 4);
    EXPECT_THROW(RemoveParticle(Scene, -1), base::RuntimeError);
    EXPECT_THROW(RemoveParticle(Scene, 5), base::RuntimeError);
}

TEST_F(Effects, ItVanishesWhenItsLifeReachesZero)
{
    Add(3, Smoke);
    Advance(2);
    EXPECT_EQ(Scene.Particles[0].Life, 1);
    EXPECT_EQ(Scene.ParticleCount, 1);
    Advance(1);
    EXPECT_EQ(Scene.Particles[0].Life, -1);
    EXPECT_EQ(Scene.ParticleCount, 0);
    EXPECT_EQ(Scene.Sprites.Count, 0);
    Advance(5);
    EXPECT_EQ(Scene.ParticleCount, 0);
}

// Draws 0.9, 0.1: x goes right, z goes left.
TEST_F(Effects, SmokeDriftsRisesGrowsAndFades)
{
    Random.Script = {0.9, 0.1};
    Add(9, Smoke);
    Advance(1);
    EXPECT_FLOAT_EQ(SpriteOf(0).X, 1.06f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Y, 2.06f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Z, 2.94f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Scale, 0.53f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Alpha, 0.95f);
}

TEST_F(Effects, ADrawOfExactlyAHalfStays)
{
    Random.Script = {0.5};
    Add(9, Smoke);
    Advance(1);
    EXPECT_EQ(SpriteOf(0).X, 1.0f);
    EXPECT_EQ(SpriteOf(0).Z, 3.0f);
}

TEST_F(Effects, SmokeOfFullOpacityHas0358LeftAfter20Ticks)
{
    Add(99, Smoke);
    Advance(20);
    EXPECT_NEAR(SpriteOf(0).Alpha, 0.358, 0.0006);
}

TEST_F(Effects, APuffRisesGrowsAndFadesWithoutDrifting)
{
    Random.Script = {0.9};
    Add(9, Puff);
    Advance(1);
    EXPECT_EQ(SpriteOf(0).X, 1.0f);
    EXPECT_EQ(SpriteOf(0).Z, 3.0f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Y, 2.06f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Scale, 0.54f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Alpha, 0.95f);
    EXPECT_EQ(Random.ScriptNext, 0u); // it draws nothing
}

TEST_F(Effects, FireShrinksAndKeepsItsOpacity)
{
    Random.Script = {0.1, 0.9};
    Add(9, Fire, 0.7f);
    Advance(1);
    EXPECT_FLOAT_EQ(SpriteOf(0).X, 0.97f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Y, 2.04f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Z, 3.03f);
    EXPECT_FLOAT_EQ(SpriteOf(0).Scale, 0.46f);
    EXPECT_EQ(SpriteOf(0).Alpha, 0.7f);
}

TEST_F(Effects, OtherKindsOnlyAgeAndInertOnesNotEvenThat)
{
    Add(9, static_cast<ParticleKind>(7));
    Add(9, Inert);
    Advance(3);
    EXPECT_EQ(Scene.Particles[0].Life, 6);
    EXPECT_EQ(SpriteOf(0).Y, 2.0f);
    EXPECT_EQ(Scene.Particles[1].Life, 9);
}

TEST_F(Effects, ASpriteThatIsNotThereDoesNoHarm)
{
    Add(2, Smoke);
    Scene.Particles[0].Sprite = 77;
    Advance(2);
    EXPECT_EQ(Scene.ParticleCount, 0);
}
