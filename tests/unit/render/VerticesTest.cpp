// SPDX-License-Identifier: Zlib
#include "render/Vertices.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <vector>

namespace
{
// By their bits: what is no number is itself.
void ExpectSame(const render::Vertex& a, const render::Vertex& b)
{
    const auto bits = [](float value) { return std::bit_cast<std::uint32_t>(value); };
    const auto expectSamePoint = [&](const render::Point3& p, const render::Point3& q)
    {
        EXPECT_TRUE(bits(p.X) == bits(q.X) || (p.X != p.X && q.X != q.X));
        EXPECT_TRUE(bits(p.Y) == bits(q.Y) || (p.Y != p.Y && q.Y != q.Y));
        EXPECT_TRUE(bits(p.Z) == bits(q.Z) || (p.Z != p.Z && q.Z != q.Z));
    };
    expectSamePoint(a.World, b.World);
    expectSamePoint(a.View, b.View);
    EXPECT_EQ(a.Screen.X, b.Screen.X);
    EXPECT_EQ(a.Screen.Y, b.Screen.Y);
    EXPECT_EQ(a.Screen.U, b.Screen.U);
    EXPECT_EQ(a.Screen.V, b.Screen.V);
    EXPECT_EQ(a.Outside, b.Outside);
}

void CompareRandom(const render::Kernels& kernels)
{
    const float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    base::Random random;
    random.Seed(8);
    const auto draw = [&](double least, double most) { return static_cast<float>(support::Draw(random, least, most)); };
    support::View view(600, 312);
    std::uint32_t seen = 0;
    for (int round = 0; round < 2000; ++round)
    {
        view.Look(draw(-50, 50), draw(0, 9), draw(-50, 50), draw(-4, 4), draw(-1, 1));
        const render::MeshPlace place{round % 4 != 0,
                                      {draw(-50, 50), draw(-5, 5), draw(-50, 50)},
                                      render::MakeRotation(draw(-4, 4), draw(-4, 4))};
        std::vector<render::MeshPt> points(static_cast<std::size_t>(support::DrawWhole(random, 1, 13)));
        for (render::MeshPt& point : points)
        {
            point = {draw(-60, 60), draw(-60, 60), draw(-60, 60), support::DrawWhole(random, -9, 999),
                     support::DrawWhole(random, -1000000000, 1000000000)};
            const float odd[] = {inf, -inf, nan, 3e38f, 1e-40f, -0.0f};
            if (round % 5 == 0)
                point.X = odd[support::DrawWhole(random, 0, 5)];
            if (round % 7 == 0)
                point.Z = odd[support::DrawWhole(random, 0, 5)];
        }
        std::vector<render::Vertex> plain(points.size()), fast(points.size());
        TransformPointsPlain(view.Camera, view.Screen, place, points.data(), points.size(), plain.data());
        kernels.TransformPoints(view.Camera, view.Screen, place, points.data(), points.size(), fast.data());
        for (std::size_t i = 0; i < points.size(); ++i)
        {
            SCOPED_TRACE(round);
            ExpectSame(plain[i], fast[i]);
            seen |= plain[i].Outside;
        }
        ASSERT_FALSE(testing::Test::HasFailure());
    }
    EXPECT_EQ(seen, 63u); // every reason once
}
}

TEST(Vertices, FastIsPlainForRandomMeshes)
{
    for (const render::Kernels& kernels : render::RunnableKernels())
    {
        SCOPED_TRACE(kernels.Name);
        ASSERT_NO_FATAL_FAILURE(CompareRandom(kernels));
    }
}

TEST(Vertices, OutsideSaysOnWhichSide)
{
    support::View view(100, 80);
    const auto outside = [&](float x, float y, float z) {
        return TransformVertex(view.Camera, view.Screen, {x, y + view.Camera.CamY, z}).Outside;
    };
    EXPECT_EQ(outside(0, 0, 1), 0u);
    EXPECT_EQ(outside(-9, 0, 1), render::OutsideLeft);
    EXPECT_EQ(outside(9, 0, 1), render::OutsideRight);
    EXPECT_EQ(outside(-9, -9, 1), render::OutsideLeft | render::OutsideBelow);
    EXPECT_EQ(outside(0, 9, 1), render::OutsideAbove);
    EXPECT_EQ(outside(-9, 9, -1), render::BeforeNear);
    EXPECT_EQ(outside(3e38f, 0, 0.02f) & render::NoPlace, render::NoPlace);
}

TEST(Kernels, TheFastestAreTheLast)
{
    ASSERT_FALSE(render::RunnableKernels().empty());
    EXPECT_STREQ(render::RunnableKernels().front().Name, "portable");
    EXPECT_EQ(&render::FastestKernels(), &render::RunnableKernels().back());
    support::View view(12, 8);
    EXPECT_EQ(view.Screen.Kernels, &render::FastestKernels());
}
