// SPDX-License-Identifier: Zlib
#include "render/Triangles.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

using render::Point3;
using render::ScreenVertex;

namespace
{
constexpr base::Rgb Grey{200, 100, 50};

// 240 x 200, zoom 200, centre (120, 100); the eye in the origin, looking along +z.
struct Origin : support::View
{
    render::Scene Scene;
    Origin() : View(240, 200) { Look(0, 0, 0, 0, 0); }
    render::Vertex At(const Point3& point, std::int32_t u = 0, std::int32_t v = 0) const
    {
        return TransformVertex(Camera, Screen, point, u, v);
    }
    void Flat(const Point3& a, const Point3& b, const Point3& c)
    {
        DrawTriFlat(Scene, Camera, Screen, {At(a), At(b), At(c)}, Grey);
    }
    std::size_t Drawn() const
    {
        return static_cast<std::size_t>(std::count_if(Screen.Depth.Cells.begin(), Screen.Depth.Cells.end(),
                                                      [](float z) { return z != render::FarDepth; }));
    }
};
}

TEST(Extent, LargestMinusSmallest)
{
    EXPECT_EQ(render::Extent(3, -2, 1), 5.0);
    EXPECT_EQ(render::Extent(4, 4, 4), 0.0);
}

// Upright face, extents 1, 1, 0 and so 0.7071, 0.7071, 0: 0.7071 x pi/2 for F(ey, 0); F(0, ex) is 0.
TEST(FaceShade, UprightFace)
{
    EXPECT_NEAR(render::FaceShade({0, 0, 5}, {1, 0, 5}, {0, 1, 5}), 1.0 - 0.70710678 * 1.570796 / 18.849552154541016,
                1e-9);
}

// Level face, extents 1, 0, 1: ex x F(0, ez) and ez x F(0, ex) are 0, ey is 0.
TEST(FaceShade, LevelFaceKeepsAllItsLight)
{
    EXPECT_EQ(render::FaceShade({0, 2, 0}, {1, 2, 0}, {0, 2, 1}), 1.0);
}

// Extents 3, 4, 12 of length 13. F(12, 3) = pi/2 - atan(3 / 12); F(4, 12) = atan(4 / 12); F(4, 3) = pi/2 - atan(3 / 4).
TEST(FaceShade, SlantedFace)
{
    const double halfPi = 1.570796;
    const double taken =
        4.0 / 13 * (halfPi - std::atan(0.25)) + 3.0 / 13 * std::atan(4.0 / 12) + 12.0 / 13 * (halfPi - std::atan(0.75));
    EXPECT_NEAR(render::FaceShade({0, 0, 0}, {3, 0, 12}, {1, 4, 5}), 1.0 - taken / 18.849552154541016, 1e-12);
}

TEST(FaceShade, StaysBetween088And1)
{
    base::Random random;
    random.Seed(2);
    for (int i = 0; i < 2000; ++i)
    {
        Point3 corner[3];
        for (Point3& c : corner)
            c = {static_cast<float>(support::Draw(random, -9, 9)), static_cast<float>(support::Draw(random, -9, 9)),
                 static_cast<float>(support::Draw(random, -9, 9))};
        const double shade = render::FaceShade(corner[0], corner[1], corner[2]);
        ASSERT_GT(shade, 0.86);
        ASSERT_LE(shade, 1.0);
    }
}

TEST(FaceShade, TwoExtentsOfZeroAreNoFace)
{
    Origin view;
    view.Flat({-1, 0, 5}, {1, 0, 5}, {0, 0, 5});
    view.Flat({1, -1, 5}, {1, 1, 5}, {1, 0, 5});
    view.Flat({1, 1, 5}, {1, 1, 5}, {1, 1, 5});
    EXPECT_EQ(view.Drawn(), 0u);
    EXPECT_TRUE(std::isnan(render::FaceShade({-1, 0, 5}, {1, 0, 5}, {0, 0, 5})));
}

TEST(DrawTriFlat, ColourTimesShadeTimesLightRoundedToAByte)
{
    Origin view;
    view.Scene.LightG = 0.5f;
    view.Scene.LightB = 20.0f;
    view.Flat({-1, -1, 5}, {1, -1, 5}, {-1, 1, 5}); // shade 0.9410740
    EXPECT_EQ(view.Pixel(100, 80)[2], 188);         // 200 x 0.9410740 = 188.2
    EXPECT_EQ(view.Pixel(100, 80)[1], 47);          // 100 x 0.9410740 x 0.5 = 47.05
    EXPECT_EQ(view.Pixel(100, 80)[0], 255);         // limited
    EXPECT_EQ(view.Depth(100, 80), 5.0f);
}

// (-1, -1, 5) projects to 120 - 40, 100 - 40 and so on.
TEST(DrawTriFlat, ProjectsAroundTheCentreWithYUpward)
{
    Origin view;
    view.Flat({-1, -1, 5}, {1, -1, 5}, {-1, 1, 5});
    EXPECT_EQ(view.Depth(80, 60), 5.0f);
    EXPECT_EQ(view.Depth(160, 60), 5.0f);
    EXPECT_EQ(view.Depth(80, 140), 5.0f);
    EXPECT_EQ(view.Depth(79, 60), render::FarDepth);
    EXPECT_EQ(view.Depth(80, 59), render::FarDepth);
    EXPECT_EQ(view.Depth(160, 61), render::FarDepth);
}

TEST(NearPlane, WhollyBehindDrawsNothing)
{
    Origin view;
    view.Flat({-1, -1, 0.009f}, {1, -1, 0.009f}, {0, 1, -3});
    EXPECT_EQ(view.Drawn(), 0u);
    view.Flat({-0.001f, -0.001f, 0.01f}, {0.001f, -0.001f, 0.01f}, {0, 0.001f, 0.01f}); // exactly on it: in front
    EXPECT_GT(view.Drawn(), 0u);
}

// A and B at depth 1, C at -1: both edges are cut at t = 0.99 / 2 = 0.495. P = -0.3 + 0.3 t = -0.1515, so at depth 0.01
// column -0.1515 / 0.01 x 200 + 120 = -2910, row -0.2 / 0.01 x 200 + 100 = -3900.
TEST(NearPlane, OneCornerBehindLeavesTwoTriangles)
{
    Origin view;
    view.Flat({-0.3f, -0.2f, 1}, {0.3f, -0.2f, 1}, {0, -0.2f, -1});
    Origin expected;
    const ScreenVertex a{60, 60, 1}, b{180, 60, 1}, p{-2910, -3900, 0.01f}, q{3150, -3900, 0.01f};
    const base::Rgb colour{200, 100, 50}; // a level face keeps its light
    FillTriFlat(expected.Screen, a, b, p, colour);
    FillTriFlat(expected.Screen, b, q, p, colour);
    EXPECT_EQ(view.Screen.Frame.Bytes, expected.Screen.Frame.Bytes);
    EXPECT_EQ(view.Screen.Depth.Cells, expected.Screen.Depth.Cells);
    // In row 0 the common edge B - P is at column 133: what lies right of it is the second triangle's.
    EXPECT_LT(view.Depth(110, 0), 1.0f);
    EXPECT_LT(view.Depth(200, 0), 1.0f);
}

// C in front at depth 1, A and B behind at -1.
TEST(NearPlane, TwoCornersBehindLeaveOneTriangle)
{
    Origin view;
    view.Flat({-0.3f, -0.2f, -1}, {0.3f, -0.2f, -1}, {0, -0.2f, 1});
    Origin expected;
    // -0.3 x 0.495 = -0.1485: column -2850.
    FillTriFlat(expected.Screen, {-2850, -3900, 0.01f}, {3090, -3900, 0.01f}, {120, 60, 1}, {200, 100, 50});
    EXPECT_EQ(view.Screen.Frame.Bytes, expected.Screen.Frame.Bytes);
    EXPECT_EQ(view.Screen.Depth.Cells, expected.Screen.Depth.Cells);
    EXPECT_GT(view.Drawn(), 0u);
}

// The cut texel is at u = 10 t = 4.95, not rounded on the way: at the edge's end in row 60 - n it is 4.95 n / 3960.
TEST(NearPlane, CutTexelsAreInterpolatedWithTheCorner)
{
    base::Random random;
    random.Seed(9);
    const render::Picture picture = support::Noise(random, 16, 16);
    const base::ConstSurface texture = render::MakeSurface(picture.Pixels, 16, 16);
    Origin view;
    DrawTriTex(view.Camera, view.Screen,
               {view.At({-0.3f, -0.2f, 1}, 0, 15), view.At({0.3f, -0.2f, 1}, 15, 15), view.At({0, -0.2f, -1}, 8, 0)},
               texture);
    Origin expected;
    const double t = (1.0 - 0.01f) / 2.0;
    const ScreenVertex a{60, 60, 1, 0, 15}, b{180, 60, 1, 15, 15};
    const ScreenVertex p{-2910, -3900, 0.01f, 8 * t, 15 - 15 * t}, q{3150, -3900, 0.01f, 15 - 7 * t, 15 - 15 * t};
    FillTriTex(expected.Screen, a, b, p, texture);
    FillTriTex(expected.Screen, b, q, p, texture);
    EXPECT_EQ(view.Screen.Frame.Bytes, expected.Screen.Frame.Bytes);
    EXPECT_GT(view.Drawn(), 0u);
}

TEST(DrawTriTex, WithoutATextureNothingIsDrawn)
{
    Origin view;
    DrawTriTex(view.Camera, view.Screen, {view.At({-1, -1, 5}), view.At({1, -1, 5}), view.At({-1, 1, 5})}, {});
    EXPECT_EQ(view.Drawn(), 0u);
}

TEST(DrawTriFlat, CornersThatAreNoNumbersDrawNothing)
{
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    for (const float odd : {nan, inf, -inf, 3e38f, -3e38f})
    {
        Origin view;
        view.Flat({odd, -1, 5}, {1, -1, 5}, {-1, 1, 5});
        view.Flat({-1, odd, 5}, {1, -1, 5}, {-1, 1, 5});
        EXPECT_EQ(view.Drawn(), 0u) << odd;
        view.Flat({nan, nan, nan}, {odd, odd, odd}, {nan, odd, nan});
        EXPECT_EQ(view.Drawn(), 0u) << odd;
    }
    for (const float odd : {nan, inf})
    {
        Origin view;
        view.Flat({-1, -1, odd}, {1, -1, 5}, {-1, 1, 5});
        EXPECT_EQ(view.Drawn(), 0u) << odd;
    }
}
