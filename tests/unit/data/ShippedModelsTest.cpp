// SPDX-License-Identifier: Zlib
// What the game counts on in the models that ship with it.
#include "tests/support/Messages.h"
#include "world/LoadObject.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace
{
const base::Files Tree{VELKAR_ROOT};

struct Shipped
{
    render::Scene Scene;
    support::Messages Messages;
    std::int16_t Index = -1;

    explicit Shipped(const std::string& path) { Index = world::LoadObject(Scene, Messages, Tree, path).Current; }
    const render::Obj& Object() const { return Scene.Objects.At(Index); }
    const render::Texture& TextureOf(const render::ObjMesh& mesh) const { return Scene.Textures.At(mesh.TexIndex); }

    void ExpectSound() const
    {
        for (const support::Box& box : Messages.Boxes)
            ADD_FAILURE() << box.Title << ": " << box.Text;
        ASSERT_EQ(Index, 0);
        for (const render::ObjMesh& mesh : Object().Mesh)
            for (const render::MeshPt& p : mesh.Pts.Points)
            {
                EXPECT_LE(std::hypot(p.X, p.Y, p.Z), Object().Radius + 0.001);
                if (mesh.Colour >= 0)
                    continue;
                EXPECT_TRUE(p.U >= 0 && p.U < TextureOf(mesh).Pic.Info.Width) << p.U;
                EXPECT_TRUE(p.V >= 0 && p.V < TextureOf(mesh).Pic.Info.Height) << p.V;
            }
    }
    int Triangles() const
    {
        int count = 0;
        for (const render::ObjMesh& mesh : Object().Mesh)
            count += (mesh.Pts.Rows - 1) * (mesh.Pts.Cols - 1) * 2;
        return count;
    }
};

std::string CarPath(int number)
{
    return "data\\models\\car_" + std::to_string(number) + "\\car.3dm";
}
}

class ShippedCar : public testing::TestWithParam<int>
{
};
INSTANTIATE_TEST_SUITE_P(All, ShippedCar, testing::Range(1, 9));

TEST_P(ShippedCar, LoadsWithinItsBudget)
{
    const Shipped car(CarPath(GetParam()));
    car.ExpectSound();
    EXPECT_EQ(car.Object().Visible, 1);
    EXPECT_LE(car.Triangles(), 715);
    EXPECT_GT(car.Object().Mass, 0);
}

TEST_P(ShippedCar, HasTheMeasuresOfACar)
{
    const Shipped car(CarPath(GetParam()));
    float left = 9, right = -9, high = -9, low = 9, tail = 9, nose = -9;
    for (std::size_t m = 0; m < 10; ++m) // the body
        for (const render::MeshPt& p : car.Object().Mesh.at(m).Pts.Points)
        {
            left = std::min(left, p.X);
            right = std::max(right, p.X);
            low = std::min(low, p.Y);
            tail = std::min(tail, p.Z);
            nose = std::max(nose, p.Z);
        }
    for (const render::ObjMesh& mesh : car.Object().Mesh) // an open car's highest is the frame of its windscreen
        for (const render::MeshPt& p : mesh.Pts.Points)
            high = std::max(high, p.Y);
    EXPECT_NEAR(nose - tail, 5.2, 0.2);
    EXPECT_NEAR(nose + tail, 0, 0.15);
    EXPECT_NEAR(right - left, 2.25, 0.05);
    EXPECT_NEAR(left + right, 0, 0.001);
    EXPECT_NEAR(high, 1.5, 0.07);
    EXPECT_GT(low, 0.1);
}

TEST_P(ShippedCar, Mesh20IsTheGlassThatBreaks)
{
    Shipped car(CarPath(GetParam()));
    ASSERT_GE(car.Object().Mesh.size(), 21u);
    const render::ObjMesh& glass = car.Object().Mesh[20];
    ASSERT_LT(glass.Colour, 0);
    EXPECT_TRUE(car.TextureOf(glass).Path.ends_with("textures\\glass.bmp")) << car.TextureOf(glass).Path;
}

TEST_P(ShippedCar, EverySphereDentsTheBody)
{
    const Shipped car(CarPath(GetParam()));
    ASSERT_GE(car.Object().Sfere.size(), 7u);
    for (std::size_t s = 0; s < car.Object().Sfere.size(); ++s)
    {
        const render::Sfera& sphere = car.Object().Sfere[s];
        EXPECT_GE(sphere.Links.size(), 8u) << s;
        EXPECT_EQ(sphere.Y > 0.7, s >= 6) << s; // low on the body, then the cabin
        for (const render::SfereLink& link : sphere.Links)
            EXPECT_TRUE(car.Object().Mesh.at(static_cast<std::size_t>(link.M)).Pts.Has(link.I, link.J));
    }
}

TEST_P(ShippedCar, LeavesTheDriverHisView)
{
    // No opaque corner close before the eye, where it would hide the road.
    const Shipped car(CarPath(GetParam()));
    for (std::size_t m = 0; m < car.Object().Mesh.size(); ++m)
        for (const render::MeshPt& p : car.Object().Mesh[m].Pts.Points)
        {
            if (m == 20)
                continue; // the windscreen itself
            const double ahead = p.Z + 0.05, aside = std::abs(p.X + 0.3), up = p.Y - 1.1;
            if (ahead > 0.02 && aside < ahead * 0.6)
            {
                EXPECT_TRUE(up < -0.14 * ahead || up > 0.25 * ahead) << p.X << " " << p.Y << " " << p.Z;
            }
        }
}

TEST(ShippedModels, NoTwoCarsLookTheSame)
{
    std::set<std::string> pictures;
    for (int number = 1; number <= 8; ++number)
        pictures.insert(Tree.Read("data\\models\\car_" + std::to_string(number) + "\\body.bmp"));
    EXPECT_EQ(pictures.size(), 8u);
}

TEST(ShippedModels, TheTrophyWaitsHiddenWithItsTwoFlatMeshes)
{
    const Shipped cup("data\\models\\cup.3dm");
    cup.ExpectSound();
    EXPECT_EQ(cup.Object().Visible, 0);
    ASSERT_GE(cup.Object().Mesh.size(), 8u);
    EXPECT_GE(cup.Object().Mesh[6].Colour, 0);
    EXPECT_GE(cup.Object().Mesh[7].Colour, 0);
}

TEST(ShippedModels, TheArrowPointsAhead)
{
    const Shipped arrow("data\\models\\gps.3dm");
    arrow.ExpectSound();
    EXPECT_EQ(arrow.Object().Visible, 1);
    EXPECT_EQ(arrow.Object().Sfere.size(), 0u); // nothing collides with it
    double tip = 0, tail = 0;
    for (const render::ObjMesh& mesh : arrow.Object().Mesh)
        for (const render::MeshPt& p : mesh.Pts.Points)
        {
            tip = std::max(tip, static_cast<double>(p.Z));
            tail = std::min(tail, static_cast<double>(p.Z));
        }
    EXPECT_GT(tip, 1);
    EXPECT_GT(tip - tail, 2);
}
