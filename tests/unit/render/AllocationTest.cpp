// SPDX-License-Identifier: Zlib
// A frame takes no memory once its lists have grown.
#include "render/Effects.h"
#include "render/Primitives.h"
#include "render/RenderFrame.h"
#include "tests/support/Allocations.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

TEST(Allocation, NoneInAFrameWithTextSpritesAndParticles)
{
    base::Random random;
    random.Seed(6);
    render::Scene scene;
    scene.Sky = support::Noise(random, render::SkyWidth, 60);
    support::SetGround(scene, support::Noise(random, 200, 200));
    for (int code = 'A'; code <= 'Z'; ++code)
        scene.Font.Glyphs[static_cast<std::size_t>(code - render::FirstCode)] = {1, 6, 8,
                                                                                 std::vector<std::uint8_t>(48, 255)};
    scene.Font.LineHeight = 8;
    scene.Font.WidestGlyph = 6;
    const auto smoke = std::make_shared<const render::Picture>(support::Noise(random, 20, 20, 0.3));
    const std::int16_t object = render::MakeObj(scene, {100, 0, 110, 1, 0}, 1, 0, 1, 1);
    render::SetObjR(scene, object, 9);
    render::EditObjMesh(scene, object, 0, {5, 5}, 0x445566, 0);
    for (int i = 0; i < 5; ++i)
        for (int j = 0; j < 5; ++j)
            render::EditObjMeshPt(scene, object, 0, i, j, {static_cast<float>(i), static_cast<float>(j), 1, 0, 0});
    render::MakePoly(scene, 2, 0x223344, 1);
    render::EditPolyPt(scene, 0, 0, {95, 1, 110});
    render::EditPolyPt(scene, 0, 1, {105, 1, 110});
    render::MakeSprite3D(scene,
                         {.Visible = 1, .X = 100, .Y = 1, .Z = 105, .Scale = 0.03f, .Alpha = 0.5f, .Pixels = smoke});
    support::Messages messages;
    render::MakePic2D(scene, messages, {.Visible = 1, .X = 5, .Y = 5}, 20, 20);
    render::MakeRect2D(scene, {.Visible = 1, .X = 5, .Y = 5, .W = 20, .H = 20, .Col = {1, 2, 3}});
    for (std::int16_t style = 0; style < 3; ++style)
        render::MakeLabel2D(scene, {.Visible = 1,
                                    .X = 120,
                                    .Y = 100,
                                    .Style = static_cast<render::LabelStyle>(style),
                                    .Text = "PRIMA\tRIGA\r\nSECONDA RIGA",
                                    .Scale = 1.5f,
                                    .TabWidth = 4,
                                    .Col = {9, 9, 9}});
    support::View view(600, 312, 0, 5);
    view.Look(100, 3, 100, 0.1f, -0.1f);
    std::string text;
    const auto frame = [&](int number)
    {
        view.Screen.TxtFilter = static_cast<std::int16_t>(number % 3);
        // As the game does between frames: particles come and go, read-outs change.
        render::AddParticle(scene, 5, render::Smoke,
                            {.X = 100, .Y = 1, .Z = 108, .Scale = 0.03f, .Alpha = 0.9f, .Pixels = smoke});
        render::AdvanceParticles(scene, random);
        text.assign(static_cast<std::size_t>(number % 30), 'X');
        render::SetLabelText(scene, 0, text);
        RenderFrame(scene, view.Camera, view.Screen, view.Threads);
    };
    for (int number = 0; number < 60; ++number)
        frame(number);
    const std::size_t before = support::Allocations();
    for (int number = 0; number < 60; ++number)
        frame(number);
    EXPECT_EQ(support::Allocations(), before);
    // The counter counts at all.
    const auto some = std::make_unique<int>(1);
    EXPECT_EQ(support::Allocations(), before + 1);
}
