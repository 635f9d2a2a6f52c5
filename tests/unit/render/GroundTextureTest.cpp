// SPDX-License-Identifier: Zlib
#include "render/GroundTexture.h"

#include "tests/support/Messages.h"
#include "tests/support/Scenes.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <utility>

using render::Ground;

namespace
{
// A ground whose blue channel is given row by row from the bottom; green is 255 throughout, red 0.
Ground MakeGround(const std::vector<std::vector<int>>& rows)
{
    Ground ground;
    ground.Height = static_cast<std::int32_t>(rows.size());
    ground.Width = static_cast<std::int32_t>(rows[0].size());
    ground.Sharp = support::Blank(ground.Width, ground.Height);
    for (int v = 0; v < ground.Height; ++v)
        for (int u = 0; u < ground.Width; ++u)
        {
            std::uint8_t* texel = ground.Sharp.Pixels.Row(v) + u * 3;
            texel[0] = static_cast<std::uint8_t>(rows[static_cast<std::size_t>(v)][static_cast<std::size_t>(u)]);
            texel[1] = 255;
        }
    render::BlurGround(ground);
    return ground;
}

// Where the neighbour of a texel stands, by the definition.
int Mirrored(int place, int step, int size)
{
    if (size == 1)
        return 0;
    return place + step < 0 || place + step >= size ? place - step : place + step;
}

// A byte of the copy, straight from its definition.
int PlainBlur(const render::Picture& sharp, int u, int v, int channel)
{
    int sum = 0;
    for (int dv = -1; dv <= 1; ++dv)
        for (int du = -1; du <= 1; ++du)
            if (du != 0 || dv != 0)
                sum += sharp.Pixels.Row(
                    Mirrored(v, dv, sharp.Info.Height))[Mirrored(u, du, sharp.Info.Width) * 3 + channel];
    return sum >> 3;
}

int BlurAt(const Ground& ground, int u, int v)
{
    return ground.GroundBlur.Row(v)[u * 3];
}
}

TEST(BlurGround, TheMeanOfEightNeighboursWithoutTheTexelItself)
{
    const Ground ground = MakeGround({{1, 2, 3}, {4, 200, 6}, {7, 8, 9}});
    EXPECT_EQ(BlurAt(ground, 1, 1), 5); // 40 / 8
    EXPECT_EQ(ground.GroundBlur.Row(1)[3 + 1], 255);
    EXPECT_EQ(ground.GroundBlur.Row(1)[3 + 2], 0);
}

// Beyond the border stands the neighbour of the opposite side.
TEST(BlurGround, BordersAreMirrored)
{
    const Ground ground = MakeGround({{10, 20, 30}, {40, 50, 60}, {70, 80, 90}});
    // Corner (0, 0): rows below and above are both row 1, left and right both column 1.
    EXPECT_EQ(BlurAt(ground, 0, 0), (50 + 40 + 50 + 20 + 20 + 50 + 40 + 50) / 8);
    // Edge (1, 0): only the row below is mirrored.
    EXPECT_EQ(BlurAt(ground, 1, 0), (40 + 50 + 60 + 10 + 30 + 40 + 50 + 60) / 8);
    EXPECT_EQ(BlurAt(ground, 2, 2), (50 + 60 + 50 + 80 + 80 + 50 + 60 + 50) / 8);
}

TEST(BlurGround, TheSumIsShiftedNotRounded)
{
    const Ground ground = MakeGround({{0, 0, 0}, {7, 0, 0}, {0, 0, 8}});
    EXPECT_EQ(BlurAt(ground, 1, 1), 1); // 15 / 8
}

TEST(BlurGround, PicturesOfOneTexelOrOneRowStand)
{
    EXPECT_EQ(BlurAt(MakeGround({{77}}), 0, 0), 77);
    // One row: above and below are the row itself.
    EXPECT_EQ(BlurAt(MakeGround({{8, 16, 24}}), 1, 0), (8 + 16 + 24 + 8 + 24 + 8 + 16 + 24) / 8);
}

TEST(BlurGround, EveryByteIsThatOfTheDefinition)
{
    base::Random random;
    random.Seed(5);
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 6}, {2, 2}, {2, 5}, {3, 1}, {5, 3}, {16, 4}, {67, 9}})
    {
        Ground ground;
        ground.Width = width;
        ground.Height = height;
        ground.Sharp = support::Noise(random, width, height);
        render::BlurGround(ground);
        ASSERT_EQ(ground.GroundBlur.Rows, height);
        ASSERT_EQ(ground.GroundBlur.Bytes.size(), ground.Sharp.Pixels.Bytes.size());
        for (int v = 0; v < height; ++v)
        {
            const std::uint8_t* row = ground.GroundBlur.Row(v);
            for (int at = 0; at < width * 3; ++at)
                ASSERT_EQ(row[at], PlainBlur(ground.Sharp, at / 3, v, at % 3)) << width << " " << at << "," << v;
            for (int at = width * 3; at < ground.GroundBlur.RowBytes; ++at)
                ASSERT_EQ(row[at], 0); // the padding
        }
    }
}

TEST(LoadGround, TakesPictureScaleAndBlur)
{
    const support::TempFolder folder;
    support::Messages messages;
    folder.Write("g.bmp", support::BitmapHeader(2, 1) + std::string("\1\2\3\4\5\6\0\0", 8));
    Ground ground;
    render::LoadGround(messages, folder.Files(), "g.bmp", 2.5f, true, ground);
    EXPECT_EQ(ground.Width, 2);
    EXPECT_EQ(ground.Height, 1);
    EXPECT_EQ(ground.GroundScale, 2.5f);
    EXPECT_EQ(ground.Sharp.Pixels.Row(0)[5], 6);
    EXPECT_EQ(ground.GroundBlur.Rows, 1);
    render::LoadGround(messages, folder.Files(), "g.bmp", 1.0f, false, ground);
    EXPECT_TRUE(ground.GroundBlur.Empty());
    EXPECT_TRUE(messages.Boxes.empty());
}

TEST(LoadGround, APictureThatFailsLeavesNoGround)
{
    const support::TempFolder folder;
    support::Messages messages;
    folder.Write("g.bmp", support::BitmapHeader(2, 1) + std::string("\1\2\3\4\5\6\0\0", 8));
    folder.Write("short.bmp", support::BitmapHeader(2, 9) + std::string("\1\2\3\4\5\6\0\0", 8));
    Ground ground;
    for (const char* name : {"none.bmp", "short.bmp"})
    {
        render::LoadGround(messages, folder.Files(), "g.bmp", 1.0f, true, ground);
        messages.Boxes.clear();
        render::LoadGround(messages, folder.Files(), name, 3.0f, true, ground);
        EXPECT_EQ(messages.Boxes.size(), 1u);
        EXPECT_EQ(ground.Width, 0);
        EXPECT_EQ(ground.Height, 0);
        EXPECT_TRUE(ground.Sharp.Pixels.Empty());
        EXPECT_TRUE(ground.GroundBlur.Empty());
        EXPECT_EQ(ground.GroundScale, 3.0f);
    }
}
