// SPDX-License-Identifier: Zlib
#include "render/Sprites.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>

using render::Sprite3D;

namespace
{
// 240 x 200, zoom 200, centre (120, 100). At depth 1.5625 a unit is 128 pixels, so scale 1 / 128 draws texel by pixel.
constexpr float NearDepth = 1.5625f;

Sprite3D MakeSprite(render::Picture picture, float scale, float alpha = 1.0f)
{
    Sprite3D sprite;
    sprite.Visible = 1;
    sprite.Z = NearDepth;
    sprite.Scale = scale;
    sprite.Alpha = alpha;
    sprite.Pixels = std::make_shared<const render::Picture>(std::move(picture));
    return sprite;
}

render::Picture OneColour(int width, int height, int value)
{
    render::Picture picture = support::Blank(width, height);
    std::fill(picture.Pixels.Bytes.begin(), picture.Pixels.Bytes.end(), static_cast<std::uint8_t>(value));
    return picture;
}

struct Sprites : support::View
{
    Sprites() : View(240, 200) { Look(0, 0, 0, 0, 0); }
    void Draw(const Sprite3D& sprite) { DrawSprite3D(Camera, Screen, sprite); }
    // First and last column, first and last row of what is not 0.
    std::string Box() const
    {
        int box[4] = {999, -1, 999, -1};
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 240; ++x)
                if (support::Bytes(Pixel(x, y)) != 0)
                {
                    box[0] = std::min(box[0], x);
                    box[1] = std::max(box[1], x);
                    box[2] = std::min(box[2], y);
                    box[3] = std::max(box[3], y);
                }
        return std::to_string(box[0]) + "-" + std::to_string(box[1]) + " " + std::to_string(box[2]) + "-" +
               std::to_string(box[3]);
    }
};
}

TEST(DrawSprite3D, IsCentredOnTheProjectedPoint)
{
    Sprites odd;
    odd.Draw(MakeSprite(OneColour(3, 5, 9), 1.0f / 128));
    EXPECT_EQ(odd.Box(), "119-121 98-102");
    Sprites even;
    even.Draw(MakeSprite(OneColour(4, 2, 9), 1.0f / 128));
    EXPECT_EQ(even.Box(), "118-121 99-100");
    EXPECT_EQ(even.Depth(119, 99), render::FarDepth); // sprites leave the depth buffer alone
}

TEST(DrawSprite3D, SamplesTheTexelBelowEachPixel)
{
    render::Picture picture = support::Blank(2, 2);
    const int values[2][2] = {{1, 2}, {3, 4}};
    for (int v = 0; v < 2; ++v)
        for (int u = 0; u < 2; ++u)
            picture.Pixels.Row(v)[u * 3] = static_cast<std::uint8_t>(values[v][u]);
    Sprites view;
    view.Draw(MakeSprite(std::move(picture), 4.0f / 128)); // columns 0 … floor(1 x 4): five, from 120 - 2
    EXPECT_EQ(view.Box(), "118-122 98-102");
    EXPECT_EQ(view.Pixel(118, 98)[0], 1);
    EXPECT_EQ(view.Pixel(121, 98)[0], 1); // floor(3 / 4)
    EXPECT_EQ(view.Pixel(122, 98)[0], 2);
    EXPECT_EQ(view.Pixel(118, 102)[0], 3);
    EXPECT_EQ(view.Pixel(122, 102)[0], 4);
}

// 64 texels at scale 1 would be 8192 pixels: the scale is lowered to 100 pixels, 0 … floor(63 x 100 / 64) = 98.
TEST(DrawSprite3D, NoSpriteIsWiderThan100Pixels)
{
    Sprites view;
    view.Draw(MakeSprite(OneColour(64, 32, 9), 1.0f));
    EXPECT_EQ(view.Box(), "71-169 76-124"); // 99 columns from 120 - 49, floor(31 x 1.5625) + 1 = 49 rows from 100 - 24
}

TEST(DrawSprite3D, DepthMustLieBeyondNearAndWithin400)
{
    for (const auto& [depth, drawn] :
         {std::pair{400.0f, true}, {400.1f, false}, {0.01f, false}, {0.02f, true}, {0.0f, false}, {-3.0f, false}})
    {
        Sprites view;
        Sprite3D sprite = MakeSprite(OneColour(4, 4, 9), 0.5f);
        sprite.Z = depth;
        view.Draw(sprite);
        EXPECT_EQ(view.Box() != "999--1 999--1", drawn) << depth;
    }
}

TEST(DrawSprite3D, IsHiddenByWhatIsNotFarther)
{
    Sprites view;
    view.Screen.Depth.Cells[100 * 240 + 119] = NearDepth; // equal: the one drawn first stays
    view.Screen.Depth.Cells[100 * 240 + 121] = NearDepth + 0.001f;
    view.Draw(MakeSprite(OneColour(3, 1, 9), 1.0f / 128));
    EXPECT_EQ(view.Box(), "120-121 100-100");
}

TEST(DrawSprite3D, BlackTexelsAreTransparent)
{
    render::Picture picture = OneColour(3, 1, 9);
    std::fill_n(picture.Pixels.Row(0) + 3, 3, std::uint8_t{0});
    std::fill_n(picture.Pixels.Row(0) + 6, 2, std::uint8_t{0}); // red is left
    Sprites view;
    std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), std::uint8_t{50});
    view.Draw(MakeSprite(std::move(picture), 1.0f / 128, 0.5f));
    EXPECT_EQ(support::Bytes(view.Pixel(120, 100)), 0x323232u);
    EXPECT_EQ(support::Bytes(view.Pixel(121, 100)), 0x19191Eu); // 25, 25, 29.5 to even
}

TEST(DrawSprite3D, OpacityBlendsAndRoundsTiesToEven)
{
    const auto blended = [](int frame, int texel, float alpha)
    {
        Sprites view;
        std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), static_cast<std::uint8_t>(frame));
        view.Draw(MakeSprite(OneColour(1, 1, texel), 1.0f / 128, alpha));
        return static_cast<int>(view.Pixel(120, 100)[1]);
    };
    EXPECT_EQ(blended(100, 200, 1.0f), 200);
    EXPECT_EQ(blended(100, 200, 0.25f), 125);
    EXPECT_EQ(blended(1, 2, 0.5f), 2); // 1.5
    EXPECT_EQ(blended(2, 3, 0.5f), 2); // 2.5
    EXPECT_EQ(blended(100, 200, 0.0f), 100);
    // Opacities beyond their range stay within a byte.
    EXPECT_EQ(blended(100, 200, 3.0f), 255);
    EXPECT_EQ(blended(200, 100, 3.0f), 0);
    EXPECT_EQ(blended(100, 200, -1.0f), 0);
}

TEST(DrawSprite3D, FastIsPlainForRandomSprites)
{
    base::Random random;
    random.Seed(31);
    std::size_t drawn = 0;
    for (int round = 0; round < 400; ++round)
    {
        Sprites plain, fast;
        for (std::size_t i = 0; i < plain.Screen.Depth.Cells.size(); ++i)
        {
            plain.Screen.Depth.Cells[i] = static_cast<float>(support::Draw(random, 0, 40));
            plain.Screen.Frame.Bytes[i] = static_cast<std::uint8_t>(i * 7);
        }
        fast.Screen.Depth.Cells = plain.Screen.Depth.Cells;
        fast.Screen.Frame.Bytes = plain.Screen.Frame.Bytes;
        const std::vector<std::uint8_t> before = plain.Screen.Frame.Bytes;
        Sprite3D sprite = MakeSprite(
            support::Noise(random, support::DrawWhole(random, 1, 70), support::DrawWhole(random, 1, 70), 0.2),
            static_cast<float>(support::Draw(random, 0.001, 0.3)),
            round % 4 == 0 ? 1.0f : static_cast<float>(support::Draw(random, round % 10 == 0 ? -1 : 0, 1)));
        sprite.Z = static_cast<float>(support::Draw(random, 0.1, 20));
        sprite.X = static_cast<float>(support::Draw(random, -0.8, 0.8)) * sprite.Z;
        sprite.Y = static_cast<float>(support::Draw(random, -0.7, 0.7)) * sprite.Z;
        DrawSprite3DPlain(plain.Camera, plain.Screen, sprite);
        fast.Draw(sprite);
        ASSERT_EQ(plain.Screen.Frame.Bytes, fast.Screen.Frame.Bytes) << round;
        ASSERT_EQ(plain.Screen.Depth.Cells, fast.Screen.Depth.Cells) << round;
        drawn += plain.Screen.Frame.Bytes != before ? 1 : 0;
    }
    EXPECT_GT(drawn, 200u);
}

TEST(DrawSprite3D, OddValuesDrawNothing)
{
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    Sprites view;
    const Sprite3D whole = MakeSprite(OneColour(5, 5, 9), 1.0f / 128);
    for (const float odd : {nan, inf, -inf})
        for (float Sprite3D::*field : {&Sprite3D::X, &Sprite3D::Y, &Sprite3D::Z})
        {
            Sprite3D sprite = whole;
            sprite.*field = odd;
            view.Draw(sprite);
        }
    for (const float scale : {nan, -inf, 0.0f, -1.0f})
    {
        Sprite3D sprite = whole;
        sprite.Scale = scale;
        view.Draw(sprite);
    }
    Sprite3D sprite = whole;
    sprite.Alpha = nan;
    view.Draw(sprite);
    view.Draw(Sprite3D());
    EXPECT_EQ(view.Box(), "999--1 999--1");
}
