// SPDX-License-Identifier: Zlib
#include "tools/drive/Checksum.h"

#include "render/Primitives.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace
{
// One of everything that the simulation reads or writes.
void Fill(shell::Game& game)
{
    render::Scene& scene = game.Scene;
    render::MakeObj(scene, {1, 2, 3, 0, 0}, 1, 1, 1, 10);
    render::EditObjMesh(scene, 0, 0, {2, 2}, 255, 0);
    render::AddSfereLink(scene, 0, 0, {0, 1, 1});
    render::MakeSprite3D(scene, {.Visible = 1, .X = 0, .Y = 0, .Z = 0, .Scale = 1, .Alpha = 1, .Pixels = nullptr});
    scene.Particles.resize(1);
    scene.Ground.Width = scene.Ground.Height = 3;
    scene.Ground.Sharp.Pixels.Allocate(3, 12);
    game.Race.Players.resize(2);
    game.Race.Map.Water.Items.resize(1);
}

std::uint64_t SumAfter(const std::function<void(shell::Game&)>& change)
{
    shell::Game game;
    Fill(game);
    change(game);
    return drive::Checksum(game);
}
}

TEST(Checksum, TheSameStateHasTheSameSum)
{
    EXPECT_EQ(SumAfter([](shell::Game&) {}), SumAfter([](shell::Game&) {}));
}

TEST(Checksum, WhateverTheSimulationTouchesCounts)
{
    using Game = shell::Game;
    const std::vector<std::function<void(Game&)>> changes = {
        [](Game& game) { game.Race.Players[1].Speed = 1; },
        [](Game& game) { game.Race.Players[1].NextSmoke = 1; },
        [](Game& game) { game.Race.GameTime = 25; },
        [](Game& game) { game.Race.RaceOver = -1; },
        [](Game& game) { game.Race.Map.Water.Items[0].R = 1; },
        [](Game& game) { game.Scene.Objects.At(0).AngleB = 0.5f; },
        [](Game& game) { game.Scene.Objects.At(0).Free = 1; },
        [](Game& game) { game.Scene.Objects.At(0).Mesh[0].Pts.At(1, 1).Y = 1e-9f; },
        [](Game& game) { game.Scene.Objects.At(0).Mesh[0].TexIndex = 1; },
        [](Game& game) { game.Scene.Objects.At(0).Sfere[0].Links[0].J = 2; },
        [](Game& game) { game.Scene.Sprites.At(0).Alpha = 0.5f; },
        [](Game& game) { game.Scene.Particles[0].Life = 3; },
        [](Game& game) { game.Scene.Ground.Sharp.Pixels.Row(2)[8] = 1; },
        [](Game& game) { game.Camera.CamSway = 0.01f; },
        [](Game& game) { game.Camera.CamYaw = -0.0f; },
        [](Game& game) { game.Keys.KeyLeft = -1; },
        [](Game& game) { game.Random.State = 1; },
        [](Game& game) { game.Random.Script = {0.5}; },
        [](Game& game) { game.Settings.EffQuality = 0.5f; },
        [](Game& game) { game.Run.Shake = 0.6f; },
    };
    const std::uint64_t before = SumAfter([](Game&) {});
    for (std::size_t i = 0; i < changes.size(); ++i)
        EXPECT_NE(SumAfter(changes[i]), before) << "change " << i;
}

TEST(Checksum, PaddingScratchAndPicturesDoNotCount)
{
    const std::uint64_t before = SumAfter([](shell::Game&) {});
    EXPECT_EQ(SumAfter([](shell::Game& game) { game.Scene.Ground.Sharp.Pixels.Row(0)[9] = 1; }), before);
    EXPECT_EQ(SumAfter([](shell::Game& game) { game.Screen.Frame.Allocate(2, 8); }), before);
    EXPECT_EQ(SumAfter([](shell::Game& game) { game.Camera.CamCosYaw = 0.5f; }), before);
}

TEST(Checksum, EveryNanIsOneNan)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(SumAfter([](shell::Game& game) { game.Camera.CamX = nan; }),
              SumAfter([](shell::Game& game) { game.Camera.CamX = -nan; }));
}

TEST(Checksum, TheSumOfATickLeavesTheGroundOut)
{
    shell::Game game;
    Fill(game);
    const std::uint64_t before = drive::TickChecksum(game);
    game.Scene.Ground.Sharp.Pixels.Row(2)[8] = 1;
    EXPECT_EQ(drive::TickChecksum(game), before);
    game.Race.GameTime = 25;
    EXPECT_NE(drive::TickChecksum(game), before);
}
