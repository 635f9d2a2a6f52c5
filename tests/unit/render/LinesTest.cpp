// SPDX-License-Identifier: Zlib
#include "render/Lines.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <set>

using render::Point3;

namespace
{
// 240 x 200, zoom 200, centre (120, 100): at depth 200 a unit is a pixel.
struct Lines : support::View
{
    render::Scene Scene;
    Lines() : View(240, 200) { Look(0, 0, 0, 0, 0); }
    void Draw(const Point3& from, const Point3& to) { DrawLine3D(Scene, Camera, Screen, from, to, {10, 20, 30}); }
    std::set<std::pair<int, int>> Drawn() const
    {
        std::set<std::pair<int, int>> places;
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 240; ++x)
                if (Depth(x, y) != render::FarDepth)
                    places.insert({x, y});
        return places;
    }
};
}

TEST(DrawLine3D, StepsOnePixelAtATimeFromTheFirstEnd)
{
    Lines view;
    view.Draw({0, 0, 200}, {4, 2, 200}); // length 4.47: t = 0 … 4, x 120 + 0.894 t, y 100 + 0.447 t
    EXPECT_EQ(view.Drawn(),
              (std::set<std::pair<int, int>>{{120, 100}, {121, 100}, {122, 101}, {123, 101}, {124, 102}}));
    EXPECT_EQ(support::Bytes(view.Pixel(121, 100)), 0x1E140Au); // blue first
}

TEST(DrawLine3D, ColourTakesTheLight)
{
    Lines view;
    view.Scene.LightR = 0.25f;
    view.Scene.LightG = 100.0f;
    view.Draw({0, 0, 200}, {4, 0, 200});
    EXPECT_EQ(support::Bytes(view.Pixel(120, 100)), 0x1EFF02u); // 10 x 0.25 = 2.5, ties to even
}

TEST(DrawLine3D, DepthIsLinearAndTestedLikeThatOfTriangles)
{
    Lines view;
    // The second end is at column 120 + 40 / 100 x 200 = 200: length 80, depth 200 - 100 / 80 t.
    view.Draw({0, 0, 200}, {40, 0, 100});
    EXPECT_EQ(view.Depth(120, 100), 200.0f);
    EXPECT_EQ(view.Depth(160, 100), 150.0f);
    EXPECT_EQ(view.Depth(200, 100), 100.0f);
    Lines hidden;
    std::fill(hidden.Screen.Depth.Cells.begin(), hidden.Screen.Depth.Cells.end(), 150.0f);
    hidden.Draw({0, 0, 200}, {40, 0, 100});
    EXPECT_EQ(support::Bytes(hidden.Pixel(160, 100)), 0u); // equal depth: the first stays
    EXPECT_EQ(support::Bytes(hidden.Pixel(161, 100)), 0x1E140Au);
}

TEST(DrawLine3D, AnEndFartherThan400DrawsNothing)
{
    Lines view;
    view.Draw({0, 0, 100}, {0, 5, 400.5f});
    view.Draw({0, 5, 400.5f}, {0, 0, 100});
    EXPECT_TRUE(view.Drawn().empty());
    view.Draw({0, 0, 100}, {0, 5, 400});
    EXPECT_FALSE(view.Drawn().empty());
}

TEST(DrawLine3D, AnEndNotInFrontDrawsNothing)
{
    Lines view;
    view.Draw({0, 0, 100}, {0, 5, 0});
    view.Draw({0, 0, -1}, {0, 5, 100});
    EXPECT_TRUE(view.Drawn().empty());
}

// The first end must be on the screen, its far borders included; the second may be anywhere.
TEST(DrawLine3D, OnlyTheFirstEndMustBeOnTheScreen)
{
    Lines view;
    view.Draw({-121, 0, 200}, {0, 0, 200});
    view.Draw({121, 0, 200}, {0, 0, 200});
    view.Draw({0, -101, 200}, {0, 0, 200});
    view.Draw({0, 101, 200}, {0, 0, 200});
    EXPECT_TRUE(view.Drawn().empty());
    view.Draw({120, 0, 200}, {118, 0, 200}); // column 240: on the border, not a pixel
    EXPECT_EQ(view.Drawn(), (std::set<std::pair<int, int>>{{238, 100}, {239, 100}}));
    Lines below;
    below.Draw({0, -98, 200}, {0, -300, 200});
    EXPECT_EQ(below.Drawn(), (std::set<std::pair<int, int>>{{120, 0}, {120, 1}, {120, 2}}));
}

TEST(DrawLine3D, AlongTheBorderOutsideNothingIsDrawn)
{
    Lines view;
    view.Draw({120, -50, 200}, {120, 50, 200}); // column 240
    view.Draw({-50, 100, 200}, {50, 100, 200}); // row 200
    EXPECT_TRUE(view.Drawn().empty());
}

TEST(DrawLine3D, NoLengthDrawsNothing)
{
    Lines view;
    view.Draw({0, 0, 200}, {0, 0, 200});
    view.Draw({0, 0, 100}, {0, 0, 300}); // two ends on one pixel
    EXPECT_TRUE(view.Drawn().empty());
}

// The same pixels as the whole walk gives, which is here done without looking whether the line has left.
TEST(DrawLine3D, LeavingTheScreenEndsTheWalkWithTheSamePixels)
{
    base::Random random;
    random.Seed(4);
    for (int round = 0; round < 300; ++round)
    {
        Lines view;
        const Point3 from{static_cast<float>(support::Draw(random, -120, 120)),
                          static_cast<float>(support::Draw(random, -100, 100)), 200};
        const Point3 to{static_cast<float>(support::Draw(random, -2000, 2000)),
                        static_cast<float>(support::Draw(random, -2000, 2000)), 200};
        view.Draw(from, to);
        const render::ScreenPoint p = render::Project(from.X, from.Y, 200, 200, 120, 100);
        const render::ScreenPoint q = render::Project(to.X, to.Y, 200, 200, 120, 100);
        const double length = render::Dist2D(p.X, p.Y, q.X, q.Y);
        std::set<std::pair<int, int>> expected;
        for (int t = 0; t <= length; ++t)
        {
            const int x = base::RoundEven(p.X + (q.X - p.X) / length * t);
            const int y = base::RoundEven(p.Y + (q.Y - p.Y) / length * t);
            if (x >= 0 && x < 240 && y >= 0 && y < 200)
                expected.insert({x, y});
        }
        ASSERT_EQ(view.Drawn(), expected) << round;
    }
}

TEST(DrawLine3D, AnEndBillionsOfPixelsAwayCostsNoMoreThanTheScreen)
{
    Lines view;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i)
        view.Draw({0, 0, 200}, {2.0e6f, 1.0e6f, 0.2f}); // column 2 x 10^9
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_GT(view.Drawn().size(), 100u);
}

TEST(DrawLine3D, EndsThatAreNoNumbersDrawNothing)
{
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    Lines view;
    for (const float odd : {nan, inf, -inf, 3e38f})
    {
        view.Draw({odd, 0, 100}, {0, 5, 100});
        view.Draw({0, 0, 100}, {0, odd, 100});
        view.Draw({0, 0, odd}, {0, 5, 100});
        view.Draw({0, 0, 100}, {0, 5, odd});
    }
    EXPECT_TRUE(view.Drawn().empty());
}
