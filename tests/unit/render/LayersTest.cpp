// SPDX-License-Identifier: Zlib
#include "render/Layers.h"

#include "render/Canvas.h"
#include "render/TriangleFill.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

using render::Band;
using render::FarDepth;
using render::Marks;

namespace
{
// A layer with pixels here and there, over a frame of another colour; what is drawn is marked.
void Strew(support::View& view, std::uint64_t seed)
{
    base::Random random;
    random.Seed(seed);
    render::Screen& screen = view.Screen;
    std::fill(screen.Frame.Bytes.begin(), screen.Frame.Bytes.end(), std::uint8_t{77});
    for (std::uint8_t& byte : screen.Ahead.Pixels.Bytes)
        byte = static_cast<std::uint8_t>(support::DrawWhole(random, 0, 255));
    for (int n = support::DrawWhole(random, 0, 5); n > 0; --n)
    {
        const int firstX = support::DrawWhole(random, 0, screen.ScreenMaxX);
        const int lastX = support::DrawWhole(random, firstX, screen.ScreenMaxX);
        const int firstY = support::DrawWhole(random, 0, screen.ScreenMaxY);
        const int lastY = support::DrawWhole(random, firstY, screen.ScreenMaxY);
        screen.Ahead.Drawn.Add(firstX, lastX, firstY, lastY);
        for (int y = firstY; y <= lastY; ++y)
            for (int x = firstX; x <= lastX; ++x)
                if (support::DrawWhole(random, 0, 2) > 0)
                    screen.Ahead.Depth.At(x, y) = n == 1 ? -std::numeric_limits<float>::infinity()
                                                         : static_cast<float>(support::Draw(random, 0, 400));
    }
}
}

TEST(LayOver, FastIsPlainForRandomLayers)
{
    int shown = 0;
    for (const auto& [width, height] : {std::pair{1, 9}, {2, 8}, {3, 3}, {4, 1}, {5, 17}, {7, 8}, {65, 30}, {258, 40}})
        for (int round = 0; round < 20; ++round)
        {
            support::View plain(width, height);
            Strew(plain, static_cast<std::uint64_t>(round));
            const std::vector<std::uint8_t> before = plain.Screen.Frame.Bytes;
            LayOverPlain(plain.Screen.Frame, plain.Screen.Ahead, {0, height - 1});
            shown += before != plain.Screen.Frame.Bytes;
            for (const render::Kernels& kernels : render::RunnableKernels())
            {
                support::View fast(width, height);
                Strew(fast, static_cast<std::uint64_t>(round));
                for (const Band& rows : render::MakeBands(height, static_cast<std::int16_t>(1 + round % 3)))
                    kernels.LayOver(fast.Screen.Frame, fast.Screen.Ahead, rows);
                ASSERT_EQ(fast.Screen.Frame.Bytes, plain.Screen.Frame.Bytes) << kernels.Name << " " << width;
            }
        }
    EXPECT_GT(shown, 100);
}

TEST(LayOver, KeepsToItsRows)
{
    for (const render::Kernels& kernels : render::RunnableKernels())
    {
        support::View view(20, 20);
        render::Screen& screen = view.Screen;
        std::fill(screen.Ahead.Depth.Cells.begin(), screen.Ahead.Depth.Cells.end(), 5.0f);
        std::fill(screen.Ahead.Pixels.Bytes.begin(), screen.Ahead.Pixels.Bytes.end(), std::uint8_t{9});
        screen.Ahead.Drawn.Add(0, 19, 0, 19);
        kernels.LayOver(screen.Frame, screen.Ahead, {3, 11});
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x)
                EXPECT_EQ(support::Bytes(view.Pixel(x, y)), y >= 3 && y <= 11 ? 0x090909u : 0u);
    }
}

// Every pixel that a fill writes lies in a marked block.
TEST(LayOver, FillsMarkWhereTheyDraw)
{
    base::Random random;
    random.Seed(5);
    for (const render::Kernels& kernels : render::RunnableKernels())
        for (const int width : {4, 61, 600, 1200})
            for (int round = 0; round < 50; ++round)
            {
                support::View view(width, 99);
                render::Screen& screen = view.Screen;
                screen.Kernels = &kernels;
                const auto vertex = [&]
                {
                    return render::ScreenVertex{support::DrawWhole(random, -width / 2, 2 * width),
                                                support::DrawWhole(random, -50, 150), 5};
                };
                FillTriFlat({screen, screen.Ahead}, vertex(), vertex(), vertex(), {1, 2, 3});
                const Marks& marks = screen.Ahead.Drawn;
                for (int y = 0; y < 99; ++y)
                    for (int x = 0; x < width; ++x)
                    {
                        const bool isMarked = (marks.BlocksOf(y) >> (x / marks.BlockColumns()) & 1) != 0;
                        ASSERT_TRUE(isMarked || screen.Ahead.Depth.At(x, y) == FarDepth) << x << " " << y;
                    }
            }
}

TEST(Marks, HaveSixtyFourBlocksAtMost)
{
    for (const int width : {1, 4, 5, 255, 256, 257, 600, 4096, 32767})
    {
        Marks marks;
        marks.Reset(width, 17);
        EXPECT_LE((width - 1) / marks.BlockColumns(), 63);
        marks.Add(0, 0, 16, 16);
        EXPECT_EQ(marks.BlocksOf(16), 1u);
        EXPECT_EQ(marks.BlocksOf(15), 0u);
        marks.Add(width - 1, width - 1, 8, 16);
        EXPECT_EQ(marks.BlocksOf(8), std::uint64_t{1} << ((width - 1) / marks.BlockColumns()));
        EXPECT_EQ(marks.BlocksOf(7), 0u);
        marks.Clear();
        EXPECT_EQ(marks.BlocksOf(16), 0u);
    }
}
