// SPDX-License-Identifier: Zlib
#include "render/TriangleFillPlain.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <string>

using render::ScreenVertex;

namespace
{
constexpr base::Rgb Ink{1, 2, 3};

ScreenVertex At(std::int32_t x, std::int32_t y, float z = 1, double u = 0, double v = 0)
{
    return {x, y, z, u, v};
}

// A screen of 12 x 8 that reads as rows from the top: '#' drawn, '.' not.
std::string Rows(const support::View& view)
{
    std::string text;
    for (int y = 7; y >= 0; --y)
    {
        for (int x = 0; x < 12; ++x)
            text += view.Depth(x, y) == render::FarDepth ? '.' : '#';
        text += '\n';
    }
    return text;
}

std::string Flat(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c)
{
    support::View view(12, 8);
    FillTriFlat(view.Screen, a, b, c, Ink);
    return Rows(view);
}

// 16 x 16; texel (u, v) is blue 16 u + v, green 1.
render::Picture Numbered()
{
    render::Picture picture = support::Blank(16, 16);
    for (int v = 0; v < 16; ++v)
        for (int u = 0; u < 16; ++u)
        {
            picture.Pixels.Row(v)[u * 3] = static_cast<std::uint8_t>(16 * u + v);
            picture.Pixels.Row(v)[u * 3 + 1] = 1;
        }
    return picture;
}
}

TEST(FillTri, RowsAndColumnsIncludeTheCorners)
{
    EXPECT_EQ(Flat(At(0, 0), At(4, 0), At(0, 4)), "............\n"
                                                  "............\n"
                                                  "............\n"
                                                  "#...........\n"
                                                  "##..........\n"
                                                  "###.........\n"
                                                  "####........\n"
                                                  "#####.......\n");
}

// Long edge (1, 1) to (4, 7); short ones over (9, 3). 1 + 3 / 6 = 1.5 and 4 / 2 = 5 and so on, ties to even.
TEST(FillTri, EdgesAreInterpolatedAndRoundedTiesToEven)
{
    const std::string rows = "....#.......\n"  // 7: 4 to 4
                             "....##......\n"  // 6: 3.5 is 4, 5.25
                             "...####.....\n"  // 5: 3, 6.5 is 6
                             "..#######...\n"  // 4: 2.5 is 2, 7.75
                             "..########..\n"  // 3: 2, 9
                             "..####......\n"  // 2: 1.5 is 2, 5
                             ".#..........\n"  // 1
                             "............\n"; // 0
    EXPECT_EQ(Flat(At(1, 1), At(9, 3), At(4, 7)), rows);
    EXPECT_EQ(Flat(At(9, 3), At(4, 7), At(1, 1)), rows); // in any order
    EXPECT_EQ(Flat(At(4, 7), At(1, 1), At(9, 3)), rows);
    EXPECT_EQ(Flat(At(4, 7), At(9, 3), At(1, 1)), rows);
}

TEST(FillTri, AFlatTopIsDrawnToo)
{
    EXPECT_EQ(Flat(At(2, 0), At(0, 2), At(4, 2)), "............\n"
                                                  "............\n"
                                                  "............\n"
                                                  "............\n"
                                                  "............\n"
                                                  "#####.......\n"
                                                  ".###........\n"
                                                  "..#.........\n");
}

TEST(FillTri, OneRowDrawsNothing)
{
    EXPECT_EQ(Flat(At(0, 3), At(9, 3), At(4, 3)).find('#'), std::string::npos);
}

TEST(FillTri, ATriangleOfOneColumnDrawsIt)
{
    support::View view(12, 8);
    FillTriFlat(view.Screen, At(5, 0, 1), At(5, 4, 5), At(5, 2, 9), Ink);
    for (int y = 0; y <= 4; ++y)
        EXPECT_EQ(view.Depth(5, y), 1.0f + static_cast<float>(y)); // the long edge's values
    EXPECT_EQ(std::count_if(view.Screen.Depth.Cells.begin(), view.Screen.Depth.Cells.end(),
                            [](float z) { return z != render::FarDepth; }),
              5);
}

TEST(FillTri, IsClampedToTheScreen)
{
    const std::string all = Flat(At(-100, -100), At(200, -100), At(-100, 200));
    EXPECT_EQ(all.find('.'), std::string::npos);
    // Wholly beyond one side: rejected, the far sides not strictly.
    EXPECT_EQ(Flat(At(-5, 0), At(-1, 7), At(-3, 2)).find('#'), std::string::npos);
    EXPECT_EQ(Flat(At(12, 0), At(15, 7), At(13, 2)).find('#'), std::string::npos);
    EXPECT_EQ(Flat(At(0, -1), At(9, -4), At(4, -9)).find('#'), std::string::npos);
    EXPECT_EQ(Flat(At(0, 8), At(9, 12), At(4, 9)).find('#'), std::string::npos);
    EXPECT_NE(Flat(At(11, 0), At(15, 7), At(13, 2)).find('#'), std::string::npos);
}

TEST(FillTri, ColourBytesAreBlueGreenRed)
{
    support::View view(12, 8);
    FillTriFlat(view.Screen, At(0, 0), At(4, 0), At(0, 4), Ink);
    EXPECT_EQ(support::Bytes(view.Pixel(1, 1)), 0x030201u);
}

TEST(FillTri, DepthIsLinearAcrossTheSpanAndAlongTheEdges)
{
    support::View view(12, 8);
    FillTriFlat(view.Screen, At(0, 0, 1), At(8, 0, 5), At(0, 4, 3), Ink);
    EXPECT_EQ(view.Depth(0, 0), 1.0f);
    EXPECT_EQ(view.Depth(2, 0), 2.0f);
    EXPECT_EQ(view.Depth(8, 0), 5.0f);
    EXPECT_EQ(view.Depth(0, 2), 2.0f);
    EXPECT_EQ(view.Depth(2, 2), 3.0f); // between 2 and 4 over columns 0 to 4
}

// The span runs from -4 to 4: what is cut off still counts for t.
TEST(FillTri, ClampedSpansKeepTheirDepths)
{
    support::View view(12, 8);
    FillTriFlat(view.Screen, At(-4, 0, 1), At(4, 0, 9), At(-4, 4, 1), Ink);
    EXPECT_EQ(view.Depth(0, 0), 5.0f);
}

TEST(FillTri, TheFirstOfTwoEqualDepthsStays)
{
    support::View view(12, 8);
    FillTriFlat(view.Screen, At(0, 0, 2), At(4, 0, 2), At(0, 4, 2), {9, 9, 9});
    FillTriFlat(view.Screen, At(0, 0, 2), At(4, 0, 2), At(0, 4, 2), Ink);
    EXPECT_EQ(support::Bytes(view.Pixel(1, 1)), 0x090909u);
    FillTriFlat(view.Screen, At(0, 0, std::nextafter(2.0f, 0.0f)), At(4, 0, 1), At(0, 4, 1), Ink);
    EXPECT_EQ(support::Bytes(view.Pixel(1, 1)), 0x030201u);
    FillTriFlat(view.Screen, At(0, 0, 3), At(4, 0, 3), At(0, 4, 3), {9, 9, 9});
    EXPECT_EQ(support::Bytes(view.Pixel(1, 1)), 0x030201u);
}

// Texels are affine on the screen: depth has no part in them. Column 1 of 0 … 4 is a quarter of the way.
TEST(FillTri, TexelsAreAffineAndNearest)
{
    const render::Picture picture = Numbered();
    support::View view(12, 8, 2);
    FillTriTex(view.Screen, At(0, 0, 1, 0, 0), At(4, 0, 100, 8, 0), At(0, 4, 1, 0, 8),
               render::MakeSurface(picture.Pixels, 16, 16));
    EXPECT_EQ(view.Pixel(0, 0)[0], 0);
    EXPECT_EQ(view.Pixel(1, 0)[0], 16 * 2);
    EXPECT_EQ(view.Pixel(4, 0)[0], 16 * 8);
    EXPECT_EQ(view.Pixel(0, 2)[0], 4);
    EXPECT_EQ(view.Pixel(1, 1)[0], 16 * 2 + 2);
}

// The texels of both ends are rounded before they are interpolated: 2.5 is 2 and 3.5 is 4, not 3 half way but round(3).
TEST(FillTri, TexelsOfTheSpanEndsAreRoundedFirst)
{
    const render::Picture picture = Numbered();
    support::View view(12, 8);
    FillTriTex(view.Screen, At(0, 0, 1, 2.5, 0), At(8, 0, 1, 3.4, 0), At(0, 4, 1, 2.5, 0),
               render::MakeSurface(picture.Pixels, 16, 16));
    EXPECT_EQ(view.Pixel(4, 0)[0], 16 * 2); // 2.5 between 2 and 3, ties to even; 2.95 otherwise
    EXPECT_EQ(view.Pixel(5, 0)[0], 16 * 3);
}

TEST(FillTri, ABlackTexelHidesNothing)
{
    render::Picture picture = Numbered();
    std::fill_n(picture.Pixels.Row(0), 3, std::uint8_t{0}); // texel (0, 0)
    support::View view(12, 8);
    FillTriFlat(view.Screen, At(0, 0, 5), At(4, 0, 5), At(0, 4, 5), Ink);
    FillTriTex(view.Screen, At(0, 0, 1, 0, 0), At(4, 0, 1, 4, 0), At(0, 4, 1, 0, 4),
               render::MakeSurface(picture.Pixels, 16, 16));
    EXPECT_EQ(support::Bytes(view.Pixel(0, 0)), 0x030201u);
    EXPECT_EQ(view.Depth(0, 0), 5.0f);
    EXPECT_EQ(view.Pixel(1, 0)[0], 16);
    EXPECT_EQ(view.Depth(1, 0), 1.0f);
    // One byte of three that is not 0 is enough.
    EXPECT_EQ(view.Pixel(0, 1)[0], 1);
}

TEST(FillTri, ATexelOutsideItsTextureDrawsNothing)
{
    const render::Picture picture = Numbered();
    support::View view(12, 8);
    FillTriTex(view.Screen, At(0, 0, 1, -2, 1), At(8, 0, 1, 22, 1), At(0, 4, 1, -2, 1),
               render::MakeSurface(picture.Pixels, 16, 16));
    EXPECT_EQ(view.Depth(0, 0), render::FarDepth); // u -2
    EXPECT_EQ(view.Depth(1, 0), 1.0f);             // u 1
    EXPECT_EQ(view.Depth(5, 0), 1.0f);             // u 13
    EXPECT_EQ(view.Depth(6, 0), render::FarDepth); // u 16
}

namespace
{
// Triangles over one another, of all sizes, on a screen of that width, by the plain routines and by a set of fast ones.
void CompareRandom(const render::Kernels& kernels, int width, int rounds)
{
    base::Random random;
    random.Seed(21);
    const render::Picture picture = support::Noise(random, 40, 30, 0.1);
    const base::ConstSurface texture = render::MakeSurface(picture.Pixels, 40, 30);
    support::View plain(width, 103), fast(width, 103);
    fast.Screen.Kernels = &kernels;
    const double reach[] = {3, 30, 300, 5e3, 1e6, 2.1e9};
    std::size_t drawn = 0, hidden = 0;
    for (int round = 0; round < rounds; ++round)
    {
        if (round % 500 == 0)
            for (support::View* view : {&plain, &fast})
                std::fill(view->Screen.Depth.Cells.begin(), view->Screen.Depth.Cells.end(), render::FarDepth);
        ScreenVertex corner[3];
        const double size = reach[round % 6];
        const double x = support::Draw(random, 0, width), y = support::Draw(random, 0, 103);
        const double ending = round % 2 == 0 ? 40.0 : 4.0;
        // A texture's own texels only, or beyond its sides too.
        const double beyond = round % 4 < 2 ? 5.0 : 0.0;
        for (ScreenVertex& c : corner)
            c = At(base::RoundEven(std::clamp(x + support::Draw(random, -size, size), -2.1e9, 2.1e9)),
                   base::RoundEven(std::clamp(y + support::Draw(random, -size, size), -2.1e9, 2.1e9)),
                   static_cast<float>(support::Draw(random, 0.01, ending)),
                   base::RoundEven(support::Draw(random, -beyond, 39 + beyond)),
                   base::RoundEven(support::Draw(random, -beyond, 29 + beyond)));
        if (round % 7 == 0)
            corner[1].Y = corner[0].Y; // flat bottoms and tops
        if (round % 11 == 0)
            corner[2].X = corner[0].X;
        if (round % 13 == 0)
            corner[0].U += 0.5; // cut at the near plane
        const base::Rgb colour{static_cast<std::uint8_t>(round), 2, 3};
        const std::vector<float> before = plain.Screen.Depth.Cells;
        const bool mayShow = render::MayShow(fast.Screen, corner[0], corner[1], corner[2]);
        if (round % 3 == 0)
        {
            FillTriFlatPlain(plain.Screen, corner[0], corner[1], corner[2], colour);
            FillTriFlat(fast.Screen, corner[0], corner[1], corner[2], colour);
        }
        else
        {
            FillTriTexPlain(plain.Screen, corner[0], corner[1], corner[2], texture);
            FillTriTex(fast.Screen, corner[0], corner[1], corner[2], texture);
        }
        ASSERT_EQ(plain.Screen.Frame.Bytes, fast.Screen.Frame.Bytes) << round;
        ASSERT_EQ(plain.Screen.Depth.Cells, fast.Screen.Depth.Cells) << round;
        ASSERT_TRUE(mayShow || before == plain.Screen.Depth.Cells) << round;
        hidden += mayShow ? 0 : 1;
        if (round % 500 == 499)
            drawn +=
                static_cast<std::size_t>(std::count_if(fast.Screen.Depth.Cells.begin(), fast.Screen.Depth.Cells.end(),
                                                       [](float z) { return z != render::FarDepth; }));
    }
    EXPECT_GT(drawn, static_cast<std::size_t>(width) * 50u);
    const std::size_t leastHidden = width < 4 ? 0 : static_cast<std::size_t>(rounds) / 10;
    EXPECT_GE(hidden, leastHidden);
}
}

TEST(FillTri, FastIsPlainForRandomTriangles)
{
    for (const render::Kernels& kernels : render::RunnableKernels())
    {
        SCOPED_TRACE(kernels.Name);
        ASSERT_NO_FATAL_FAILURE(CompareRandom(kernels, 241, 2400));
        for (const int width : {1, 2, 3, 4, 5, 7})
            ASSERT_NO_FATAL_FAILURE(CompareRandom(kernels, width, 500));
    }
}

// The least step nearer than what was drawn before is enough, and at no depth it is hidden by itself.
TEST(FillTri, TheLeastStepNearerShows)
{
    for (const render::Kernels& kernels : render::RunnableKernels())
        for (const float depth : {0.01f, 1.0f, 7.3f, 399.9f, 1e20f})
        {
            support::View view(12, 8);
            view.Screen.Kernels = &kernels;
            std::fill(view.Screen.Depth.Cells.begin(), view.Screen.Depth.Cells.end(), depth);
            FillTriFlat(view.Screen, At(0, 0, depth), At(4, 0, depth), At(0, 4, depth), Ink);
            EXPECT_EQ(support::Bytes(view.Pixel(1, 1)), 0u) << kernels.Name << " " << depth;
            const float nearer = std::nextafter(depth, 0.0f);
            EXPECT_TRUE(MayShow(view.Screen, At(0, 0, nearer), At(4, 0, nearer), At(0, 4, nearer)));
            FillTriFlat(view.Screen, At(0, 0, nearer), At(4, 0, nearer), At(0, 4, nearer), Ink);
            EXPECT_EQ(support::Bytes(view.Pixel(1, 1)), 0x030201u) << kernels.Name << " " << depth;
        }
}

// Depths that are no numbers, texels that are none, and pictures of one texel.
TEST(FillTri, FastIsPlainForOddNumbers)
{
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    const float depths[] = {1.0f, 2.0f, nan, inf, -inf, -1.0f, 0.0f, 3e38f};
    const double texels[] = {0.0, 15.0, static_cast<double>(nan), static_cast<double>(inf), -1e300, 2e9, 3.5, 16.0};
    const render::Picture numbered = Numbered(), one = support::Blank(1, 1);
    for (const render::Kernels& kernels : render::RunnableKernels())
    {
        support::View plain(12, 8), fast(12, 8);
        fast.Screen.Kernels = &kernels;
        for (int round = 0; round < 4096; ++round)
        {
            const auto depth = [&](int corner) { return depths[round >> 3 * corner & 7]; };
            const auto texel = [&](int corner) { return texels[(round >> 3 * corner) % 7]; };
            const ScreenVertex a = At(1, 0, depth(0), texel(1), texel(2)), b = At(9, 3, depth(1), texel(0), texel(3)),
                               c = At(round % 12, 7, depth(2), texel(3), texel(0));
            const render::Picture& picture = round % 5 == 0 ? one : numbered;
            const base::ConstSurface texture = render::MakeSurface(picture);
            if (round % 64 == 0)
                for (support::View* view : {&plain, &fast})
                    std::fill(view->Screen.Depth.Cells.begin(), view->Screen.Depth.Cells.end(), render::FarDepth);
            FillTriTexPlain(plain.Screen, a, b, c, texture);
            FillTriTex(fast.Screen, a, b, c, texture);
            ASSERT_EQ(plain.Screen.Frame.Bytes, fast.Screen.Frame.Bytes) << kernels.Name << " " << round;
            ASSERT_EQ(plain.Screen.Depth.Cells, fast.Screen.Depth.Cells) << kernels.Name << " " << round;
        }
    }
}

// However far the corners, only the screen's rows and columns are walked.
TEST(FillTri, CornersBillionsOfPixelsAwayCostNoMoreThanTheScreen)
{
    support::View view(240, 200);
    constexpr std::int32_t far = std::numeric_limits<std::int32_t>::max();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i)
        FillTriFlat(view.Screen, At(-far, -far, 2), At(far, -far + 1, 2), At(0, far, 2), Ink);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(view.Depth(120, 100), 2.0f);
}
