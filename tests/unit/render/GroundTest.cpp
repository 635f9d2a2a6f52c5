// SPDX-License-Identifier: Zlib
#include "render/wide/Kernels.h"

#include "render/GroundPlain.h"
#include "render/RenderFrame.h"
#include "render/RowTables.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

using render::Band;
using render::GroundView;

namespace
{
struct GroundCase
{
    int Width, Height;
};

// Draws the ground of one view by the plain routine and by every set of fast ones, over frames of rubbish, and compares
// every byte and depth cell.
void Compare(const render::Scene& scene, support::View& view)
{
    render::Screen& screen = view.Screen;
    const auto spoil = [&]
    {
        std::fill(screen.Frame.Bytes.begin(), screen.Frame.Bytes.end(), std::uint8_t{77});
        std::fill(screen.Depth.Cells.begin(), screen.Depth.Cells.end(), 1.0f);
    };
    spoil();
    render::GroundPlain(render::MakeGroundView(scene, view.Camera, screen), {0, screen.ScreenMaxX});
    const std::vector<std::uint8_t> plain = screen.Frame.Bytes;
    const std::vector<float> depth = screen.Depth.Cells;
    for (const render::Kernels& kernels : render::RunnableKernels())
    {
        SCOPED_TRACE(kernels.Name);
        screen.Kernels = &kernels;
        spoil();
        render::DrawGround(scene, view.Camera, screen, view.Threads);
        const auto differs = std::mismatch(plain.begin(), plain.end(), screen.Frame.Bytes.begin());
        ASSERT_EQ(differs.first, plain.end())
            << "first other byte in row " << (differs.first - plain.begin()) / screen.Frame.RowBytes << ", column "
            << (differs.first - plain.begin()) % screen.Frame.RowBytes / 3;
        ASSERT_EQ(depth, screen.Depth.Cells);
    }
}

void UpdateTables(support::View& view)
{
    render::UpdateSkyOffset(view.Camera, view.Screen);
    render::UpdateRowTables(view.Camera, view.Screen);
    render::UpdateColumnSlopes(view.Camera, view.Screen);
}

// Pixels of the frame that are not the sky's.
std::size_t CountGround(const render::Scene& scene, support::View& view)
{
    const GroundView ground = render::MakeGroundView(scene, view.Camera, view.Screen);
    std::size_t count = 0;
    for (int y = 0; y < view.Screen.ScreenH; ++y)
        for (int x = 0; x < view.Screen.ScreenW; ++x)
            count += support::Bytes(view.Pixel(x, y)) !=
                     support::Bytes(render::SkyPixel(ground, x, render::SkyRow(ground, y)));
    return count;
}

// Texel (u, v) is blue u, green v, red 7; the sky's pixel (column, row) is blue column / 4, green row, red 200.
render::Scene CountedScene(int width, int height, int skyRows = 100)
{
    render::Scene scene;
    render::Picture ground = support::Blank(width, height);
    for (int v = 0; v < height; ++v)
        for (int u = 0; u < width; ++u)
        {
            std::uint8_t* texel = ground.Pixels.Row(v) + u * 3;
            texel[0] = static_cast<std::uint8_t>(u);
            texel[1] = static_cast<std::uint8_t>(v);
            texel[2] = 7;
        }
    support::SetGround(scene, std::move(ground));
    scene.Sky = support::Blank(render::SkyWidth, skyRows);
    for (int row = 0; row < skyRows; ++row)
        for (int column = 0; column < render::SkyWidth; ++column)
        {
            std::uint8_t* texel = scene.Sky.Pixels.Row(row) + column * 3;
            texel[0] = static_cast<std::uint8_t>(column / 4);
            texel[1] = static_cast<std::uint8_t>(row);
            texel[2] = 200;
        }
    return scene;
}

constexpr unsigned GroundAt(unsigned u, unsigned v)
{
    return u << 16 | v << 8 | 7;
}
constexpr unsigned SkyAt(unsigned column, unsigned row)
{
    return column / 4 << 16 | row << 8 | 200;
}

// One pass at the view's place; the row tables are made first.
void Draw(const render::Scene& scene, support::View& view)
{
    render::UpdateSkyOffset(view.Camera, view.Screen);
    render::UpdateRowTables(view.Camera, view.Screen);
    render::UpdateColumnSlopes(view.Camera, view.Screen);
    render::DrawGround(scene, view.Camera, view.Screen, view.Threads);
}

// A ground of one grey, sharp and blurred, with the row weight given.
std::unique_ptr<support::View> DrawWeighted(render::Scene& scene, int filter, float weight)
{
    auto view = std::make_unique<support::View>(240, 200, filter);
    view->Look(100, 1, 100, 0, 0);
    render::UpdateRowTables(view->Camera, view->Screen);
    render::UpdateColumnSlopes(view->Camera, view->Screen);
    for (std::vector<float>* table : {&view->Screen.BlurWeight, &view->Screen.TapCount})
        std::fill(table->begin(), table->end(), weight);
    render::DrawGround(scene, view->Camera, view->Screen, view->Threads);
    return view;
}
}

// 240 x 200, zoom 200: row 0 is ground 2 ahead, its ray 2.236 long; column 220 is half a zoom to the right.
TEST(Ground, NearestTakesTheRoundedTexel)
{
    const render::Scene scene = CountedScene(200, 200);
    support::View view(240, 200);
    view.Look(50, 1, 60, 0, 0);
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(120, 0)), GroundAt(50, 62));
    EXPECT_EQ(support::Bytes(view.Pixel(220, 0)), GroundAt(51, 62));  // 50 + 0.5 x 2.236
    EXPECT_EQ(support::Bytes(view.Pixel(0, 0)), GroundAt(49, 62));    // 50 - 0.6 x 2.236
    EXPECT_EQ(support::Bytes(view.Pixel(120, 90)), GroundAt(50, 80)); // 200 / 10 ahead
}

TEST(Ground, TexelsRoundTiesToEven)
{
    const render::Scene scene = CountedScene(200, 200);
    support::View view(240, 200);
    for (const auto& [place, texel] : {std::pair{50.5f, 50u}, std::pair{51.5f, 52u}})
    {
        view.Look(place, 1, 60, 0, 0);
        Draw(scene, view);
        EXPECT_EQ(support::Bytes(view.Pixel(120, 0)), GroundAt(texel, 62));
    }
}

TEST(Ground, YawTurnsTheGroundTheWayTheCameraTurns)
{
    const render::Scene scene = CountedScene(200, 200);
    support::View view(240, 200);
    view.Look(50, 1, 60, 1.57079637f, 0); // along -x
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(120, 90)), GroundAt(30, 60));
}

TEST(Ground, ScaleIsTexelsPerUnit)
{
    render::Scene scene = CountedScene(200, 200);
    scene.Ground.GroundScale = 2.5f;
    support::View view(240, 200);
    view.Look(20, 1, 20, 0, 0);
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(120, 90)), GroundAt(50, 100)); // 2.5 x (20 + 20)
}

// The sky shows beyond the texture's edge, not a clamped or wrapped texel.
TEST(Ground, EndsAtTheTexturesEdge)
{
    const render::Scene scene = CountedScene(100, 80);
    support::View view(240, 200);
    const auto at = [&](float x, float z)
    {
        view.Look(x, 1, z, 0, 0);
        Draw(scene, view);
        return support::Bytes(view.Pixel(120, 0)); // the texel 2 ahead
    };
    EXPECT_EQ(at(0, 10), GroundAt(0, 12));
    EXPECT_EQ(at(-0.5f, 10), GroundAt(0, 12));
    EXPECT_EQ(at(-0.75f, 10), SkyAt(120, 0));
    EXPECT_EQ(at(99, 10), GroundAt(99, 12));
    EXPECT_EQ(at(99.75f, 10), SkyAt(120, 0));
    EXPECT_EQ(at(50, -2), GroundAt(50, 0));
    EXPECT_EQ(at(50, -3), SkyAt(120, 0));
    EXPECT_EQ(at(50, 77), GroundAt(50, 79));
    EXPECT_EQ(at(50, 78), SkyAt(120, 0));
}

TEST(Ground, WithAnisotropicTheGroundEnds15TexelsEarlier)
{
    const render::Scene scene = CountedScene(100, 80);
    support::View view(240, 200, 2);
    const auto at = [&](float x, float z)
    {
        view.Look(x, 1, z, 0, 0);
        Draw(scene, view);
        return support::Bytes(view.Pixel(120, 0));
    };
    EXPECT_EQ(at(15, 20), GroundAt(15, 22));
    EXPECT_EQ(at(14, 20), SkyAt(120, 0));
    EXPECT_EQ(at(84, 20), GroundAt(84, 22));
    EXPECT_EQ(at(85, 20), SkyAt(120, 0));
    EXPECT_EQ(at(50, 13), GroundAt(50, 15));
    EXPECT_EQ(at(50, 12), SkyAt(120, 0));
    EXPECT_EQ(at(50, 62), GroundAt(50, 64));
    EXPECT_EQ(at(50, 63), SkyAt(120, 0));
}

TEST(Ground, ATextureNarrowerThanTheMarginShowsNoAnisotropicGround)
{
    const render::Scene scene = CountedScene(30, 29);
    support::View view(240, 200, 2);
    view.Look(15, 1, 13, 0, 0);
    Draw(scene, view);
    EXPECT_EQ(CountGround(scene, view), 0u);
    view.Screen.TxtFilter = 0;
    Draw(scene, view);
    EXPECT_GT(CountGround(scene, view), 0u);
}

TEST(Sky, RowsSpanThePanoramaFromTheBottom)
{
    const render::Scene scene = CountedScene(10, 10);
    support::View view(240, 200);
    view.Look(0, 1, 0, 0, 1.5f); // nothing but sky
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(0, 0)), SkyAt(0, 0));
    EXPECT_EQ(support::Bytes(view.Pixel(8, 100)), SkyAt(8, 50)); // 0.5 x 99 = 49.5, ties to even
    EXPECT_EQ(support::Bytes(view.Pixel(8, 199)), SkyAt(8, 99)); // 0.995 x 99 = 98.505
}

TEST(Sky, ColumnsScrollAndWrapAt820)
{
    const render::Scene scene = CountedScene(10, 10);
    support::View view(1200, 200);
    view.Look(0, 1, 0, 1.0f, 1.5f); // offset 689
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(0, 0)), SkyAt(689, 0));
    EXPECT_EQ(support::Bytes(view.Pixel(130, 0)), SkyAt(819, 0));
    EXPECT_EQ(support::Bytes(view.Pixel(131, 0)), SkyAt(0, 0));
    EXPECT_EQ(support::Bytes(view.Pixel(1199, 0)), SkyAt((689 + 1199) % 820, 0));
}

TEST(Sky, IsBlackWhereThePanoramaDoesNotReach)
{
    render::Scene scene = CountedScene(10, 10);
    scene.Sky = support::Blank(100, 5);
    std::fill(scene.Sky.Pixels.Bytes.begin(), scene.Sky.Pixels.Bytes.end(), std::uint8_t{50});
    support::View view(240, 200);
    view.Look(0, 1, 0, 0, 1.5f);
    std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), std::uint8_t{99});
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(99, 10)), 0x323232u);
    EXPECT_EQ(support::Bytes(view.Pixel(100, 10)), 0u);
    scene.Sky = {};
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(5, 10)), 0u);
}

TEST(Ground, EmptiesEveryDepthCell)
{
    const render::Scene scene = CountedScene(100, 100);
    support::View view(241, 201, 2);
    view.Look(50, 1, 20, 0, 0);
    std::fill(view.Screen.Depth.Cells.begin(), view.Screen.Depth.Cells.end(), 1.0f);
    Draw(scene, view);
    EXPECT_EQ(view.Screen.Depth.Cells, std::vector<float>(241 * 201, 3.4028230607370965e38f));
}

// With the weight at its limit one eighth of the sharp texel still shows.
TEST(Ground, LinearKeepsAnEighthOfTheSharpTexel)
{
    render::Scene scene = CountedScene(200, 200);
    std::fill(scene.Ground.Sharp.Pixels.Bytes.begin(), scene.Ground.Sharp.Pixels.Bytes.end(), std::uint8_t{80});
    std::fill(scene.Ground.GroundBlur.Bytes.begin(), scene.Ground.GroundBlur.Bytes.end(), std::uint8_t{0});
    EXPECT_EQ(support::Bytes(DrawWeighted(scene, 1, 0.875f)->Pixel(120, 0)), 0x0A0A0Au);
    EXPECT_EQ(support::Bytes(DrawWeighted(scene, 1, 0.0f)->Pixel(120, 0)), 0x505050u);
    // 0.25 x 0 + 0.75 x 81 = 60.75, rounded down
    std::fill(scene.Ground.Sharp.Pixels.Bytes.begin(), scene.Ground.Sharp.Pixels.Bytes.end(), std::uint8_t{81});
    EXPECT_EQ(support::Bytes(DrawWeighted(scene, 1, 0.25f)->Pixel(120, 0)), 0x3C3C3Cu);
}

TEST(Ground, LinearWithoutABlurredCopyIsSharp)
{
    render::Scene scene = CountedScene(200, 200);
    scene.Ground.GroundBlur.Clear();
    EXPECT_EQ(support::Bytes(DrawWeighted(scene, 1, 0.875f)->Pixel(120, 0)), GroundAt(100, 102));
}

// Camera at (100, 100), yaw 0: the ray of the middle column goes along v, one texel a step; row 0 shows texel
// (100, 102). 29 texels with weights 1 … 15 … 1, divided by 225.
TEST(Ground, AnisotropicTentOf29Texels)
{
    for (int k = -16; k <= 16; ++k)
    {
        render::Scene scene = CountedScene(200, 200);
        std::fill(scene.Ground.Sharp.Pixels.Bytes.begin(), scene.Ground.Sharp.Pixels.Bytes.end(), std::uint8_t{0});
        scene.Ground.Sharp.Pixels.Row(102 + k)[300] = 225;
        const int weight = std::max(15 - std::abs(k), 0);
        EXPECT_EQ(DrawWeighted(scene, 2, 14.0f)->Pixel(120, 0)[0], weight) << k;
    }
    render::Scene scene = CountedScene(200, 200);
    std::fill(scene.Ground.Sharp.Pixels.Bytes.begin(), scene.Ground.Sharp.Pixels.Bytes.end(), std::uint8_t{201});
    EXPECT_EQ(DrawWeighted(scene, 2, 14.0f)->Pixel(120, 0)[0], 201);
}

TEST(Ground, AnisotropicBelowOneBlendsThreeTexels)
{
    render::Scene scene = CountedScene(200, 200);
    std::fill(scene.Ground.Sharp.Pixels.Bytes.begin(), scene.Ground.Sharp.Pixels.Bytes.end(), std::uint8_t{0});
    const auto set = [&](int v, int value)
    { scene.Ground.Sharp.Pixels.Row(v)[300] = static_cast<std::uint8_t>(value); };
    set(101, 100);
    set(102, 200);
    set(103, 55);
    // Below 0.3: the texel alone.
    EXPECT_EQ(DrawWeighted(scene, 2, 0.29f)->Pixel(120, 0)[0], 200);
    // 0.6 / 0.03 = 20: (200 x 30 x 2 + 155 x 20) / 100 = 151
    EXPECT_EQ(DrawWeighted(scene, 2, 0.6f)->Pixel(120, 0)[0], 151);
    // 0.99 / 0.03 = 33: (200 x 17 x 2 + 155 x 33) / 100 = 119.15
    EXPECT_EQ(DrawWeighted(scene, 2, 0.99f)->Pixel(120, 0)[0], 119);
    // n = 1: (200 x 2 + 155) / 4 = 138.75
    EXPECT_EQ(DrawWeighted(scene, 2, 1.5f)->Pixel(120, 0)[0], 138);
}

// A step that ends exactly between two texels rounds to the even one, which depends on the texel it starts from. The
// cosine is set so that the second step is 0.5 and 1 on the way.
TEST(Ground, StepsThatEndBetweenTexelsFollowThePlainRule)
{
    base::Random random;
    random.Seed(5);
    render::Scene scene;
    support::SetGround(scene, support::Noise(random, 200, 200));
    for (const float cosYaw : {0.5f, 0.25f, 0.125f, -0.5f})
        for (const float place : {100.0f, 101.0f})
        {
            support::View view(241, 201, 2);
            view.Look(place, 1, place, 0, 0);
            view.Camera.CamCosYaw = cosYaw; // a = 0 in the middle column: dv is the cosine itself
            UpdateTables(view);
            std::fill(view.Screen.TapCount.begin(), view.Screen.TapCount.end(), 14.0f);
            ASSERT_NO_FATAL_FAILURE(Compare(scene, view));
            EXPECT_TRUE(view.Screen.Taps[120].HasTies);
            EXPECT_FALSE(view.Screen.Taps[3].HasTies);
        }
}

namespace
{
// A view whose pixel (x, y) shows texel (x, y), of a ground of that many texels.
std::unique_ptr<support::View> OneToOne(int width, int height, int filter)
{
    auto view = std::make_unique<support::View>(width, height, filter);
    view->Look(0, 1, 0, 0, 0);
    render::Screen& screen = view->Screen;
    for (int y = 0; y < height; ++y)
    {
        const auto row = static_cast<std::size_t>(y);
        screen.RowAngle[row] = -1.0f;
        screen.RowSlant[row] = 1.0f;
        screen.RowDist[row] = static_cast<float>(y);
    }
    for (int x = 0; x < width; ++x)
        screen.ColumnSlope[static_cast<std::size_t>(x)] = x;
    // The plain routine finds the slope itself.
    screen.CenterX = 0.0f;
    view->Camera.Zoom = 1.0f;
    return view;
}
}

// Every pair of a sharp and a blurred channel, with weights at and beside the fractions at which a mixed channel
// becomes the next one, and with those that the whole numbers cannot hold.
TEST(Ground, LinearMixesAllPairsOfChannels)
{
    render::Scene scene;
    support::SetGround(scene, support::Blank(256, 256));
    for (int v = 0; v < 256; ++v)
        for (int u = 0; u < 256; ++u)
            for (int c = 0; c < 3; ++c)
            {
                scene.Ground.Sharp.Pixels.Row(v)[u * 3 + c] = static_cast<std::uint8_t>(c == 1 ? 255 - u : u);
                scene.Ground.GroundBlur.Row(v)[u * 3 + c] = static_cast<std::uint8_t>(c == 2 ? 255 - v : v);
            }
    std::vector<float> weights = {0.0f,    1e-30f, 0x1p-23f, 0x1p-22f, 0x1.fffffep-22f, 0x1p-16f,
                                  0x1p-9f, 0.875f, 0.5f,     0.25f,    0x1.234566p-8f,  0x1p-10f};
    for (const auto& [n, d] :
         {std::pair{1, 255}, {1, 254}, {127, 255}, {126, 253}, {200, 243}, {7, 9}, {85, 254}, {2, 3}})
        for (const float beside : {0.0f, 1.0f})
        {
            const float at = static_cast<float>(n) / static_cast<float>(d);
            weights.insert(weights.end(), {at, std::nextafter(at, beside)});
        }
    const std::unique_ptr<support::View> view = OneToOne(256, 256, 1);
    for (const float weight : weights)
    {
        SCOPED_TRACE(weight);
        std::fill(view->Screen.BlurWeight.begin(), view->Screen.BlurWeight.end(), weight);
        ASSERT_NO_FATAL_FAILURE(Compare(scene, *view));
    }
}

// Tents of every width, over texels of every brightness.
TEST(Ground, AnisotropicDividesEverySum)
{
    base::Random random;
    random.Seed(3);
    render::Scene scene;
    support::SetGround(scene, support::Noise(random, 241, 200));
    const std::unique_ptr<support::View> view = OneToOne(241, 200, 2);
    view->Screen.CenterX = 120.0f;
    view->Camera.CamX = 120.0f;
    render::UpdateColumnSlopes(view->Camera, view->Screen);
    for (int y = 0; y < 200; ++y) // 0 to 14, also below one
        view->Screen.TapCount[static_cast<std::size_t>(y)] =
            static_cast<float>(y % 50 < 30 ? y % 30 / 2 : y % 20 * 0.05);
    for (const float yaw : {0.0f, 0.3f, 1.5f})
    {
        view->Camera.CamYaw = yaw; // the steps turn, the texels stay
        ASSERT_NO_FATAL_FAILURE(Compare(scene, *view));
    }
    for (std::uint8_t& byte : scene.Ground.Sharp.Pixels.Bytes)
        byte = byte > 40 ? 255 : 254;
    ASSERT_NO_FATAL_FAILURE(Compare(scene, *view));
}

// The last texel of a picture without padding is the last byte of its memory.
TEST(Ground, TheLastTexelIsDrawn)
{
    base::Random random;
    random.Seed(4);
    for (const int filter : {0, 1})
        for (const int width : {1, 4, 5, 64, 240})
        {
            render::Scene scene;
            scene.Sky = support::Noise(random, render::SkyWidth, 20);
            support::SetGround(scene, support::Noise(random, width, 50));
            const std::unique_ptr<support::View> view = OneToOne(width, 50, filter);
            ASSERT_NO_FATAL_FAILURE(Compare(scene, *view));
            view->Camera.CamX = -3.0f; // and with sky on both sides
            ASSERT_NO_FATAL_FAILURE(Compare(scene, *view));
            view->Camera.CamX = 3.0f;
            ASSERT_NO_FATAL_FAILURE(Compare(scene, *view));
        }
}

TEST(Ground, UnknownFiltersDrawAsNone)
{
    const render::Scene scene = CountedScene(200, 200);
    support::View none(240, 200, 0);
    none.Look(50, 1, 60, 0.3f, 0);
    Draw(scene, none);
    for (const int filter : {-1, 3, 32767})
    {
        support::View view(240, 200, filter);
        view.Look(50, 1, 60, 0.3f, 0);
        Draw(scene, view);
        EXPECT_EQ(view.Screen.Frame.Bytes, none.Screen.Frame.Bytes);
    }
}

TEST(Ground, AnyNumberOfThreadsDrawsTheSame)
{
    const render::Scene scene = CountedScene(200, 200);
    for (const int filter : {0, 1, 2})
    {
        support::View one(601, 313, filter, 1);
        one.Look(50, 3, 30, 0.3f, -0.1f);
        Draw(scene, one);
        for (const int threads : {3, 5, 16, 700})
        {
            support::View many(601, 313, filter, threads);
            many.Look(50, 3, 30, 0.3f, -0.1f);
            Draw(scene, many);
            ASSERT_EQ(many.Screen.Frame.Bytes, one.Screen.Frame.Bytes) << filter << " " << threads;
            ASSERT_EQ(many.Screen.Depth.Cells, one.Screen.Depth.Cells);
        }
    }
}

TEST(Ground, SingleThreadWalksTheFirstBandOnly)
{
    const render::Scene scene = CountedScene(200, 200);
    support::View view(240, 200, 1, 3);
    view.Screen.SingleThread = true;
    view.Screen.GroundLimit = 0; // no limit applies
    view.Look(50, 1, 60, 0, 0);
    std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), std::uint8_t{99});
    Draw(scene, view);
    EXPECT_NE(support::Bytes(view.Pixel(79, 0)), 0x636363u);
    EXPECT_EQ(support::Bytes(view.Pixel(80, 0)), 0x636363u);
}

TEST(Ground, CamerasThatAreNoNumbersShowTheSky)
{
    const render::Scene scene = CountedScene(200, 200);
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    for (const int filter : {0, 1, 2})
        for (const float odd : {nan, inf, -inf, 1e30f})
        {
            support::View view(240, 200, filter);
            view.Look(odd, 1, 60, 0, 0);
            Draw(scene, view);
            EXPECT_EQ(CountGround(scene, view), 0u);
            view.Look(50, 1, 60, odd, 0);
            Draw(scene, view);
            EXPECT_EQ(CountGround(scene, view), 0u);
            view.Look(50, odd, 60, 0, 0);
            Draw(scene, view);
            EXPECT_EQ(CountGround(scene, view), 0u);
            view.Look(50, 1, 60, 0, odd == 1e30f ? nan : odd);
            Draw(scene, view);
        }
    // Yaw and its sine disagree where a field was written by hand: no step may leave the texture.
    support::View view(240, 200, 2);
    view.Look(100, 1, 60, 0, 0);
    view.Camera.CamYaw = nan;
    Draw(scene, view);
    EXPECT_EQ(support::Bytes(view.Pixel(120, 0)), GroundAt(100, 62));
}

// Random worlds and cameras, all filters: near and beyond the edges, odd sizes, steep pitches, upside-down rows. A
// comparison of nothing but sky would prove little: enough of what is compared must be ground.
TEST(Ground, FastIsPlainForRandomViews)
{
    std::size_t groundPixels[3] = {};
    base::Random random;
    random.Seed(1);
    const GroundCase sizes[] = {{240, 200}, {241, 201}, {333, 257}, {600, 312}, {1200, 900}};
    for (int round = 0; round < 80; ++round)
    {
        const GroundCase size = round % 40 == 39 ? sizes[4] : sizes[round % 4];
        render::Scene scene;
        scene.Sky = support::Noise(random, render::SkyWidth, support::DrawWhole(random, 1, 300));
        support::SetGround(
            scene, support::Noise(random, support::DrawWhole(random, 1, 300), support::DrawWhole(random, 20, 300)),
            static_cast<float>(support::Draw(random, 0.3, 3.0)));
        support::View view(size.Width, size.Height, round % 3, support::DrawWhole(random, 1, 16));
        if (round % 5 == 0)
            view.Camera.Zoom *= static_cast<float>(support::Draw(random, 0.5, 8.0));
        const render::Ground& ground = scene.Ground;
        view.Look(
            static_cast<float>(support::Draw(random, -0.2, 1.2) * ground.Width / ground.GroundScale),
            static_cast<float>(support::Draw(random, 0.5, round % 2 == 0 ? 10.0 : 120.0)),
            static_cast<float>(support::Draw(random, -0.2, 1.2) * ground.Height / ground.GroundScale),
            static_cast<float>(support::Draw(random, -7.0, 7.0)),
            static_cast<float>(round % 7 == 0 ? support::Draw(random, -3.2, 3.2) : support::Draw(random, -1.6, 0.2)));
        SCOPED_TRACE(testing::Message() << "round " << round);
        UpdateTables(view);
        ASSERT_NO_FATAL_FAILURE(Compare(scene, view));
        groundPixels[round % 3] += CountGround(scene, view);
    }
    for (const std::size_t count : groundPixels)
        EXPECT_GT(count, 100000u);
}
